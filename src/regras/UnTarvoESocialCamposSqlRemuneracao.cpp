#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

std::string SqlExposicao(std::string_view AColunaOcorrencia, std::int64_t AIdEmpregado, TDateTime AData)
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  %2:s,
  FP_ESOCIALTABELA.CODIGO AS CODCATEG
FROM CARGOS
JOIN EMPREGADOS ON (CARGOS.IDEMPREGADO = EMPREGADOS.IDEMPREGADO)
JOIN FP_ESOCIALTABELA ON (EMPREGADOS.IDCATEGORIAESOCIAL = FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE CARGOS.IDEMPREGADO = %0:d
  AND CARGOS.DATA <= %1:s
ORDER BY CARGOS.DATA DESC, CARGOS.IDCARGOS)";
    return Format(SQL, AIdEmpregado, FormatarDataDB(AData, true), AColunaOcorrencia);
}

std::string SqlAcordo(std::int64_t AIdAcordo)
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_INFOGFIP650660.DATAOCORRENCIA,
  FP_INFOGFIP650660.DTEFACCONV,
  FP_INFOGFIP650660.DESCRICAO,
  FP_INFOGFIP650660.CARACTERISTICA
FROM FP_INFOGFIP650660
WHERE FP_INFOGFIP650660.IDINFOGFIP650660 = %0:d)";
    return Format(SQL, AIdAcordo);
}

std::string SqlConvocacao(std::int64_t AIdDetConvocacao)
{
    static constexpr std::string_view SQL = R"(SELECT FP_CONTRAINTERM.CODIGOESOCIAL
FROM FP_CONTRAINTERM
JOIN FP_DETCONVOCACAO ON (FP_CONTRAINTERM.IDCONTRAINTERM = FP_DETCONVOCACAO.IDCONTRAINTERM)
WHERE FP_DETCONVOCACAO.IDDETCONVOCACAO = %0:D)";
    return Format(SQL, AIdDetConvocacao);
}

} // namespace tarvo::regras
