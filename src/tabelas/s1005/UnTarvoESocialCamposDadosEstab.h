#pragma once

#include "regras/UnTarvoESocialCamposSqlLugar.h"
#include "tabelas/s1005/UnTarvoESocialCamposAliqGilRat.h"
#include "tabelas/s1005/UnTarvoESocialCamposInfoCaepf.h"
#include "tabelas/s1005/UnTarvoESocialCamposInfoObra.h"
#include "tabelas/s1005/UnTarvoESocialCamposInfoTrab.h"

namespace tarvo::tabelas {

/// S-1005 dadosEstab: the prepondering activity, and what the children report. Source: SC00_FILIALCFG 1/1/2, whatever
/// the date.
class TTarvoESocialCamposDadosEstab : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposDadosEstab(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposAliqGilRat AliqGilRat;
    TTarvoESocialCamposInfoCaepf InfoCaepf;
    TTarvoESocialCamposInfoObra InfoObra;
    TTarvoESocialCamposInfoTrab InfoTrab;
    /// The newest row of an establishment, the oldest one of the establishment of a department.
    std::string CnaePrep;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
};

} // namespace tarvo::tabelas
