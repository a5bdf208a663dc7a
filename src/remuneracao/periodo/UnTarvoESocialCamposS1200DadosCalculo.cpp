#include "remuneracao/periodo/UnTarvoESocialCamposS1200DadosCalculo.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsDatas.h"
#include "imports/valores/UnTarvoUtilsMatematica.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"
#include "regras/UnTarvoESocialCamposSqlRubricaRpa.h"

namespace tarvo::remuneracao {

namespace {

constexpr std::string_view COLUNAS_DO_CALCULO = R"(
  CALCULO.IDCALCULO,
  CALCULO.COD_VERBA,
  CALCULO.BASE,
  CALCULO.REFERENCIA,
  CALCULO.VALOR,
  0 AS DIASTRAB,
  TAB_VERBAS.IDVERBA,
  TAB_VERBAS.HORAS,
  TAB_VERBAS.FORMULA,
  TAB_VERBAS.VLR_CALC)";

constexpr std::string_view COLUNAS_DA_QUEBRA = R"(
  CALC_QUEBRA.IDCALCULO,
  CALCULO.COD_VERBA,
  CALC_QUEBRA.BASE,
  CALC_QUEBRA.REFERENCIA,
  CALC_QUEBRA.VALOR,
  CALC_QUEBRA.DIASTRAB,
  TAB_VERBAS.IDVERBA,
  TAB_VERBAS.HORAS,
  TAB_VERBAS.FORMULA,
  TAB_VERBAS.VLR_CALC)";

// By place and rubric, then by the keys that tell two rows of one rubric apart.
constexpr std::string_view ORDEM_DO_CALCULO =
    "ORDER BY CALCULO.COD_FILIAL, CALCULO.COD_DEPTO, CALCULO.COD_VERBA, CALCULO.IDCALCULO, TAB_VERBAS.IDVERBA";

/// Split rows where there are any, else the row of CALCULO. Of a rubric's rows the lowest key comes last: a merged item
/// shows the quantity of its last row. ADaQuebra and ADoCalculo are the branches from their FROM on.
std::string SqlDaQuebraOuDoCalculo(const std::string& ADaQuebra, const std::string& ADoCalculo)
{
    static constexpr std::string_view COLUNAS =
        "IDCALCULO, COD_VERBA, BASE, REFERENCIA, VALOR, DIASTRAB, IDVERBA, HORAS, FORMULA, VLR_CALC";
    return regras::UnirQuebraECalculo(
               COLUNAS, Format("SELECT%0:s,\n  CALC_QUEBRA.IDCALCQUEBRA\n%1:s", COLUNAS_DA_QUEBRA, ADaQuebra),
               Format("SELECT%0:s,\n  NULL AS IDCALCQUEBRA\n%1:s", COLUNAS_DO_CALCULO, ADoCalculo)) +
           "\nORDER BY COD_VERBA, IDCALCULO DESC, MIN(IDCALCQUEBRA) DESC, IDVERBA DESC";
}

// The short list lets '99H' through: the normal payroll adds its value to '7L' before the row goes.
constexpr std::string_view LISTA_CURTA = "TAB_VERBAS.FORMULA NOT IN ('99F', '99G','99GA', '99HA','99I', '99K', '99M')";
constexpr std::string_view LISTA_LONGA =
    "TAB_VERBAS.FORMULA NOT IN ('99F', '99G','99GA', '99H','99HA','99I', '99K', '99M')";

constexpr std::string_view PERIODO_DENTRO =
    "(CALCULO.DATA_INICIO BETWEEN %0:s AND %1:s AND CALCULO.DATA_FIM BETWEEN %0:s AND %1:s)";

double Arredondado(const TField& AField) { return Arredondar(AField.AsCurrency(), 2); }

} // namespace

