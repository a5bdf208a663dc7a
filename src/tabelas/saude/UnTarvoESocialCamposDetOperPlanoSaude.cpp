#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsDatas.h"

namespace tarvo::tabelas {

std::string SqlOperadorasDaVerba(std::int64_t AIdVerba, TOperadorasDaVerba AOperadoras)
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT
  PSAUDE_OPER.IDPSAUDE_OPER,
  PSAUDE_OPER.CNPJ AS CNPJOPER,
  PSAUDE_OPER.ANS AS REGANS
FROM TAB_VERBAS
JOIN PSAUDE_VERBAS ON (TAB_VERBAS.IDVERBA = PSAUDE_VERBAS.IDVERBA)
JOIN PSAUDE_OPER ON (PSAUDE_VERBAS.IDPSAUDE_OPER = PSAUDE_OPER.IDPSAUDE_OPER)
WHERE TAB_VERBAS.IDVERBA = %0:d%1:s
ORDER BY PSAUDE_OPER.IDPSAUDE_OPER)";
    return Format(SQL, AIdVerba, AOperadoras == TOperadorasDaVerba::SemTipo2 ? "\n  AND PSAUDE_OPER.TIPO <> 2" : "");
}

std::string SqlPlanosDosDependentes(std::string_view ACondicaoDoEmpregado, TDateTime ADataInicio, TDateTime ADataFim,
                                    std::int64_t AIdOperadora)
{
    // The sum keeps the engine from walking the whole table by its key to save the sort of a handful of rows.
    static constexpr std::string_view SQL = R"(SELECT FP_PSAUDEVLRMESDEP.IDPSAUDEVLRMESDEP
FROM FP_PSAUDEVLRMESDEP
WHERE FP_PSAUDEVLRMESDEP.IDEMPREGADO %0:s
  AND FP_PSAUDEVLRMESDEP.DATAINICIO <= %2:s
  AND (FP_PSAUDEVLRMESDEP.DATAFIM >= %1:s OR FP_PSAUDEVLRMESDEP.DATAFIM IS NULL )
  AND FP_PSAUDEVLRMESDEP.IDPSAUDEOPER = %3:d
ORDER BY FP_PSAUDEVLRMESDEP.IDPSAUDEVLRMESDEP + 0)";
    return Format(SQL, ACondicaoDoEmpregado, FormatarDataDB(ADataInicio, true), FormatarDataDB(ADataFim, true),
                  AIdOperadora);
}

long double ProporcionalizarPelosDias(long double AValor, TDateTime ADataInicio, TDateTime ADataFim,
                                      std::int32_t ADiasTrabalhados)
{
    if (ADiasTrabalhados == 0)
        return AValor;
    const double LDias = ADataFim - (ADataFim > ADataInicio ? ADataInicio : PrimeiroDiaDoMes(ADataFim)) + 1;
    return LDias > 0 ? AValor / LDias * ADiasTrabalhados : AValor;
}

} // namespace tarvo::tabelas
