#include "remuneracao/s1200/UnTarvoESocialCamposInfoMVS1200.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"
#include "regras/UnTarvoESocialCamposSqlRendimentos.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposInfoMVS1200::TTarvoESocialCamposInfoMVS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{F973BA99-4837-456C-9BBA-4D32C02DC035}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposInfoMVS1200::Tabela()
{
    using Eu = TTarvoESocialCamposInfoMVS1200;
    static const TPropriedades tabela{
        {"indMV", &Eu::indMV, TFieldRelacionado("INDICADORDESCINSS")},
        {"remunOutrEmpr", &Eu::remunOutrEmpr},
        {"PossuiInformacao", &Eu::PossuiInformacao},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoMVS1200::BuscarSQLDados()
{
    // A sum of nothing is null and compares as no INSS withheld.
    static constexpr std::string_view SQL = R"(EXECUTE BLOCK
RETURNS (INDICADORDESCINSS INTEGER)
AS
  DECLARE VARIABLE CONTADOR INTEGER;
  DECLARE VARIABLE VALORINSS DOUBLE PRECISION;
BEGIN
  SELECT FIRST 1 EMPREGADOS.INDICADORDESCINSS
  FROM EMPREGADOS
  WHERE EMPREGADOS.CPF = '%0:S'
    AND EMPREGADOS.IDEMPRESA = %1:D
    AND(EMPREGADOS.DATA_DEMISSAO >= %2:S OR EMPREGADOS.DATA_DEMISSAO IS NULL)
    AND EMPREGADOS.INDICADORDESCINSS IS NOT NULL
  ORDER BY EMPREGADOS.INDICADORDESCINSS DESC
  INTO :INDICADORDESCINSS;

  IF (INDICADORDESCINSS > 0) THEN
  BEGIN
    SUSPEND;
    EXIT;
  END

  SELECT COUNT(FP_RPAOUTROSREND.IDRPAOUTROSREND) AS CONTADOR
  FROM FP_RPAOUTROSREND
  JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = FP_RPAOUTROSREND.IDPRESTSERVICO)
  LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = PREST_SERVICO.IDCATEGORIAESOCIAL
                             AND FP_ESOCIALTABELA.TABELA = 1)
  WHERE FP_RPAOUTROSREND.DATAPAGTO BETWEEN %2:S AND %3:S
    AND PREST_SERVICO.CPF = REPLACE(REPLACE('%0:S', '.', ''), '-', '')
  INTO :CONTADOR;

  SELECT SUM(RPAVALOR.VALOR)
  FROM RPA
  JOIN RPAVALOR ON (RPAVALOR.IDRPA = RPA.IDRPA)
  JOIN RPATPVALOR ON (RPATPVALOR.IDRPATPVALOR = RPAVALOR.IDRPATPVALOR)
  JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = RPA.IDPRESTSERVICO)
  JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = RPA.IDFILIAL)
  WHERE RPA.DATAPAGTO BETWEEN %2:S AND %3:S
    AND RPATPVALOR.NOME = 'VLRINSS'
    AND SC00_FILIAL.IDEMPRESA = %1:D
    AND PREST_SERVICO.CPF = REPLACE(REPLACE('%0:S', '.', ''), '-', '')
  INTO :VALORINSS;

  IF (CONTADOR = 1) THEN
    INDICADORDESCINSS = IIF(VALORINSS > 0, 1, 0);
  ELSE
    INDICADORDESCINSS = IIF(VALORINSS > 0, 2, 3);
  SUSPEND;
END)";
    return Format(SQL, FInfoBind.Cpf(), FInfoBind.IdEmpresa(), FormatarDataDB(FInfoBind.DataInicio(), true),
                  FormatarDataDB(FInfoBind.DataFim(), true));
}

void TTarvoESocialCamposInfoMVS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosremunOutrEmpr();
}

std::string TTarvoESocialCamposInfoMVS1200::SqlRemunOutrEmpr() const
{
    // The newest receipt of the month at this employer: of its own other incomes only those of origin 2 count, of
    // those of earlier receipts all. Without a receipt the second part is empty.
    static constexpr std::string_view SQL = R"(WITH SQLRPA AS (
  SELECT MAX(RPA.IDRPA) as TOPIDRPA
  FROM RPA
  JOIN PREST_SERVICO on (RPA.idprestservico = PREST_SERVICO.idprestservico)
  JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = RPA.IDFILIAL)
  WHERE RPA.DATAPAGTO BETWEEN %1:s AND %2:s
    and PREST_SERVICO.CPF = REPLACE(REPLACE('%0:S', '.',''),'-','')
    AND IDEMPRESA = %3:d)
