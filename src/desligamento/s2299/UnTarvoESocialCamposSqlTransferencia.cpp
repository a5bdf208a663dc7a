#include "desligamento/s2299/UnTarvoESocialCamposSqlTransferencia.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::desligamento {

std::string SqlTransferencia(std::int64_t AIdEmpregado, bool AComTipo, std::string_view ACondicaoDoMotivo)
{
    static constexpr std::string_view RAMO = R"(SELECT
  TRANSF_EMPREG.MOTIVOESOCIAL,
  %1:s,
  TRANSF_EMPREG.IDTRANSF_EMPREG
FROM TRANSF_EMPREG
INNER JOIN TRANSF_EMPREGDET ON (TRANSF_EMPREGDET.IDTRANSF_EMPREG = TRANSF_EMPREG.IDTRANSF_EMPREG)
INNER JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = TRANSF_EMPREG.COD_EMPRESAORIGEM
                      AND EMPREGADOS.COD_EMPREGADO = TRANSF_EMPREGDET.COD_EMPREGADOORIGEM)%2:s
WHERE EMPREGADOS.IDEMPREGADO = %0:d
  AND TRANSF_EMPREG.MOTIVO = %3:d
  AND %4:s)";
    static constexpr std::string_view SQL = R"(SELECT
  %2:s
FROM (
%0:s
UNION ALL
%1:s
)
GROUP BY %2:s
ORDER BY MIN(IDTRANSF_EMPREG), MIN(IDEMPRESA))";
    return Format(SQL,
                  Format(RAMO, AIdEmpregado,
                         AComTipo
                             ? "SC00_EMPRESA.CNPJ AS INSCRICAO,\n  SC00_EMPRESA.TPINSCRICAO,\n  SC00_EMPRESA.IDEMPRESA"
                             : "SC00_EMPRESA.CNPJ AS INSCRICAO,\n  SC00_EMPRESA.IDEMPRESA",
                         "\nINNER JOIN SC00_EMPRESA ON (TRANSF_EMPREG.COD_EMPRESADESTINO = SC00_EMPRESA.EMPRESA)", 1,
                         ACondicaoDoMotivo),
                  Format(RAMO, AIdEmpregado,
                         AComTipo ? "TRANSF_EMPREG.INSCRICAO,\n  TRANSF_EMPREG.TPINSCRICAO,\n  NULL AS IDEMPRESA"
                                  : "TRANSF_EMPREG.INSCRICAO,\n  NULL AS IDEMPRESA",
                         "", 3, ACondicaoDoMotivo),
                  AComTipo ? "MOTIVOESOCIAL, INSCRICAO, TPINSCRICAO" : "MOTIVOESOCIAL, INSCRICAO");
}

} // namespace tarvo::desligamento
