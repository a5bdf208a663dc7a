#include "pagamento/s1210/UnTarvoESocialCamposideBenef.h"

#include <array>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"
#include "regras/UnTarvoESocialCamposSqlCategoria.h"

namespace tarvo::pagamento {

TTarvoESocialCamposideBenef::TTarvoESocialCamposideBenef(TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{3E457190-75F2-454B-B5CA-3A9BD5407AF3}"), cpfBenef(AInfoBind.Cpf), deps(AInfoBind),
      FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposideBenef::Tabela()
{
    using Eu = TTarvoESocialCamposideBenef;
    static const TPropriedades tabela{
        {"cpfBenef", &Eu::cpfBenef},
        {"deps", &Eu::deps},
        {"infoPgto", &Eu::infoPgto},
    };
    return tabela;
}

void TTarvoESocialCamposideBenef::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    // Before the payment dates, which rewrite the list of contracts.
    deps.CarregarDados(AListaCamposModificados);
    CarregarListaInfoPgto(AListaCamposModificados);
}

namespace {

/// Which calculations a branch takes and what kind of payment they are. %0:s is the date of change of layout, %1:s and
/// %2:s the period.
struct TRamoDePagamento {
    std::string_view TpPgto;
    std::string_view Origem;
    std::string_view Filtro;
};

// The date of change of layout is tested against the competence in some branches and against the payment date in
// others, and the dismissal against the calculation's own period in the first and against the reported period in the
// others. Both differences are meant.
constexpr std::string_view TPPGTO_NORMAL = R"(IIF(CALCULO.DATA_INICIO >= %0:s,
    IIF(CALCULO.TIPO = '04', 7,
      IIF(SQL_CATEGORIA.DATA_DEMISSAO BETWEEN CALCULO.DATA_INICIO AND CALCULO.DATA_FIM, SQL_CATEGORIA.CATEG, 1)),
    9))";
constexpr std::string_view TPPGTO_ADIANTAMENTO = R"(IIF(CALCULO.DATA_INICIO >= %0:s,
    IIF((SQL_CATEGORIA.DATA_DEMISSAO BETWEEN %1:s AND %2:s), SQL_CATEGORIA.CATEG, 1),
    9))";
constexpr std::string_view TPPGTO_DECIMO_TERCEIRO = "IIF(CALCULO.DATA_INICIO >= %0:s, 1, 9)";
constexpr std::string_view TPPGTO_PARTICIPACAO = "IIF(CALCULO.DATA_PAGTO >= %0:s, 1, 9)";
constexpr std::string_view TPPGTO_COMPLEMENTAR = "IIF(CALCULO.DATA_INICIO < %0:s, 9, 1)";
constexpr std::string_view TPPGTO_COMPLEMENTAR_ACORDO = R"(IIF(CALCULO.DATA_INICIO >= %0:s,
    IIF((SQL_CATEGORIA.DATA_DEMISSAO BETWEEN %1:s AND %2:s)
      AND (FP_INFOGFIP650660.DATAOCORRENCIA BETWEEN %1:s AND %2:s), SQL_CATEGORIA.CATEG, 1),
    9))";
constexpr std::string_view TPPGTO_RESCISAO_ACORDO = R"(IIF(CALCULO.DATA_PAGTO >= %0:s,
    IIF((SQL_CATEGORIA.DATA_DEMISSAO BETWEEN %1:s AND %2:s), SQL_CATEGORIA.CATEG, 1),
    9))";
constexpr std::string_view TPPGTO_RESCISAO = "IIF(CALCULO.DATA_PAGTO >= %0:s, SQL_CATEGORIA.CATEG, 9)";

std::string UnirRamos(std::string_view AListaIdsEmpregado, std::string_view AVigencia, std::string_view AInicio,
                      std::string_view AFim)
{
    static constexpr std::string_view RAMO = R"(SELECT
  CALCULO.DATA_PAGTO,
  CALCULO.TIPO,
  %0:s AS TPPAGTO,
  LIST(DISTINCT CAST(CALCULO.IDEMPREGADO AS INTEGER)) LISTA
%1:s
JOIN SQL_CATEGORIA ON (SQL_CATEGORIA.IDEMPREGADO = CALCULO.IDEMPREGADO)
WHERE CALCULO.IDEMPREGADO IN (%3:S)
  AND CALCULO.DATA_PAGTO BETWEEN %4:S AND %5:S
  AND %2:s
GROUP BY CALCULO.DATA_PAGTO, CALCULO.TIPO, TPPAGTO
UNION
)";
    static const std::string COMPLEMENTAR(CALCULO_DO_COMPLEMENTAR);
    static const std::string COMPLEMENTAR_EMPREGADO =
        COMPLEMENTAR + "\nJOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = CALCULO.IDEMPREGADO)";
    static const std::string COMPLEMENTAR_ACORDO = COMPLEMENTAR + "\n" + std::string(regras::JUNCAO_ACORDO);
    static const std::string RESCISAO = "FROM CALCULO\nJOIN " + std::string(regras::RESC_COMPL_DO_CALCULO);
    static const std::array<TRamoDePagamento, 8> RAMOS{{
        {TPPGTO_NORMAL, "FROM CALCULO", "CALCULO.TIPO IN ('01', '04', '05') AND CALCULO.SUBTIPO = 0"},
        {TPPGTO_ADIANTAMENTO, "FROM CALCULO", "CALCULO.TIPO IN ('02', '06') AND CALCULO.SUBTIPO = 0"},
        {TPPGTO_DECIMO_TERCEIRO, "FROM CALCULO", "CALCULO.TIPO IN ('03') AND CALCULO.SUBTIPO = 0"},
        {TPPGTO_PARTICIPACAO, "FROM CALCULO", "CALCULO.TIPO = '09' AND CALCULO.SUBTIPO = 0"},
        {TPPGTO_COMPLEMENTAR, COMPLEMENTAR_EMPREGADO,
         "(CALCULO.TIPO = '01' OR CALCULO.TIPO = '03') AND CALCULO.SUBTIPO = 4 AND CALCCOMPL.TIPOCALCULO <> 1"},
        {TPPGTO_COMPLEMENTAR_ACORDO, COMPLEMENTAR_ACORDO,
         "(CALCULO.TIPO = '01' OR CALCULO.TIPO = '03') AND CALCULO.SUBTIPO = 4 AND CALCCOMPL.TIPOCALCULO = 1"},
        {TPPGTO_RESCISAO_ACORDO, RESCISAO,
         "CALCULO.TIPO = '05' AND CALCULO.SUBTIPO = 2 AND RESC_COMPL.IDINFOGFIP650660 IS NOT NULL"},
        {TPPGTO_RESCISAO, RESCISAO,
         "CALCULO.TIPO = '05' AND CALCULO.SUBTIPO = 2 AND RESC_COMPL.IDINFOGFIP650660 IS NULL"},
    }};
    std::string LSql;
    for (const auto& LRamo : RAMOS)
        LSql += Format(RAMO, Format(LRamo.TpPgto, AVigencia, AInicio, AFim), LRamo.Origem, LRamo.Filtro,
                       AListaIdsEmpregado, AInicio, AFim);
    return LSql;
}

} // namespace

