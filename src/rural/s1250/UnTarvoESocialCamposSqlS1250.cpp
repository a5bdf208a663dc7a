#include "rural/s1250/UnTarvoESocialCamposSqlS1250.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::rural {

namespace {

constexpr std::string_view NOTAS = R"(FROM ES02_CLIFOR
JOIN CO01_PLANO ON (ES02_CLIFOR.IDCLIFOR = CO01_PLANO.IDCLIFOR)
JOIN ES02_ENTRADA ON (CO01_PLANO.IDPLANO = ES02_ENTRADA.IDPLANO))";

// An entry counts once for each of its details; meant.
constexpr std::string_view ITENS = R"(JOIN ES02_ENTRADADET ON (ES02_ENTRADADET.IDENTRADA = ES02_ENTRADA.IDENTRADA)
JOIN ES02_CFOP ON (ES02_CFOP.IDCFOP = ES02_ENTRADADET.IDCFOP))";

constexpr std::string_view MODELOS = "'07', '08', '09', '10', '11', '26', '21', '22' ";
constexpr std::string_view CFOPS = "'1.905', '1.949','1.904', '2.905', '2.949','2.904'";

std::string CondicaoDasNotas(const TComprasRurais& ACompras)
{
    static constexpr std::string_view SQL = R"(WHERE ES02_CLIFOR.PRODUTOR = 1
  AND ES02_CLIFOR.TPINSCRICAO = 2
  AND ES02_ENTRADA.IDFILIAL = %0:d
  AND ES02_ENTRADA.DATAENTRADA BETWEEN %1:s AND %2:s)";
    return Format(SQL, ACompras.IdFilial, FormatarDataDB(ACompras.DataInicio, true),
                  FormatarDataDB(ACompras.DataFim, true));
}

/// The conditions of the notes without what is no purchase of production, of one exemption.
std::string CondicaoDasCompras(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta,
                               std::string_view AModelos = MODELOS)
{
    static constexpr std::string_view SQL = R"(%0:s
  AND COALESCE(ES02_ENTRADA.PRODUCAOISENTA, 2) = %1:d
  AND ES02_ENTRADA.MODELO NOT IN (%2:s)
  AND SUBSTRING(ES02_CFOP.CFOP FROM 1 FOR 5) NOT IN (%3:s))";
    return Format(SQL, CondicaoDasNotas(ACompras), AProducaoIsenta, AModelos, CFOPS);
}

std::string ComprasDoBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta)
{
    return Format("%0:s\n%1:s\n%2:s", NOTAS, ITENS, CondicaoDasCompras(ACompras, AProducaoIsenta));
}

} // namespace

std::string SqlEstabelecimentoAdquirente(std::int64_t AIdFilial)
{
    static constexpr std::string_view SQL = R"(SELECT
  SC00_FILIAL.TPINSCRICAO,
  SC00_FILIAL.MATRICULACEI,
  SC00_FILIAL.MATRICULACAEPF,
  SC00_EMPRESA.TPINSCRICAO AS TPINSCREMPRESA,
  (IIF(TRIM(SC00_FILIAL.MATRICULACAEPF) <> '', SC00_FILIAL.MATRICULACAEPF, (IIF (TRIM(SC00_FILIAL.MATRICULACEI)<> '', SC00_FILIAL.MATRICULACEI, SC00_FILIAL.CNPJ)))) AS CNPJ
FROM SC00_FILIAL
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA)
WHERE SC00_FILIAL.IDFILIAL = %0:d;)";
    return Format(SQL, AIdFilial);
}

std::string ComprasDaFolha(const TComprasRurais& ACompras)
{
    static constexpr std::string_view SQL = R"(FROM PREST_SERVICO
JOIN MOV_PRESTSERV ON (PREST_SERVICO.CODIGO = MOV_PRESTSERV.COD_PRESTSERV)
JOIN SC00_EMPRESA ON (SC00_EMPRESA.EMPRESA = MOV_PRESTSERV.COD_EMPRESA)
JOIN SC00_FILIAL ON (SC00_FILIAL.IDEMPRESA = SC00_EMPRESA.IDEMPRESA AND SC00_FILIAL.FILIAL = MOV_PRESTSERV.COD_FILIAL)
WHERE SC00_FILIAL.IDFILIAL = %0:d
  AND PREST_SERVICO.TIPOINSCR = 'NIT'
  AND (PREST_SERVICO.CATEGORIA LIKE '00-Segurado Especial' OR PREST_SERVICO.CATEGORIA LIKE '99-Comercializacao de Producao Rural')
  AND MOV_PRESTSERV.DATA_MOVIMENTO <= %1:s
  AND (MOV_PRESTSERV.DATAFIMMOV >= %2:s OR MOV_PRESTSERV.DATAFIMMOV IS NULL))";
    return Format(SQL, ACompras.IdFilial, FormatarDataDB(ACompras.DataFim, true),
                  FormatarDataDB(ACompras.DataInicio, true));
}