SELECT DISTINCT
  RENDIMENTOS.TPINSCRICAO,
  RENDIMENTOS.INSCRICAO,
  COALESCE(FP_ESOCIALTABELA.CODIGO,-2) AS CODIGO,
  RENDIMENTOS.VALOR
FROM RENDIMENTOS
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = RENDIMENTOS.IDESOCIALTABELA
                           AND FP_ESOCIALTABELA.TABELA = 1)
JOIN EMPREGADOS ON (RENDIMENTOS.COD_EMPRESA = EMPREGADOS.COD_EMPRESA
                AND RENDIMENTOS.COD_EMPREGADO = EMPREGADOS.COD_EMPREGADO)
WHERE EMPREGADOS.IDEMPRESA = %3:d
  AND (RENDIMENTOS.DATA_INICIO <= %2:S)
  AND ((RENDIMENTOS.DATA_FIM >=%1:S) OR (RENDIMENTOS.DATA_FIM IS NULL))
  AND EMPREGADOS.CPF = '%0:S'
  AND RENDIMENTOS.TIPOREND = 'INSS'
  %4:S
  %6:s
  AND RENDIMENTOS.TIPOFOLHA %5:s '03'
UNION ALL
SELECT
  FP_RPAOUTROSREND.TPINSCRICAO,
  FP_RPAOUTROSREND.INSCRICAO,
  COALESCE(FP_ESOCIALTABELA.CODIGO,-2) AS CODIGO,
  FP_RPAOUTROSREND.VALOR
FROM FP_RPAOUTROSREND
JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = FP_RPAOUTROSREND.IDPRESTSERVICO)
JOIN SQLRPA ON (1 = 1)
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_RPAOUTROSREND.IDESOCIALTABELA
                           AND FP_ESOCIALTABELA.TABELA = 1)
WHERE FP_RPAOUTROSREND.DATAPAGTO BETWEEN %1:s AND %2:s
  AND PREST_SERVICO.CPF = REPLACE(REPLACE('%0:S', '.',''),'-','')
  %7:s
  AND (FP_RPAOUTROSREND.IDRPA < SQLRPA.TOPIDRPA
       OR (FP_RPAOUTROSREND.IDRPA = SQLRPA.TOPIDRPA AND FP_RPAOUTROSREND.ORIGEMRENDIMENTO = 2)))";
    // One row for an employer and a category, whichever source it comes from.
    static constexpr std::string_view SQL_GERAL = R"(SELECT
  GERAL.TPINSCRICAO,
  GERAL.INSCRICAO,
  GERAL.CODIGO,
  SUM(GERAL.VALOR) AS VALOR
FROM ( %0:s ) AS GERAL
GROUP BY GERAL.TPINSCRICAO, GERAL.INSCRICAO, GERAL.CODIGO
ORDER BY GERAL.TPINSCRICAO, GERAL.INSCRICAO, GERAL.CODIGO)";
    const auto LIdEmpresa = FInfoBind.IdEmpresa();
    return Format(SQL_GERAL,
                  Format(SQL, FInfoBind.Cpf(), FormatarDataDB(FInfoBind.DataInicio(), true),
                         FormatarDataDB(FInfoBind.DataFim(), true), LIdEmpresa,
                         regras::CondicaoDaOrdemDeDesconto(LIdEmpresa, FInfoBind.Cpf()),
                         FInfoBind.IndApuracao() == tpIndApuracao::Anual ? "=" : "<>",
                         regras::CondicaoDeOutroEmpregador("RENDIMENTOS.INSCRICAO", "EMPREGADOS.IDEMPRESA"),
                         regras::CondicaoDeOutroEmpregador("FP_RPAOUTROSREND.INSCRICAO", IntToStr(LIdEmpresa))));
}

void TTarvoESocialCamposInfoMVS1200::CarregarDadosremunOutrEmpr()
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(SqlRemunOutrEmpr());
    for (; !LCds->Eof(); LCds->Next()) {
        auto LRemuneracao = std::make_unique<TTarvoESocialCamposRemunOutrEmprS1200>();
        LRemuneracao->tpInsc = LCds->FieldByName("TPINSCRICAO").AsString();
        LRemuneracao->nrInsc = LCds->FieldByName("INSCRICAO").AsString();
        LRemuneracao->codCateg = LCds->FieldByName("CODIGO").AsInteger();
        // A binary sum would hang on the order of its rows.
        LRemuneracao->vlrRemunOE = regras::SomarQuantias(LCds->FieldByName("VALOR").AsFloat(), 0);
        remunOutrEmpr.push_back(std::move(LRemuneracao));
    }
}

} // namespace tarvo::remuneracao
