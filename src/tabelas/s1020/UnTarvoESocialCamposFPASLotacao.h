#pragma once

#include "regras/UnTarvoESocialCamposSqlLugar.h"
#include "tabelas/s1020/UnTarvoESocialCamposInfoProcJudTerceiros.h"

namespace tarvo::tabelas {

/// S-1020 fpasLotacao: FPAS, third parties and suspended third parties, both sums of bits. Source: SC00_DEPARTAMENTOCFG
/// 90/18/2 or SC00_FILIALCFG 90/51/2, whatever the date, FP_FPASCODIGO, FP_FPASPERCENTUAIS, and the tax classification
/// of the company at the date. Nothing is loaded unless every one of these rows is there.
class TTarvoESocialCamposFPASLotacao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposFPASLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime ADataBase);

    TTarvoESocialCamposInfoProcJudTerceiros InfoProcJudTerceiros;
    std::string Fpas;
    /// One bit an entity with a percentage, less those that the establishment takes out by hand; 0 for a company of tax
    /// classification 01 to 04.
    std::string CodTercs;
    std::string CodTercsSusp;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
    TDateTime FDataBase;
};

} // namespace tarvo::tabelas