std::string ComprasDaFolha(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta)
{
    static constexpr std::string_view SQL = R"(%0:s
  AND COALESCE(MOV_PRESTSERV.PRODUCAOISENTA, 2) = %1:d)";
    return Format(SQL, ComprasDaFolha(ACompras), AProducaoIsenta);
}

std::string SqlTpAquisBrenco(const TComprasRurais& ACompras)
{
    // Without the filters of the lower levels, so that a kind may come without producers; and grouped by the column
    // itself, so that no value and 2 are two rows of the same kind. Both meant.
    static constexpr std::string_view SQL = R"(SELECT
  SUM(ES02_ENTRADA.VLRCONTABIL) AS VALOR,
  COALESCE(ES02_ENTRADA.PRODUCAOISENTA,2) AS PRODUCAOISENTA
%0:s
%1:s
GROUP BY ES02_ENTRADA.PRODUCAOISENTA
ORDER BY ES02_ENTRADA.PRODUCAOISENTA)";
    return Format(SQL, NOTAS, CondicaoDasNotas(ACompras));
}

std::string SqlTotalBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta)
{
    static constexpr std::string_view SQL = R"(SELECT SUM(ES02_ENTRADA.VLRCONTABIL) AS VALOR
%0:s)";
    return Format(SQL, ComprasDoBrenco(ACompras, AProducaoIsenta));
}

std::string SqlProdutoresBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta)
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT ES02_CLIFOR.CNPJ
%0:s
ORDER BY ES02_CLIFOR.CNPJ)";
    return Format(SQL, ComprasDoBrenco(ACompras, AProducaoIsenta));
}

std::string SqlProdutorBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta, std::string_view AInscricao)
{
    static constexpr std::string_view SQL = R"(SELECT
  ES02_CLIFOR.CNPJ,
  ES02_CLIFOR.INDOPCCP,
  SUM(ES02_ENTRADA.VLRCONTABIL) AS VLRBRUTO
%0:s
  AND ES02_CLIFOR.CNPJ = %1:s
GROUP BY ES02_CLIFOR.CNPJ, ES02_CLIFOR.INDOPCCP
ORDER BY MIN(ES02_CLIFOR.IDCLIFOR))";
    return Format(SQL, ComprasDoBrenco(ACompras, AProducaoIsenta), QuotedStr(AInscricao));
}

std::string SqlRetencaoBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta, std::string_view AInscricao,
                              TFiltroDoModelo AFiltro)
{
    static constexpr std::string_view SQL = R"(SELECT
  SUM(COALESCE(TR04_IMPRETIDO.VLRIMPOSTO, 0)) VLRRETENCAO,
  AVG(COALESCE(TR04_IMPRETIDO.ALIQUOTA, 0)) ALIQUOTA
FROM ES02_ENTRADA
JOIN CO01_PLANO ON (CO01_PLANO.IDPLANO = ES02_ENTRADA.IDPLANO)
JOIN ES02_CLIFOR ON (ES02_CLIFOR.IDCLIFOR = CO01_PLANO.IDCLIFOR)
%0:s
JOIN CO01_DIARIO ON (ES02_ENTRADA.IDENTRADA = CO01_DIARIO.IDESCRITA AND CO01_DIARIO.ORIGEM = 2 AND CO01_DIARIO.ORIGEMESPECIE IN (1,11,51))
JOIN TR04_IMPRETIDO ON (CO01_DIARIO.IDDIARIO = TR04_IMPRETIDO.IDDIARIO)
%1:s
  AND ES02_CLIFOR.CNPJ = %2:s)";
    return Format(SQL, ITENS,
                  CondicaoDasCompras(ACompras, AProducaoIsenta, AFiltro == TFiltroDoModelo::Modelos ? MODELOS : CFOPS),
                  QuotedStr(AInscricao));
}

} // namespace tarvo::rural
