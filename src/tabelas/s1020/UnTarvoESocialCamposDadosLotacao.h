#pragma once

#include "regras/UnTarvoESocialCamposSqlLugar.h"
#include "tabelas/s1020/UnTarvoESocialCamposFPASLotacao.h"
#include "tabelas/s1020/UnTarvoESocialCamposInfoEmprParcial.h"

namespace tarvo::tabelas {

/// S-1020 dadosLotacao: kind of lotação and its inscription. Source: SC00_DEPTO and its contractor (PREST_SERVICO), or
/// SC00_FILIAL with SC00_FILIALCFG 90/50/1; the kind is a code of table 10.
class TTarvoESocialCamposDadosLotacao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposDadosLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposFPASLotacao FpasLotacao;
    TTarvoESocialCamposInfoEmprParcial InfoEmprParcial;
    std::string tpLotacao;
    /// Of the eSocial for a department, whose 3 comes out as 4; the suite's own code for an establishment.
    std::string tpInsc;
    /// That of the contractor for a department of kind 5, partial contract work.
    std::string nrInsc;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
    TDateTime FData;
};

} // namespace tarvo::tabelas
