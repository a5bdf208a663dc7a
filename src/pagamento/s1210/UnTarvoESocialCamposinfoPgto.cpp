#include "pagamento/s1210/UnTarvoESocialCamposinfoPgto.h"

#include <algorithm>
#include <array>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"

namespace tarvo::pagamento {

namespace {

/// Kinds of payment that are reported as payroll; 5 and 6 never come out of the statement and are accepted all the same.
constexpr std::array TIPOS_DE_FOLHA{1, 2, 3, 5, 6};
constexpr std::int32_t PAGAMENTO_DE_FERIAS = 7;
constexpr std::int32_t PAGAMENTO_ANTERIOR = 9;

} // namespace

TTarvoESocialCamposinfoPgto::TTarvoESocialCamposinfoPgto(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{8501F1E3-F44E-4A0C-A76A-96FEAB8AE7D3}"), detPgtoBenPr(AInfoBind),
      IdePgtoExe(AInfoBind.IdEmpregado), FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposinfoPgto::Tabela()
{
    using Eu = TTarvoESocialCamposinfoPgto;
    static const TPropriedades tabela{
        {"dtPgto", &Eu::dtPgto},
        {"tpPgto", &Eu::tpPgto},
        {"indResBr", &Eu::indResBr},
        {"detPgtoFl", &Eu::detPgtoFl},
        {"detPgtoBenPr", &Eu::detPgtoBenPr},
        {"detPgtoFer", &Eu::detPgtoFer},
        {"detPgtoAnt", &Eu::detPgtoAnt},
        {"IdePgtoExe", &Eu::IdePgtoExe},
    };
    return tabela;
}

void TTarvoESocialCamposinfoPgto::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FListaCamposModificados = AListaCamposModificados;
    AlimentarPropriedadeDaTag();
    CarregarListadetPgtoFl();
    CarregarListadetPgtoFer();
    CarregarListadetPgtoAnt();
}

void TTarvoESocialCamposinfoPgto::AlimentarPropriedadeDaTag()
{
    dtPgto = FInfoBind.DataPagto;
    indResBr = tpSimNao::Sim;
}

void TTarvoESocialCamposinfoPgto::InicializarInfoBindAux()
{
    // The rest of it stays as the former detail left it; meant.
    static_cast<TS1210IOPDoDetalhe&>(FInfoBindAux) = FInfoBind;
    FInfoBindAux.CodigoCategoria = 0;
}

void TTarvoESocialCamposinfoPgto::CarregarListadetPgtoFl()
{
    if (std::find(TIPOS_DE_FOLHA.begin(), TIPOS_DE_FOLHA.end(), tpPgto) == TIPOS_DE_FOLHA.end())
        return;
    CarregarListadetPgtoFlEmpregados();
    if (FInfoBind.ListaIdsEmpregado == "0")
        CarregarListadetPgtoFlPrestServicos();
}

// One demonstrative per category. No contract comes twice; DISTINCT puts them in order, which an ordered derived table
// below a GROUP BY doesn't.
static constexpr std::string_view SQL_CATEGORIAS = R"(SELECT
  LIST(DISTINCT CAST(EMPREGADOS.IDEMPREGADO AS NUMERIC)) AS LISTA_EMPREGADOS,
  CAST(TRUNC(FP_ESOCIALTABELA.CODIGO) AS NUMERIC) AS COD_CATEG
FROM EMPREGADOS
INNER JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = EMPREGADOS.IDCATEGORIAESOCIAL)
WHERE EMPREGADOS.IDEMPRESA = %0:d
  %1:s
GROUP BY COD_CATEG
ORDER BY 2)";

// The calculations of the date, whatever the category: a calculation of another category finds no value in the
// detail's own queries and is dropped there. The kinds stand bare, as numbers, and the engine converts the column; both
// complementary branches leave them out, so each payment of the date tells those. Both are meant.
static constexpr std::string_view SQL_CALCULOS_DA_DATA = R"(SELECT
%6:s
FROM CALCULO
WHERE CALCULO.IDEMPREGADO IN (%0:S)
  AND CALCULO.DATA_PAGTO = %1:S
  AND CALCULO.TIPO IN (%2:S)
  AND CALCULO.SUBTIPO = 0
  AND CALCULO.DATA_INICIO >= %3:s
