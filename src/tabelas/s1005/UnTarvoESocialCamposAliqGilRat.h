#pragma once

#include "regras/UnTarvoESocialCamposSqlLugar.h"
#include "tabelas/s1005/UnTarvoESocialCamposProcAdmJudFap.h"
#include "tabelas/s1005/UnTarvoESocialCamposProcAdmJudRat.h"

namespace tarvo::tabelas {

/// S-1005 aliqGilrat: RAT rate and FAP. Source: SC00_FILIALCFG 90/51/3 and 90/51/1, before them
/// SC00_DEPARTAMENTOCFG 90/51/3 for the rate of a department, after them SC00_EMPRESACFG 90/18/1 for the FAP.
/// Raises EDatabaseError when two rows of one setting are in force.
class TTarvoESocialCamposAliqGilRat : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposAliqGilRat(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    TTarvoESocialCamposProcAdmJudRat ProcAdmJudRat;
    TTarvoESocialCamposProcAdmJudFap ProcAdmJudFap;
    std::string AliqRat;
    /// 0 for an establishment without a rate, even where there is a FAP.
    double Fap = 0;
    /// For the caller to fill.
    double AliqRatAjust = 0;
    std::int64_t IdEstab;
    std::int64_t IdDepto;

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
