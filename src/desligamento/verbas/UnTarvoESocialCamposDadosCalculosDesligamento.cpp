#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"

#include <algorithm>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"

namespace tarvo::desligamento {

namespace {

constexpr std::string_view COLUNAS_DO_CALCULO = R"(
  CALCULO.COD_EMPRESA,
  CALCULO.COD_FILIAL,
  CALCULO.COD_DEPTO,
  CALCULO.BASE,
  CALCULO.REFERENCIA,
  CALCULO.VALOR,
  TAB_VERBAS.IDVERBA,
  TAB_VERBAS.FORMULA)";

constexpr std::string_view COLUNAS_DO_CALCULO_SEM_QUEBRA = R"(
  CALCULO.COD_EMPRESA,
  CALCULO.COD_FILIAL,
  CALCULO.COD_DEPTO,
  CALCULO.BASE,
  CALCULO.REFERENCIA,
  CALCULO.VALOR,
  TAB_VERBAS.IDVERBA,
  TAB_VERBAS.FORMULA,
  0 AS DIASTRAB,
  CALCULO.IDCALCULO,
  NULL AS IDCALCQUEBRA)";

constexpr std::string_view COLUNAS_DA_QUEBRA = R"(
  CALCULO.COD_EMPRESA,
  CALC_QUEBRA.COD_FILIAL,
  CALC_QUEBRA.COD_DEPTO,
  CALC_QUEBRA.BASE,
  CALC_QUEBRA.REFERENCIA,
  CALC_QUEBRA.VALOR,
  TAB_VERBAS.IDVERBA,
  TAB_VERBAS.FORMULA,
  CALC_QUEBRA.DIASTRAB)";

constexpr std::string_view CHAVES_DA_QUEBRA = R"(,
  CALCULO.IDCALCULO,
  CALC_QUEBRA.IDCALCQUEBRA)";

// A split row speaks for its calculation as a whole: a department that it leaves out isn't taken from CALCULO.
constexpr std::string_view COLUNAS_DA_QUEBRA_SE_HOUVER = R"(
  CALCULO.COD_EMPRESA,
  IIF(CALC_QUEBRA.IDCALCQUEBRA IS NULL, CALCULO.COD_FILIAL, CALC_QUEBRA.COD_FILIAL) AS COD_FILIAL,
  IIF(CALC_QUEBRA.IDCALCQUEBRA IS NULL, CALCULO.COD_DEPTO, CALC_QUEBRA.COD_DEPTO) AS COD_DEPTO,
  IIF(CALC_QUEBRA.IDCALCQUEBRA IS NULL, CALCULO.BASE, CALC_QUEBRA.BASE) AS BASE,
  IIF(CALC_QUEBRA.IDCALCQUEBRA IS NULL, CALCULO.REFERENCIA, CALC_QUEBRA.REFERENCIA) AS REFERENCIA,
  IIF(CALC_QUEBRA.IDCALCQUEBRA IS NULL, CALCULO.VALOR, CALC_QUEBRA.VALOR) AS VALOR,
  TAB_VERBAS.IDVERBA,
  TAB_VERBAS.FORMULA,
  IIF(CALC_QUEBRA.IDCALCQUEBRA IS NULL, 0, CALC_QUEBRA.DIASTRAB) AS DIASTRAB)";

constexpr std::string_view SQL_CALCULO = R"(SELECT%3:s
FROM %4:s
JOIN TAB_VERBAS ON (TAB_VERBAS.CODIGO = CALCULO.COD_VERBA)
WHERE CALCULO.IDEMPREGADO = %0:d
  AND %1:s
  AND TAB_VERBAS.FORMULA NOT IN ( %2:s))";

} // namespace

TDadosCalculosDesligamento::TDadosCalculosDesligamento(TdmDevDesligamentoIOP& ADadosDmDev,
                                                       std::string_view AFormulasExcluidas)
    : FDadosDmDev(ADadosDmDev), FFormulasExcluidas(AFormulasExcluidas)
{}