UNION
SELECT
%7:s
%4:s
LEFT JOIN FP_INFOGFIP650660 ON (FP_INFOGFIP650660.IDINFOGFIP650660 = CALCCOMPL.IDINFOGFIP650660)
WHERE CALCULO.IDEMPREGADO IN (%0:S)
  AND CALCULO.DATA_PAGTO = %1:S
  AND (CALCULO.TIPO = '01' OR CALCULO.TIPO = '03')
  AND CALCULO.SUBTIPO = 4
  AND ((CALCULO.DATA_INICIO >= %3:s) OR (CALCCOMPL.TIPOCALCULO = 1))
UNION
SELECT
%8:s
FROM CALCULO
LEFT JOIN %5:s
LEFT JOIN FP_INFOGFIP650660 ON (RESC_COMPL.IDINFOGFIP650660 = FP_INFOGFIP650660.IDINFOGFIP650660)
WHERE CALCULO.IDEMPREGADO IN (%0:S)
  AND CALCULO.TIPO = '05'
  AND CALCULO.DATA_PAGTO = %1:S
  AND CALCULO.SUBTIPO = 2
  AND CALCULO.DATA_INICIO >= %3:s
ORDER BY 1, 2, 3, 4, 5, 6, 7)";

static std::string ColunasDoCalculo(std::string_view ATipoCalcCompl, std::string_view ADataAcordo)
{
    static constexpr std::string_view COLUNAS = R"(  CALCULO.DATA_INICIO,
  CALCULO.DATA_PAGTO,
  CALCULO.TIPO,
  CALCULO.SUBTIPO,
  %0:s AS TIPOCALCCOMPL,
  CALCULO.IDDETCONVOCACAO,
  %1:s AS DATAACORDOCONVENCAO)";
    return Format(COLUNAS, ATipoCalcCompl, ADataAcordo);
}

void TTarvoESocialCamposinfoPgto::CarregarListadetPgtoFlEmpregados()
{
    const auto LCategorias = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL_CATEGORIAS, FInfoBind.IdEmpresa,
               FormatarListaParaClausulaIN("EMPREGADOS", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, "AND")));
    if (LCategorias->IsEmpty())
        return;
    const auto LCalculos = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL_CALCULOS_DA_DATA, FInfoBind.ListaIdsEmpregado, FormatarDataDB(FInfoBind.DataPagto, true),
               FInfoBind.ListaTipoFolhaDetPgto, FormatarDataDB(FInfoBind.DataInicioVigencia, true),
               CALCULO_DO_COMPLEMENTAR, regras::RESC_COMPL_DO_CALCULO, ColunasDoCalculo("0", "NULL"),
               ColunasDoCalculo("CALCCOMPL.TIPOCALCULO", "FP_INFOGFIP650660.DATAOCORRENCIA"),
               ColunasDoCalculo("0", "FP_INFOGFIP650660.DATAOCORRENCIA")));
    for (; !LCategorias->Eof(); LCategorias->Next()) {
        InicializarInfoBindAux();
        for (LCalculos->First(); !LCalculos->Eof(); LCalculos->Next()) {
            FInfoBindAux.DataInicio = LCalculos->FieldByName("DATA_INICIO").AsDateTime();
            FInfoBindAux.DataPagto = LCalculos->FieldByName("DATA_PAGTO").AsDateTime();
            FInfoBindAux.TipoFolha = BuscarTTipoFolha(LCalculos->FieldByName("TIPO").AsString());
            FInfoBindAux.SubTipoFolha = static_cast<std::int8_t>(LCalculos->FieldByName("SUBTIPO").AsInteger());
            FInfoBindAux.TipoFolhaCompl = LCalculos->FieldByName("TIPOCALCCOMPL").AsInteger();
            FInfoBindAux.IDIntermitente = StrToInt64Def(LCalculos->FieldByName("IDDETCONVOCACAO").AsString(), 0);
            FInfoBindAux.DataAcordoConvencao =
                StrToDateTimeDef(LCalculos->FieldByName("DATAACORDOCONVENCAO").AsString(), TDateTime());
            FInfoBindAux.TipoTrabalhador = TTipoTrabalhador::Empregado;
            FInfoBindAux.tpPgto = tpPgto;
            FInfoBindAux.ListaIdsEmpregado = LCategorias->FieldByName("LISTA_EMPREGADOS").AsString();
            FInfoBindAux.CodigoCategoria = LCategorias->FieldByName("COD_CATEG").AsInteger();
            auto LDetalhe = std::make_unique<TTarvoESocialCamposdetPgtoFl>(FInfoBindAux);
            LDetalhe->CarregarDados(FListaCamposModificados);
            if (LDetalhe->ValidouGeracao)
                detPgtoFl.push_back(std::move(LDetalhe));
        }
    }
}