TTarvoESocialCamposS1200DadosCalculo::TTarvoESocialCamposS1200DadosCalculo(const TTarvoESocialCamposS1200IOP& AInfoBind,
                                                                           std::int64_t AIdFilial,
                                                                           std::int64_t AIdDepto, TTagOrigem ATagOrigem)
    : FTipoQuebraEmpresa(TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(AInfoBind.IdEmpresa())),
      FIdFilial(AIdFilial), FIdDepto(AIdDepto), FInfoBind(AInfoBind), FTagOrigem(ATagOrigem)
{}

void TTarvoESocialCamposS1200DadosCalculo::CarregarListaDadosCalculo()
{
    const auto LCds = BuscarDados();
    if (LCds == nullptr)
        return;

    bool LTemFeriasPagas = false;
    double LValorDoLiquidoDeFerias = 0;
    if (EhFolhaNormal()) {
        for (; !LCds->Eof(); LCds->Next()) {
            const auto LFormula = LCds->FieldByName("FORMULA").AsString();
            if (LFormula == "7D")
                LTemFeriasPagas = true;
            else if (LFormula == "99H" || LFormula == "5EA")
                LValorDoLiquidoDeFerias += LCds->FieldByName("VALOR").AsFloat();
        }
        LCds->First();
    }

    for (; !LCds->Eof(); LCds->Next()) {
        if (FInfoBind.TipoEmpregado() == TTipoTrabalhador::Empregado)
            AdicionarEmpregado(*LCds, LValorDoLiquidoDeFerias);
        else
            AdicionarPrestador(*LCds);
    }
    if (LTemFeriasPagas)
        AdicionarVerbasDeFeriasComplementaresNaLista();
}

bool TTarvoESocialCamposS1200DadosCalculo::EmpregadoEstahDemitidoNoMes() const
{
    if (FInfoBind.TipoEmpregado() != TTipoTrabalhador::Empregado)
        return false;
    const auto LDemissao = TTarvoConsultasEmpregado::BuscarDataDemissao(FInfoBind.IdEmpregado());
    const auto LData = FInfoBind.DataInicio();
    return TransformarData(LData, 0, TDiasTransformarData::PrimeiroDiaDoMes) <= LDemissao &&
           LDemissao <= TransformarData(LData, 0, TDiasTransformarData::UltimoDiaDoMes);
}

bool TTarvoESocialCamposS1200DadosCalculo::EhFolhaNormal() const
{
    return FTagOrigem == TTagOrigem::toRemunPerApur && FInfoBind.TipoFolha() == 1 && FInfoBind.SubTipoFolha() != 4 &&
           FInfoBind.IdDetConvocacao == 0;
}

// The first test that holds decides. Null where nothing is to be read.
TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDados()
{
    const auto LTipoFolha = FInfoBind.TipoFolha();
    if (EmpregadoEstahDemitidoNoMes() && LTipoFolha != 3 && LTipoFolha != 9)
        return nullptr;
    if (FTagOrigem == TTagOrigem::toRemunPerAnt)
        return BuscarDadosGrupo2();
    if ((LTipoFolha == 1 || LTipoFolha == 3) && FInfoBind.SubTipoFolha() == 4)
        return BuscarDadosGrupo1C();
    switch (LTipoFolha) {
    case 1:
        return FInfoBind.IdDetConvocacao != 0 ? BuscarDadosIntermitente() : BuscarDadosFolhaNormal();
    case 2:
    case 3:
    case 6:
        return BuscarDadosGrupo1A();
    case 9:
        return BuscarDadosGrupo1B();
    case 97:
        return BuscarDadosRpa();
    default:
        return nullptr;
    }
}

