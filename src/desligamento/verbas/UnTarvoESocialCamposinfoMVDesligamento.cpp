#include "desligamento/verbas/UnTarvoESocialCamposinfoMVDesligamento.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsDatas.h"
#include "regras/UnTarvoESocialCamposSqlRendimentos.h"

namespace tarvo::desligamento {

std::string SqlIndicadorDescontoINSS(std::int64_t AIdEmpregado)
{
    static constexpr std::string_view SQL =
        R"(SELECT COALESCE(EMPREGADOS.INDICADORDESCINSS, 0) AS INDICADORDESCINSS
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, AIdEmpregado);
}

std::string SqlRemunOutrEmpr(std::int64_t AIdEmpregado, TDateTime AData)
{
    static constexpr std::string_view SQL = R"(SELECT
  RENDIMENTOS.TPINSCRICAO,
  RENDIMENTOS.INSCRICAO,
  FP_ESOCIALTABELA.CODIGO,
  SUM(RENDIMENTOS.VALOR) AS VALOR
FROM RENDIMENTOS
INNER JOIN EMPREGADOS ON (RENDIMENTOS.COD_EMPRESA = EMPREGADOS.COD_EMPRESA
                      AND RENDIMENTOS.COD_EMPREGADO = EMPREGADOS.COD_EMPREGADO)
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = RENDIMENTOS.IDESOCIALTABELA)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
  AND RENDIMENTOS.DATA_INICIO <= %1:s
  AND ((RENDIMENTOS.DATA_FIM >= %2:s) OR (RENDIMENTOS.DATA_FIM IS NULL))
  %3:S
  AND RENDIMENTOS.TIPOREND = 'INSS'
  %4:s
GROUP BY RENDIMENTOS.TPINSCRICAO, RENDIMENTOS.INSCRICAO, FP_ESOCIALTABELA.CODIGO
ORDER BY RENDIMENTOS.TPINSCRICAO, RENDIMENTOS.INSCRICAO, FP_ESOCIALTABELA.CODIGO)";
    const auto LCondicaoDaOrdem =
        regras::CondicaoDaOrdemDeDesconto(TTarvoConsultasEmpregado::BuscarIDEmpresaDoEmpregado(AIdEmpregado),
                                          TTarvoConsultasEmpregado::BuscarCpfTrabalhador(AIdEmpregado));
    return Format(SQL, AIdEmpregado,
                  FormatarDataDB(TransformarData(AData, 0, TDiasTransformarData::UltimoDiaDoMes), true),
                  FormatarDataDB(TransformarData(AData, 0, TDiasTransformarData::PrimeiroDiaDoMes), true),
                  LCondicaoDaOrdem, regras::CondicaoDeOutroEmpregador("RENDIMENTOS.INSCRICAO", "EMPREGADOS.IDEMPRESA"));
}

void AlimentarRemunOutrEmpr(TTarvoESocialCamposremunOutrEmprDesligamento& ARemuneracao, const TOvraClientDataSet& ACds)
{
    ARemuneracao.tpInsc = ACds.FieldByName("TPINSCRICAO").AsString();
    ARemuneracao.nrInsc = ACds.FieldByName("INSCRICAO").AsString();
    ARemuneracao.codCateg = ACds.FieldByName("CODIGO").AsString();
    ARemuneracao.vlrRemunOE = ACds.FieldByName("VALOR").AsString();
}

} // namespace tarvo::desligamento