static constexpr std::string_view SQL_RECIBOS_DA_DATA = R"(SELECT DISTINCT
  RPA.COMPETENCIA AS DATA_INICIO,
  RPA.DATAPAGTO AS DATA_PAGTO,
  RPA.NRRPA
FROM RPA
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL=RPA.IDFILIAL)
WHERE SC00_FILIAL.IDEMPRESA = %0:D
  %1:S
  AND RPA.DATAPAGTO = %2:S
  AND RPA.COMPETENCIA >= %3:S
ORDER BY RPA.COMPETENCIA, RPA.DATAPAGTO, RPA.NRRPA)";

void TTarvoESocialCamposinfoPgto::CarregarListadetPgtoFlPrestServicos()
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL_RECIBOS_DA_DATA, FInfoBind.IdEmpresa,
               FormatarListaParaClausulaIN("RPA", "IDPRESTSERVICO", FInfoBind.ListaIdsPrestServico, " AND "),
               FormatarDataDB(FInfoBind.DataPagto, true), FormatarDataDB(FInfoBind.DataInicioVigencia, true)));
    InicializarInfoBindAux();
    for (; !LCds->Eof(); LCds->Next()) {
        FInfoBindAux.DataInicio = LCds->FieldByName("DATA_INICIO").AsDateTime();
        FInfoBindAux.DataPagto = LCds->FieldByName("DATA_PAGTO").AsDateTime();
        FInfoBindAux.TipoFolha = TTiposFolha::Rpa;
        FInfoBindAux.SubTipoFolha = 0;
        FInfoBindAux.TipoFolhaCompl = 0;
        FInfoBindAux.TipoTrabalhador = TTipoTrabalhador::Prestador;
        FInfoBindAux.tpPgto = tpPgto;
        FInfoBindAux.NumeroRecibo = LCds->FieldByName("NRRPA").AsLargeInt();
        // A receipt is reported whatever its ValidouGeracao.
        auto LDetalhe = std::make_unique<TTarvoESocialCamposdetPgtoFl>(FInfoBindAux);
        LDetalhe->CarregarDados(FListaCamposModificados);
        detPgtoFl.push_back(std::move(LDetalhe));
    }
}

// A settlement of kind 4 contributes no days.
static constexpr std::string_view SQL_FERIAS_DA_DATA = R"(SELECT DATA_INICIO, SUM(COALESCE(DIAS,0)) AS DIAS, IDEMPREGADO
FROM (
  SELECT DISTINCT CALCULO.DATA_INICIO, CALCULO.IDEMPREGADO, FERIAS_AUX.DIAS
  FROM CALCULO
  JOIN (
    SELECT
      IIF(FERIAS_QUITACAO.TIPO=4,0,FERIAS_QUITACAO.DIAS_QUITADOS) AS DIAS,
      FERIAS_AQUISITIVO.COD_EMPRESA,
      FERIAS_AQUISITIVO.COD_EMPREGADO,
      FERIAS_QUITACAO.DATA_PAGTO,
      '04' AS TIPO
    FROM FERIAS_QUITACAO
    JOIN FERIAS_AVOS ON ( FERIAS_AVOS.IDFERIAS_AVOS=FERIAS_QUITACAO.IDFERIAS_AVOS)
    JOIN FERIAS_AQUISITIVO ON ( FERIAS_AQUISITIVO.IDFERIAS_AQUISITIVO=FERIAS_AVOS.IDFERIAS_AQUISITIVO)
  ) AS FERIAS_AUX ON ( FERIAS_AUX.COD_EMPRESA=CALCULO.COD_EMPRESA
    AND FERIAS_AUX.COD_EMPREGADO=CALCULO.COD_EMPREGADO
    AND FERIAS_AUX.DATA_PAGTO=CALCULO.DATA_PAGTO
    AND FERIAS_AUX.TIPO=CALCULO.TIPO)
  %0:S
    AND CALCULO.DATA_PAGTO = %1:S
    AND CALCULO.TIPO = '04'
    AND CALCULO.DATA_INICIO >= %2:S )
GROUP BY DATA_INICIO, IDEMPREGADO
ORDER BY DATA_INICIO ASC, IDEMPREGADO)";