void TTarvoESocialCamposS1200DadosCalculo::AdicionarEmpregado(const TOvraClientDataSet& ACds,
                                                              double& AValorDoLiquidoDeFerias)
{
    TDadosCalculo LDados;
    LDados.IdCalculo = ACds.FieldByName("IDCALCULO").AsLargeInt();
    LDados.Base = Arredondado(ACds.FieldByName("BASE"));
    LDados.Referencia = Arredondado(ACds.FieldByName("REFERENCIA"));
    LDados.Valor = Arredondado(ACds.FieldByName("VALOR"));
    LDados.DiasTrab = ACds.FieldByName("DIASTRAB").AsInteger();
    LDados.Cod_Verba = ACds.FieldByName("COD_VERBA").AsInteger();
    LDados.IdVerba = ACds.FieldByName("IDVERBA").AsLargeInt();
    LDados.Horas = ACds.FieldByName("HORAS").AsString();
    LDados.Formula = ACds.FieldByName("FORMULA").AsString();
    LDados.Vlr_Calc = Arredondado(ACds.FieldByName("VLR_CALC"));
    // What was withheld from the vacation payment goes back into its net, once.
    if (LDados.Formula == "7L") {
        LDados.Valor = Arredondar(Currency(ACds.FieldByName("VALOR").AsFloat() + AValorDoLiquidoDeFerias), 2);
        AValorDoLiquidoDeFerias = 0;
    }
    if (LDados.Formula != "99H")
        ListaDadosCalculo.push_back(std::move(LDados));
}

void TTarvoESocialCamposS1200DadosCalculo::AdicionarPrestador(const TOvraClientDataSet& ACds)
{
    TDadosCalculo LDados;
    LDados.Valor = Arredondado(ACds.FieldByName("VALOR"));
    LDados.Cod_Rubr = ACds.FieldByName("COD_VERBA").AsString();
    LDados.Cod_Verba = ACds.FieldByName("SEQUENCIA").AsInteger();
    ListaDadosCalculo.push_back(std::move(LDados));
}

void TTarvoESocialCamposS1200DadosCalculo::AdicionarVerbasDeFeriasComplementaresNaLista()
{
    regras::SomarFeriasComplementares(
        ListaDadosCalculo, &TDadosCalculo::IdVerba, &TDadosCalculo::Base, &TDadosCalculo::Valor,
        regras::SqlFeriasComplementares(FInfoBind.IdEmpregado(), FormatFloat("00", std::int64_t{FInfoBind.TipoFolha()}),
                                        FInfoBind.DataInicio(), FInfoBind.DataFim()));
}

// Without a test of the convocation: the run outside any convocation takes the rows of all of them along. That is meant.
TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosFolhaNormal()
{
    const auto LCondicoes = Format(
        "CALCULO.SUBTIPO in (0, 104, 1) AND %0:s AND %1:s",
        Format(PERIODO_DENTRO, FormatarDataDB(FInfoBind.DataInicio(), true), FormatarDataDB(FInfoBind.DataFim(), true)),
        LISTA_CURTA);
    FSqlCalc = SqlDoCalculo(LCondicoes);
    FSqlCalcQuebra = SqlDaQuebra(LCondicoes);
    return BuscarPorTipoDeQuebra();
}

TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosIntermitente()
{
    const auto LCondicoes = Format(
        "CALCULO.SUBTIPO in (0, 104, 1) AND %0:s AND %1:s AND CALCULO.IDDETCONVOCACAO = %2:D",
        Format(PERIODO_DENTRO, FormatarDataDB(FInfoBind.DataInicio(), true), FormatarDataDB(FInfoBind.DataFim(), true)),
        LISTA_LONGA, FInfoBind.IdDetConvocacao);
    FSqlCalc = SqlDoCalculo(LCondicoes);
    FSqlCalcQuebra = SqlDaQuebra(LCondicoes);
    return BuscarPorTipoDeQuebra();
}

// Advance and thirteenth salary: never split.
TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosGrupo1A() const
{
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(SqlDoCalculo(Format(
        "%0:s AND %1:s",
        Format(PERIODO_DENTRO, FormatarDataDB(FInfoBind.DataInicio(), true), FormatarDataDB(FInfoBind.DataFim(), true)),
        LISTA_LONGA)));
}

