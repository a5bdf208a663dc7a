#include "tabelas/s1005/UnTarvoESocialCamposProcAdmJudRat.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposProcAdmJudRat::TTarvoESocialCamposProcAdmJudRat(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                                   TDateTime AData)
    : TTarvoESocialCamposProcAdmJud("{81F49D09-D8D0-4992-8DE7-39C30C5E8B6D}", AIDEstab, AIDDepto, AData)
{}

std::string TTarvoESocialCamposProcAdmJudRat::BuscarSQLDados()
{
    constexpr regras::TChaveDeConfiguracao RAT{90, 51, 3};
    // The subject isn't selected here; meant.
    static constexpr std::string_view SQL_DEPTO = R"(WITH
SQL_FILIAL AS (%0:s),
SQL_DEPTO AS (%1:s)
SELECT
  COALESCE(SQL_DEPTO.TPPROCESSO,SQL_FILIAL.TPPROCESSO) TPPROCESSO,
  COALESCE(SQL_DEPTO.NUMERO,SQL_FILIAL.NUMERO) NUMERO,
  COALESCE(SQL_DEPTO.INDSUSPENSAO,SQL_FILIAL.INDSUSPENSAO) INDSUSPENSAO,
  COALESCE(SQL_DEPTO.IDSPPROC,SQL_FILIAL.IDSPPROC) IDSPPROC
FROM SQL_FILIAL
FULL JOIN SQL_DEPTO ON (1=1)
ORDER BY SQL_DEPTO.IDSPPROCDET, SQL_FILIAL.IDSPPROCDET)";
    static constexpr std::string_view DETALHE = "ES02_SPPROCDET.IDSPPROCDET,";
    const auto LDoEstab = regras::SqlCfgDoEstab("SC00_FILIALCFG.INFORMACAO2", FLugar, RAT, FData);
    if (!FLugar.EhDepto)
        return SqlProcesso("", LDoEstab) + "\nORDER BY ES02_SPPROCDET.IDSPPROCDET + 0";
    return Format(SQL_DEPTO, SqlProcesso(DETALHE, LDoEstab),
                  SqlProcesso(DETALHE, regras::SqlCfgDoDono("SC00_DEPARTAMENTOCFG.INFORMACAO2",
                                                            regras::SC00_DEPARTAMENTOCFG, FLugar.Id, RAT, FData)));
}

} // namespace tarvo::tabelas
