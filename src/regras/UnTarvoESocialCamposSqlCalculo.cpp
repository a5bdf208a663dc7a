#include "regras/UnTarvoESocialCamposSqlCalculo.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

double SomarQuantias(double A, double B)
{
    const double LSoma = A + B;
    const double LExata = Currency(LSoma).ParaDouble();
    // The binary noise of a sum is at most a few units of the last place of its greatest term.
    const double LRuido = 4 * std::numeric_limits<double>::epsilon() * std::max(std::fabs(A), std::fabs(B));
    return std::fabs(LSoma - LExata) <= LRuido ? LExata : LSoma;
}

std::string UnirQuebraECalculo(std::string_view AColunas, std::string_view ADaQuebra, std::string_view ADoCalculo)
{
    static constexpr std::string_view SQL = R"(SELECT
  %0:s
FROM (
%1:s
UNION ALL
%2:s
  AND %3:s
)
GROUP BY %0:s)";
    return Format(SQL, AColunas, ADaQuebra, ADoCalculo, CALCULO_SEM_QUEBRA);
}

std::string SqlFeriasComplementares(std::int64_t AIdEmpregado, std::string_view ATipoFolha, TDateTime ADataInicio,
                                    TDateTime ADataFim)
{
    static constexpr std::string_view SQL = R"(SELECT
  TAB_VERBAS.IDVERBA,
  CALCCOMPLDET.BASE,
  CALCCOMPLDET.REFERENCIA,
  CALCCOMPLDET.VALOR
FROM CALCCOMPL
JOIN CALCCOMPLPER ON (CALCCOMPL.IDCALCCOMPL = CALCCOMPLPER.IDCALCCOMPL)
JOIN CALCCOMPLDET ON (CALCCOMPLPER.IDCALCCOMPLPER = CALCCOMPLDET.IDCALCCOMPLPER)
JOIN TAB_VERBAS ON (TAB_VERBAS.CODIGO = CALCCOMPLDET.COD_VERBA)
JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = CALCCOMPL.COD_EMPRESA
                AND EMPREGADOS.COD_EMPREGADO = CALCCOMPLDET.COD_EMPREGADO)
WHERE CALCCOMPL.TIPO = '04'
  AND EMPREGADOS.IDEMPREGADO = %0:d
  AND CALCCOMPLPER.TIPO = '%1:s'
  AND CALCCOMPLPER.DATA_INICIO = %2:s
  AND CALCCOMPLPER.DATA_FIM = %3:s
  AND TAB_VERBAS.FORMULA NOT LIKE '99%%'
ORDER BY CALCCOMPLDET.IDCALCCOMPLDET, TAB_VERBAS.IDVERBA)";
    return Format(SQL, AIdEmpregado, ATipoFolha, FormatarDataDB(ADataInicio, true), FormatarDataDB(ADataFim, true));
}

} // namespace tarvo::regras