// Profit sharing: the run's own dates.
TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosGrupo1B() const
{
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(SqlDoCalculo(
        Format("CALCULO.DATA_INICIO = %0:s AND CALCULO.DATA_FIM = %1:s AND %2:s",
               FormatarDataDB(FInfoBind.DataInicio(), true), FormatarDataDB(FInfoBind.DataFim(), true), LISTA_LONGA)));
}

// Complementary calculation of the current period.
TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosGrupo1C()
{
    static constexpr std::string_view CONDICOES = R"(CALCCOMPL.TIPOCALCULO <> 1
  AND CALCULO.IDEMPREGADO = %0:d
  AND CALCULO.TIPO = %1:s
  AND CALCULO.SUBTIPO = %2:d
  AND CALCULO.DATA_INICIO BETWEEN %3:s AND %4:s
  AND CALCULO.DATA_FIM BETWEEN %3:s AND %4:s)";
    return BuscarComplementar(Format(CONDICOES, FInfoBind.IdEmpregado(), TipoFolhaEntreAspas(),
                                     FInfoBind.SubTipoFolha(), FormatarDataDB(FInfoBind.DataInicio(), true),
                                     FormatarDataDB(FInfoBind.DataFim(), true)),
                              "");
}

TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosGrupo2()
{
    return FInfoBind.Chave == 6 ? BuscarDadosCalculoRescisaoComplementar() : BuscarDadosCalculoNormalComplementar();
}

// By agreement: the agreement falls in the month of the event, the run holds the earlier period.
TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosCalculoNormalComplementar()
{
    static constexpr std::string_view CONDICOES = R"(CALCCOMPL.TIPOCALCULO = 1
  AND CALCULO.IDEMPREGADO = %0:d
  AND CALCULO.TIPO = %1:s
  AND CALCULO.SUBTIPO = %2:d
  AND FP_INFOGFIP650660.DATAOCORRENCIA BETWEEN %3:s AND %4:s
  AND (%5:s BETWEEN CALCULO.DATA_INICIO AND CALCULO.DATA_FIM))";
    return BuscarComplementar(Format(CONDICOES, FInfoBind.IdEmpregado(), TipoFolhaEntreAspas(),
                                     FInfoBind.SubTipoFolha(), FormatarDataDB(FInfoBind.DataInicio(), true),
                                     FormatarDataDB(FInfoBind.DataFim(), true), FormatarDataDB(FInfoBind.PerRef, true)),
                              Format("%0:s\n", regras::JUNCAO_ACORDO));
}

TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosCalculoRescisaoComplementar() const
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT%3:s
FROM CALCULO
INNER JOIN TAB_VERBAS ON (CALCULO.COD_VERBA = TAB_VERBAS.CODIGO)
INNER JOIN SC00_FILIAL ON (CALCULO.IDFILIAL = SC00_FILIAL.IDFILIAL)
LEFT JOIN SC00_DEPTO ON (CALCULO.IDDEPARTAMENTO = SC00_DEPTO.IDDEPTO)
WHERE CALCULO.IDEMPREGADO = %0:d
  AND CALCULO.TIPO = '05'
  AND CALCULO.SUBTIPO IN (1, 2)
  AND CALCULO.DATA_PAGTO = %1:s
%2:s)";
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, FInfoBind.IdEmpregado(),
                                                                      FormatarDataDB(FInfoBind.DataPagto(), true),
                                                                      CaudaDaLotacao(), COLUNAS_DO_CALCULO));
}

