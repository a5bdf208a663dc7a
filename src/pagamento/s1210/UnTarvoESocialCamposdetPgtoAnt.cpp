#include "pagamento/s1210/UnTarvoESocialCamposdetPgtoAnt.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"

namespace tarvo::pagamento {

TTarvoESocialCamposdetPgtoAnt::TTarvoESocialCamposdetPgtoAnt(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{768C0B91-2531-4B25-B13A-62428F298DC3}"), FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposdetPgtoAnt::Tabela()
{
    using Eu = TTarvoESocialCamposdetPgtoAnt;
    static const TPropriedades tabela{
        {"codCateg", &Eu::codCateg},
        {"InfoPgtoAnt", &Eu::InfoPgtoAnt},
    };
    return tabela;
}

void TTarvoESocialCamposdetPgtoAnt::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarListaInfoPagtoAnt(AListaCamposModificados);
}

std::string TTarvoESocialCamposdetPgtoAnt::BuscarListaIdEmpregadosPorCategoria() const
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.IDEMPREGADO
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON ( FP_ESOCIALTABELA.IDESOCIALTABELA=EMPREGADOS.IDCATEGORIAESOCIAL AND FP_ESOCIALTABELA.TABELA = 1)
WHERE FP_ESOCIALTABELA.CODIGO STARTING WITH '%0:d'
  %1:s
%2:s)";
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(Format(
        SQL, codCateg, FormatarListaParaClausulaIN("EMPREGADOS", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " AND "),
        OrdemDaChave("EMPREGADOS.IDEMPREGADO")));
    return LCds->IsEmpty() ? "0" : CriarListaDoClientDataset(*LCds, "IDEMPREGADO");
}

namespace {

/// A branch: what it reads (%0), what it takes (%1) and of which codes of income tax (%2). The sign of a discount
/// counts in the value and not in the test of the group: a code is dropped by its plain sum; meant.
constexpr std::string_view RAMO_ANTERIOR = R"(  SELECT
    FP_ESOCIALTABELA.CODIGO TPBCIRRF,
    SUM(IIF(TAB_VERBAS.TIPO = '2' AND FP_ESOCIALTABELA.CODIGO IN ('15', '11'), - CALCULO.VALOR, CALCULO.VALOR)) VALOR
  %0:s
  JOIN TAB_VERBAS ON (TAB_VERBAS.CODIGO = CALCULO.COD_VERBA)
  JOIN FP_ESOCIALINCIDIRRF ON (FP_ESOCIALINCIDIRRF.IDVERBA = TAB_VERBAS.IDVERBA)
  JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_ESOCIALINCIDIRRF.IDESOCIALTABELA)
  %3:s
    AND CALCULO.DATA_PAGTO = %4:s
    AND %1:s
    AND %2:s
  GROUP BY FP_ESOCIALTABELA.CODIGO
  HAVING SUM(CALCULO.VALOR) > 0)";

// Income of earlier years that was accumulated is reported by codes of its own.
constexpr std::string_view CODIGOS_ACUMULADOS = "FP_ESOCIALTABELA.CODIGO IN ('15', '35', '44','55')";
constexpr std::string_view OUTROS_CODIGOS = R"(FP_ESOCIALTABELA.CODIGO NOT IN ('15', '35', '44','55')
    AND FP_ESOCIALTABELA.CODIGO NOT LIKE '8%'
    AND FP_ESOCIALTABELA.CODIGO NOT LIKE '9%')";

constexpr std::string_view FILTRO_COMPLEMENTAR = R"(CALCULO.SUBTIPO = 4
    AND EXTRACT(YEAR FROM CALCULO.DATA_INICIO)%0:sEXTRACT(YEAR FROM CALCULO.DATA_PAGTO)
    AND CALCCOMPL.FORMATRIBUTACAO = 2
    AND %1:s)";
constexpr std::string_view FILTRO_NORMAL = R"(CALCULO.DATA_INICIO < %0:s
    AND CALCULO.TIPO IN ('01', '02', '03', '05', '06', '09')
    AND CALCULO.SUBTIPO = 0)";
constexpr std::string_view FILTRO_RESCISAO = "CALCULO.TIPO = '05' AND CALCULO.SUBTIPO = 2";

} // namespace

// UNION, not UNION ALL: two branches with one code and one value count once; meant.
static constexpr std::string_view SQL_PAGAMENTOS_ANTERIORES = R"(SELECT TPBCIRRF, SUM(VALOR) AS VALOR
FROM (
%0:s
  UNION
%1:s
  UNION
%2:s
  UNION
%3:s)
GROUP BY TPBCIRRF
ORDER BY TPBCIRRF)";

void TTarvoESocialCamposdetPgtoAnt::CarregarListaInfoPagtoAnt(const TListaCamposModificados* AListaCamposModificados)
{
    const auto LEmpregados =
        FormatarListaParaClausulaIN("CALCULO", "IDEMPREGADO", BuscarListaIdEmpregadosPorCategoria(), " WHERE ");
    const auto LPagto = FormatarDataDB(FInfoBind.DataPagto, true);
    const auto LVigencia = FormatarDataDB(FInfoBind.DataInicioVigencia, true);
    const auto LAnterior = Format(COMPLEMENTAR_ANTERIOR, LVigencia);
    const auto Ramo = [&](std::string_view AOrigem, const std::string& AFiltro, std::string_view ACodigos) {
        return Format(RAMO_ANTERIOR, AOrigem, AFiltro, ACodigos, LEmpregados, LPagto);
    };
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL_PAGAMENTOS_ANTERIORES,
               Ramo(CALCULO_DO_COMPLEMENTAR, Format(FILTRO_COMPLEMENTAR, "<", LAnterior), CODIGOS_ACUMULADOS),
               Ramo(CALCULO_DO_COMPLEMENTAR, Format(FILTRO_COMPLEMENTAR, "=", LAnterior), OUTROS_CODIGOS),
               Ramo("FROM CALCULO", Format(FILTRO_NORMAL, LVigencia), OUTROS_CODIGOS),
               Ramo("FROM CALCULO", std::string(FILTRO_RESCISAO), OUTROS_CODIGOS)));
    for (; !LCds->Eof(); LCds->Next()) {
        auto LInfo = std::make_unique<TTarvoESocialCamposInfoPgtoAnt>(FInfoBind.IdEmpregado);
        LInfo->tpBcIRRF = LCds->FieldByName("TPBCIRRF").AsString();
        LInfo->vrBcIRRF = LCds->FieldByName("VALOR").AsFloat();
        LInfo->CarregarDados(AListaCamposModificados);
        InfoPgtoAnt.push_back(std::move(LInfo));
    }
}

} // namespace tarvo::pagamento