std::vector<TDadosCalculo> TDadosCalculosDesligamento::DadosDaLotacaoAtual() const
{
    std::vector<TDadosCalculo> LDados;
    std::copy_if(FListaDadosCalculo.begin(), FListaDadosCalculo.end(), std::back_inserter(LDados), [&](const auto& A) {
        return A.IDEstabelecimento == FDadosDmDev.IDFilial && A.IdDepto == FDadosDmDev.IDDepto;
    });
    return LDados;
}

std::string TDadosCalculosDesligamento::SqlDoCalculo(std::string_view ACondicoes, std::string_view AColunas,
                                                     std::string_view AJuncoes) const
{
    return Format(SQL_CALCULO, FDadosDmDev.IDEmpregado, ACondicoes, FFormulasExcluidas, AColunas,
                  "CALCULO" + std::string(AJuncoes));
}

std::string TDadosCalculosDesligamento::SqlDoCalculo(std::string_view ACondicoes) const
{
    return SqlDoCalculo(ACondicoes, COLUNAS_DO_CALCULO);
}

std::string TDadosCalculosDesligamento::SqlDaQuebra(std::string_view ACondicoes, std::string_view AChaves) const
{
    return Format(SQL_CALCULO, FDadosDmDev.IDEmpregado, ACondicoes, FFormulasExcluidas,
                  std::string(COLUNAS_DA_QUEBRA) + std::string(AChaves),
                  "CALC_QUEBRA\nJOIN CALCULO ON (CALC_QUEBRA.IDCALCULO = CALCULO.IDCALCULO)");
}

std::string TDadosCalculosDesligamento::SqlDaQuebraOuDoCalculo(std::string_view ACondicoes) const
{
    return regras::UnirQuebraECalculo(COLUNAS_DA_UNIAO, SqlDaQuebra(ACondicoes, CHAVES_DA_QUEBRA),
                                      SqlDoCalculo(ACondicoes, COLUNAS_DO_CALCULO_SEM_QUEBRA));
}

TDataset TDadosCalculosDesligamento::BuscarCalculoRescisaoComplementar() const
{
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        SqlDoCalculo(Format("CALCULO.TIPO = '05'\n  AND CALCULO.SUBTIPO IN (1, 2)\n  AND CALCULO.DATA_PAGTO = %0:s",
                            FormatarDataDB(FDadosDmDev.DataPagamento, true))) +
        std::string(ORDEM_DO_CALCULO));
}

TDataset TDadosCalculosDesligamento::BuscarCalculoOutrosTiposNaCompetencia() const
{
    const auto LCondicoes =
        Format("CALCULO.TIPO = '%0:s'\n  AND CALCULO.SUBTIPO = 0\n  AND %1:s", FDadosDmDev.TipoFolha,
               CondicaoDoPeriodo(FDadosDmDev.DataInicio, FDadosDmDev.DataFim));
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        SqlDoCalculo(LCondicoes, COLUNAS_DA_QUEBRA_SE_HOUVER,
                     "\nLEFT JOIN CALC_QUEBRA ON (CALC_QUEBRA.IDCALCULO = CALCULO.IDCALCULO)") +
        "\nORDER BY COD_EMPRESA, COD_FILIAL, COD_DEPTO, TAB_VERBAS.CODIGO, CALCULO.IDCALCULO,"
        " CALC_QUEBRA.IDCALCQUEBRA, TAB_VERBAS.IDVERBA");
}

void TDadosCalculosDesligamento::LimparListas()
{
    FListaDadosCalculo.clear();
    FLotacoesDoCalculo.clear();
}