// The filter by establishment or department stands twice; that is harmless and meant.
TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarDadosRpa() const
{
    static constexpr std::string_view SQL = R"(SELECT
  LPAD(CAST(RPATPVALOR.IDRPATPVALOR AS INTEGER),5,'0')
  || 'P' || LPAD(CAST(FP_ESOCIALTABELACP.CODIGO AS INTEGER),3,'0')
  || 'I' || LPAD(CAST(FP_ESOCIALTABELAIRRF.CODIGO AS INTEGER),3,'0')
  || 'F' || LPAD(CAST(FP_ESOCIALTABELAFGTS.CODIGO AS INTEGER),3,'0')
  || 'C' || LPAD(CAST(FP_ESOCIALTABELACS.CODIGO AS INTEGER),3,'0')
  || 'RPA' COD_VERBA,
  RPATPVALOR.SEQUENCIA,
  RPAVALOR.VALOR
%4:s
JOIN RPAVALOR ON (RPATPVALOR.IDRPATPVALOR = RPAVALOR.IDRPATPVALOR)
JOIN RPA ON (RPAVALOR.IDRPA = RPA.IDRPA)
WHERE FP_ESOCIALTABELA.CODIGO NOT IN ('9203')
  AND RPA.IDPRESTSERVICO = %0:d
  AND RPA.NRRPA = %1:d
  AND RPAVALOR.VALOR > 0
  AND RPA.%2:S = %3:D
  AND RPA.%2:S = %3:D
ORDER BY RPATPVALOR.SEQUENCIA, RPAVALOR.IDRPAVALOR, FP_RUBRICARELACRPA.IDRUBRICARELACRPA)";
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, FInfoBind.IdEmpregado(),
                                                                      FInfoBind.NrReciboRpa, ColunaDaLotacao(),
                                                                      IdDaLotacao(), regras::ORIGEM_DA_RUBRICA_RPA));
}

TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarPorTipoDeQuebra() const
{
    return TTarvoConsultasGeral::BuscarCalculoEventoESocial(FTipoQuebraEmpresa, FSqlCalc, FSqlCalcQuebra);
}

TDataset TTarvoESocialCamposS1200DadosCalculo::BuscarComplementar(const std::string& ACondicoes,
                                                                  std::string_view AJuncaoDoAcordo)
{
    // %0 and %2 join the break table and the agreement where the branch has them.
    static constexpr std::string_view ORIGEM = R"(FROM CALCCOMPL
JOIN CALCCOMPLPER ON (CALCCOMPL.IDCALCCOMPL=CALCCOMPLPER.IDCALCCOMPL)
JOIN FP_CALCCOMPLEMPREG ON (FP_CALCCOMPLEMPREG.IDCALCCOMPL=CALCCOMPL.IDCALCCOMPL)
JOIN CALCULO ON (CALCULO.DATA_INICIO>=CALCCOMPLPER.DATA_INICIO
             AND CALCULO.DATA_FIM<=CALCCOMPLPER.DATA_FIM
             AND CALCULO.DATA_PAGTO=CALCCOMPLPER.COMPET_PGTO
             AND CALCULO.IDEMPREGADO=FP_CALCCOMPLEMPREG.IDEMPREGADO)
%0:sJOIN TAB_VERBAS ON (CALCULO.COD_VERBA = TAB_VERBAS.CODIGO)
%2:sJOIN SC00_FILIAL ON (CALCULO.IDFILIAL = SC00_FILIAL.IDFILIAL)
LEFT JOIN SC00_DEPTO ON (CALCULO.IDDEPARTAMENTO = SC00_DEPTO.IDDEPTO)
WHERE %1:s)";
    static constexpr std::string_view JUNCAO_DA_QUEBRA =
        "JOIN CALC_QUEBRA ON (CALC_QUEBRA.IDCALCULO = CALCULO.IDCALCULO)\n";

    const auto LDoCalculo = Format(ORIGEM, "", ACondicoes, AJuncaoDoAcordo);
    FSqlCalc = Format("SELECT DISTINCT%0:s\n%1:s\n%2:s", COLUNAS_DO_CALCULO, LDoCalculo, CaudaDaLotacao());
    // A thirteenth salary is never split.
    if (FInfoBind.TipoFolha() == 3)
        return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(FSqlCalc);
    // No filter by establishment here; that is meant.
    FSqlCalcQuebra =
        SqlDaQuebraOuDoCalculo(Format("%0:s\n  AND COALESCE(CALC_QUEBRA.IDDEPARTAMENTO, 0) = %1:d",
                                      Format(ORIGEM, JUNCAO_DA_QUEBRA, ACondicoes, AJuncaoDoAcordo), FIdDepto),
                               Format("%0:s\n  AND COALESCE(CALCULO.IDDEPARTAMENTO, 0) = %1:d", LDoCalculo, FIdDepto));
    return BuscarPorTipoDeQuebra();
}

