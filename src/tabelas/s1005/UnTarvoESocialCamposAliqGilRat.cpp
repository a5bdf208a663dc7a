#include "tabelas/s1005/UnTarvoESocialCamposAliqGilRat.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposAliqGilRat::TTarvoESocialCamposAliqGilRat(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                             TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{7D72C8DD-1F83-4EF6-A2A0-54E0E73E3C09}"), ProcAdmJudRat(AIDEstab, AIDDepto, AData),
      ProcAdmJudFap(AIDEstab, AIDDepto, AData), IdEstab(AIDEstab), IdDepto(AIDDepto),
      FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto)), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposAliqGilRat::Tabela()
{
    using Eu = TTarvoESocialCamposAliqGilRat;
    static const TPropriedades tabela{
        {"ProcAdmJudRat", &Eu::ProcAdmJudRat},
        {"ProcAdmJudFap", &Eu::ProcAdmJudFap},
        {"AliqRat", &Eu::AliqRat, TFieldRelacionado("ALIQRAT")},
        {"Fap", &Eu::Fap, TFieldRelacionado("FAP")},
        {"AliqRatAjust", &Eu::AliqRatAjust},
        {"IdEstab", &Eu::IdEstab},
        {"IdDepto", &Eu::IdDepto},
    };
    return tabela;
}

std::string TTarvoESocialCamposAliqGilRat::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(WITH
SQL_ALIQ_RAT AS (%0:s),
SQL_FAP AS (SELECT COALESCE((%1:s), (%2:s)) FAP FROM RDB$DATABASE)
SELECT
  SQL_ALIQ_RAT.ALIQRAT,
  SQL_FAP.FAP
FROM SQL_ALIQ_RAT
LEFT JOIN SQL_FAP ON (1=1))";
    static constexpr std::string_view SQL_RAT_DEPTO = "SELECT COALESCE((%0:s), (%1:s)) ALIQRAT FROM RDB$DATABASE";
    static constexpr std::string_view VALOR = "SC00_FILIALCFG.INFORMACAO1";
    constexpr regras::TChaveDeConfiguracao RAT{90, 51, 3};

    const auto LAliqRat = FLugar.EhDepto
                              ? Format(SQL_RAT_DEPTO,
                                       regras::SqlCfgDoDono("SC00_DEPARTAMENTOCFG.INFORMACAO1",
                                                            regras::SC00_DEPARTAMENTOCFG, FLugar.Id, RAT, FData),
                                       regras::SqlCfgDoEstab(VALOR, FLugar, RAT, FData))
                              : regras::SqlCfgDoEstab("FIRST 1 SC00_FILIALCFG.INFORMACAO1 ALIQRAT", FLugar, RAT, FData);
    return Format(SQL, LAliqRat, regras::SqlCfgDoEstab(VALOR, FLugar, {90, 51, 1}, FData),
                  regras::SqlCfgDaEmpresa("SC00_EMPRESACFG.INFORMACAO1", FLugar, {90, 18, 1}, FData));
}

void TTarvoESocialCamposAliqGilRat::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ProcAdmJudRat.CarregarDados(AListaCamposModificados);
    ProcAdmJudFap.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