void TDadosCalculosDesligamento::AdicionarVerba(const TOvraClientDataSet& ACds)
{
    TDadosCalculo LDados;
    LDados.IDEmpregado = FDadosDmDev.IDEmpregado;
    LDados.CodEmpresa = ACds.FieldByName("COD_EMPRESA").AsInteger();
    LDados.CodFilial = ACds.FieldByName("COD_FILIAL").AsInteger();
    if (FDadosDmDev.TipoQuebraEmpresa == TTipoQuebraGpsGfip::Departamento)
        LDados.CodDepto = ACds.FieldByName("COD_DEPTO").AsInteger();
    LDados.Base = ACds.FieldByName("BASE").AsCurrency();
    LDados.Referencia = ACds.FieldByName("REFERENCIA").AsCurrency();
    LDados.Valor = BuscarValorDaVerba(ACds);
    LDados.IDVerba = ACds.FieldByName("IDVERBA").AsLargeInt();
    LDados.CaracteristicaVerba = ACds.FieldByName("FORMULA").AsString();
    if (const auto LDias = ACds.FindField("DIASTRAB"))
        LDados.DiasTrabNaLotacao = LDias->AsInteger();
    const auto LLotacao = BuscarDadosLotacao(LDados);
    LDados.IDEstabelecimento = LLotacao.IDEstabelecimento;
    LDados.IdDepto = LLotacao.IdDepto;

    if (!FListaDadosCalculo.empty()) {
        auto& LAnterior = FListaDadosCalculo.back();
        if (LAnterior.IDEstabelecimento == LDados.IDEstabelecimento && LAnterior.IdDepto == LDados.IdDepto &&
            LAnterior.IDVerba == LDados.IDVerba) {
            LAnterior.Valor += LDados.Valor;
            LAnterior.Base += LDados.Base;
            return;
        }
    }
    FListaDadosCalculo.push_back(std::move(LDados));
}

void TDadosCalculosDesligamento::CarregarLotacoesDoCalculo()
{
    for (const auto& LDados : FListaDadosCalculo) {
        const TDadosLotacao LLotacao{LDados.IDEstabelecimento, LDados.IdDepto};
        if (std::find(FLotacoesDoCalculo.begin(), FLotacoesDoCalculo.end(), LLotacao) == FLotacoesDoCalculo.end())
            FLotacoesDoCalculo.push_back(LLotacao);
    }
}

Currency TDadosCalculosDesligamento::BuscarValorDaVerba(const TOvraClientDataSet& ACds) const
{
    return TTarvoConsultasGeral::BuscarValorVerbaParaESocial(
        ACds.FieldByName("IDVERBA").AsLargeInt(), ACds.FieldByName("FORMULA").AsString(),
        ACds.FieldByName("BASE").AsCurrency(), ACds.FieldByName("VALOR").AsCurrency(), FDadosDmDev.DataInicio);
}

TDadosLotacao TDadosCalculosDesligamento::BuscarDadosLotacao(const TDadosCalculo& ADados) const
{
    static constexpr std::string_view SQL = R"(SELECT
  SC00_FILIAL.IDFILIAL,
  COALESCE(SC00_DEPTO.IDDEPTO, 0) AS IDDEPTO
FROM SC00_EMPRESA
INNER JOIN SC00_FILIAL ON (SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA)
LEFT JOIN SC00_DEPTO ON (SC00_DEPTO.IDFILIAL = SC00_FILIAL.IDFILIAL AND SC00_DEPTO.DEPTO = %2:d)
WHERE SC00_EMPRESA.EMPRESA = %0:d
  AND SC00_FILIAL.FILIAL = %1:d
ORDER BY SC00_FILIAL.IDFILIAL, SC00_DEPTO.IDDEPTO)";
    const auto LCds =
        TTarvoConsultasGeral::BuscarRegistros(Format(SQL, ADados.CodEmpresa, ADados.CodFilial, ADados.CodDepto));
    if (LCds->IsEmpty())
        return {};
    return {LCds->FieldByName("IDFILIAL").AsLargeInt(), LCds->FieldByName("IDDEPTO").AsLargeInt()};
}

std::string CondicaoDoPeriodo(TDateTime AInicio, TDateTime AFim)
{
    return Format("CALCULO.DATA_INICIO = %0:s\n  AND CALCULO.DATA_FIM = %1:s", FormatarDataDB(AInicio, true),
                  FormatarDataDB(AFim, true));
}

} // namespace tarvo::desligamento