// The category class is 3 for the listed categories without a bond and 2 for all others, none included.
// The lists of contracts are compared as texts, since an engine may tell two blobs of one text apart; each is in the
// order of the ids, as LIST(DISTINCT ...) sorts what it takes. The kinds may stand in any order: an IN takes them.
static constexpr std::string_view SQL_DATAS_DE_PAGAMENTO = R"(WITH SQL_CATEGORIA AS (
  SELECT
    IIF(FP_ESOCIALTABELA.CODIGO IN (%7:S),3,2) CATEG,
    EMPREGADOS.IDEMPREGADO,
    EMPREGADOS.DATA_DEMISSAO
  FROM EMPREGADOS
  LEFT JOIN FP_ESOCIALTABELA ON (EMPREGADOS.IDCATEGORIAESOCIAL = FP_ESOCIALTABELA.IDESOCIALTABELA)
  WHERE EMPREGADOS.IDEMPREGADO IN (%0:S))
SELECT DISTINCT DATA_PAGTO, LIST(TIPO) AS TIPO, TPPAGTO, CAST(LISTA AS VARCHAR(100)) AS LISTA
FROM (
%6:s
SELECT
  RPA.DATAPAGTO AS DATA_PAGTO,
  '0' AS TIPO,
  1 AS TPPAGTO,
  0 AS LISTA
FROM RPA
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL=RPA.IDFILIAL)
WHERE SC00_FILIAL.IDEMPRESA = %5:D
  AND ( RPA.IDPRESTSERVICO IN (%1:S))
  AND RPA.DATAPAGTO BETWEEN %2:S AND %3:S)
GROUP BY DATA_PAGTO, TPPAGTO, CAST(LISTA AS VARCHAR(100))
ORDER BY 1, 3, 4)";

std::string TTarvoESocialCamposideBenef::BuscarSqlDatasDePagamento() const
{
    const auto LInicio = FormatarDataDB(FInfoBind.DataInicio, true);
    const auto LFim = FormatarDataDB(FInfoBind.DataFim, true);
    const auto LVigencia = FormatarDataDB(FInfoBind.DataInicioVigencia, true);
    return Format(SQL_DATAS_DE_PAGAMENTO, FInfoBind.ListaIdsEmpregado, FInfoBind.ListaIdsPrestServico, LInicio, LFim,
                  LVigencia, FInfoBind.IdEmpresa, UnirRamos(FInfoBind.ListaIdsEmpregado, LVigencia, LInicio, LFim),
                  regras::CATEGORIAS_SEM_VINCULO);
}

void TTarvoESocialCamposideBenef::CarregarListaInfoPgto(const TListaCamposModificados* AListaCamposModificados)
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(BuscarSqlDatasDePagamento());
    for (; !LCds->Eof(); LCds->Next()) {
        FInfoBind.ListaIdsEmpregado = LCds->FieldByName("LISTA").AsString();
        FInfoBind.DataPagto = LCds->FieldByName("DATA_PAGTO").AsDateTime();
        FInfoBind.ListaTipoFolhaDetPgto = LCds->FieldByName("TIPO").AsString();
        auto LInfoPgto = std::make_unique<TTarvoESocialCamposinfoPgto>(FInfoBind);
        LInfoPgto->tpPgto = LCds->FieldByName("TPPAGTO").AsInteger();
        LInfoPgto->CarregarDados(AListaCamposModificados);
        if (!LInfoPgto->detPgtoFl.empty() || !LInfoPgto->detPgtoFer.empty() || !LInfoPgto->detPgtoAnt.empty())
            infoPgto.push_back(std::move(LInfoPgto));
    }
}

} // namespace tarvo::pagamento