std::string TTarvoESocialCamposS1200DadosCalculo::SqlDoCalculo(const std::string& ACondicoes) const
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT%5:s
FROM CALCULO
JOIN TAB_VERBAS ON (CALCULO.COD_VERBA = TAB_VERBAS.CODIGO)
WHERE CALCULO.IDEMPREGADO = %0:D
  AND CALCULO.%1:S = %2:D
  AND CALCULO.TIPO = %3:S
  AND %4:s
%6:s)";
    return Format(SQL, FInfoBind.IdEmpregado(), ColunaDaLotacao(), IdDaLotacao(), TipoFolhaEntreAspas(), ACondicoes,
                  COLUNAS_DO_CALCULO, ORDEM_DO_CALCULO);
}

// By establishment only rows without a department count.
std::string TTarvoESocialCamposS1200DadosCalculo::SqlDaQuebra(const std::string& ACondicoes) const
{
    static constexpr std::string_view ORIGEM_DA_QUEBRA = R"(FROM CALC_QUEBRA
JOIN CALCULO ON (CALCULO.IDCALCULO = CALC_QUEBRA.IDCALCULO))";
    static constexpr std::string_view RAMO = R"(%6:s
JOIN TAB_VERBAS ON (CALCULO.COD_VERBA = TAB_VERBAS.CODIGO)
WHERE CALCULO.IDEMPREGADO = %0:D
  AND %7:s.%1:S = %2:D
  AND COALESCE(%7:s.IDDEPARTAMENTO, 0) = %5:D
  AND CALCULO.TIPO = %3:S
  AND %4:s)";
    const auto Ramo = [&](std::string_view AOrigem, std::string_view ATabela) {
        return Format(RAMO, FInfoBind.IdEmpregado(), ColunaDaLotacao(), IdDaLotacao(), TipoFolhaEntreAspas(),
                      ACondicoes, FIdDepto, AOrigem, ATabela);
    };
    return SqlDaQuebraOuDoCalculo(Ramo(ORIGEM_DA_QUEBRA, "CALC_QUEBRA"), Ramo("FROM CALCULO", "CALCULO"));
}

std::string TTarvoESocialCamposS1200DadosCalculo::CaudaDaLotacao() const
{
    return (FIdDepto != 0 ? Format("  AND SC00_DEPTO.IDDEPTO = %0:d\n", FIdDepto)
                          : Format("  AND SC00_FILIAL.IDFILIAL = %0:d\n", FIdFilial)) +
           std::string(ORDEM_DO_CALCULO);
}

std::string TTarvoESocialCamposS1200DadosCalculo::TipoFolhaEntreAspas() const
{
    return "'" + FormatFloat("00", std::int64_t{FInfoBind.TipoFolha()}) + "'";
}

std::string_view TTarvoESocialCamposS1200DadosCalculo::ColunaDaLotacao() const
{
    return FIdFilial != 0 ? "IDFILIAL" : "IDDEPARTAMENTO";
}

std::int64_t TTarvoESocialCamposS1200DadosCalculo::IdDaLotacao() const { return FIdFilial != 0 ? FIdFilial : FIdDepto; }

} // namespace tarvo::remuneracao