void TTarvoESocialCamposinfoPgto::CarregarListadetPgtoFer()
{
    if (tpPgto != PAGAMENTO_DE_FERIAS)
        return;
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL_FERIAS_DA_DATA,
               FormatarListaParaClausulaIN("CALCULO", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " WHERE "),
               FormatarDataDB(FInfoBind.DataPagto, true), FormatarDataDB(FInfoBind.DataInicioVigencia, true)));
    InicializarInfoBindAux();
    for (; !LCds->Eof(); LCds->Next()) {
        FInfoBindAux.DataInicio = LCds->FieldByName("DATA_INICIO").AsDateTime();
        FInfoBindAux.IdEmpregado = LCds->FieldByName("IDEMPREGADO").AsLargeInt();
        FInfoBindAux.DataPagto = FInfoBind.DataPagto;
        FInfoBindAux.TipoFolha = TTiposFolha::Ferias;
        FInfoBindAux.SubTipoFolha = 0;
        FInfoBindAux.TipoFolhaCompl = 0;
        FInfoBindAux.TipoTrabalhador = TTipoTrabalhador::Empregado;
        auto LDetalhe = std::make_unique<TTarvoESocialCamposdetPgtoFer>(FInfoBindAux);
        LDetalhe->dtIniGoz = FInfoBindAux.DataInicio;
        LDetalhe->qtDias = LCds->FieldByName("DIAS").AsInteger();
        LDetalhe->CarregarDados(FListaCamposModificados);
        detPgtoFer.push_back(std::move(LDetalhe));
    }
}

// Vacations ('04') are left out on purpose, and so is the competence in the dismissals.
static constexpr std::string_view SQL_CATEGORIAS_ANTERIORES = R"(SELECT DISTINCT CODIGO
FROM (
  SELECT FP_ESOCIALTABELA.CODIGO
  FROM CALCULO
  %5:s
  %0:S
    AND CALCULO.DATA_PAGTO = %1:S
    AND CALCULO.DATA_INICIO < %2:S
    AND CALCULO.TIPO IN ('01', '02', '03', '05', '06', '09')
    AND CALCULO.SUBTIPO = 0
  UNION
  SELECT FP_ESOCIALTABELA.CODIGO
  %3:s
  %5:s
  %0:S
    AND CALCULO.DATA_PAGTO = %1:S
    AND (CALCULO.TIPO = '01' OR CALCULO.TIPO = '03')
    AND CALCULO.SUBTIPO = 4
    AND %4:s
    AND CALCCOMPL.FORMATRIBUTACAO = 2
  UNION
  SELECT FP_ESOCIALTABELA.CODIGO
  FROM CALCULO
  %5:s
  %0:S
    AND CALCULO.TIPO = '05'
    AND CALCULO.DATA_PAGTO = %1:S
    AND CALCULO.SUBTIPO = 2)
ORDER BY CODIGO)";

void TTarvoESocialCamposinfoPgto::CarregarListadetPgtoAnt()
{
    static constexpr std::string_view JUNCAO_CATEGORIA =
        R"(JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = CALCULO.IDEMPREGADO)
  JOIN FP_ESOCIALTABELA ON ( FP_ESOCIALTABELA.IDESOCIALTABELA=EMPREGADOS.IDCATEGORIAESOCIAL AND FP_ESOCIALTABELA.TABELA=1))";
    if (tpPgto != PAGAMENTO_ANTERIOR)
        return;
    const auto LVigencia = FormatarDataDB(FInfoBind.DataInicioVigencia, true);
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL_CATEGORIAS_ANTERIORES,
               FormatarListaParaClausulaIN("CALCULO", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " WHERE "),
               FormatarDataDB(FInfoBind.DataPagto, true), LVigencia, CALCULO_DO_COMPLEMENTAR,
               Format(COMPLEMENTAR_ANTERIOR, LVigencia), JUNCAO_CATEGORIA));
    InicializarInfoBindAux();
    for (; !LCds->Eof(); LCds->Next()) {
        FInfoBindAux.TipoTrabalhador = TTipoTrabalhador::Empregado;
        auto LDetalhe = std::make_unique<TTarvoESocialCamposdetPgtoAnt>(FInfoBindAux);
        LDetalhe->codCateg =
            static_cast<std::int32_t>(StrToInt64Def(LCds->FieldByName("CODIGO").AsString().substr(0, 3), 0));
        LDetalhe->CarregarDados(FListaCamposModificados);
        if (!LDetalhe->InfoPgtoAnt.empty())
            detPgtoAnt.push_back(std::move(LDetalhe));
    }
}

} // namespace tarvo::pagamento
