#include "desligamento/s2299/UnTS2299DadosCalculos.h"

#include <algorithm>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"

namespace tarvo::desligamento {

// Alimony and income tax go into the payment. '5EA' and '99H' are read all the same: their sum goes into '7L'.
TS2299DadosCalculos::TS2299DadosCalculos(TdmDevS2299IOP& ADadosDmDev)
    : TDadosCalculosDesligamento(ADadosDmDev, "'5E', '5EC', '5EB', '99F', '99G', '99GA', '99HA', '99I', '99K', '99M'"),
      FDados(ADadosDmDev)
{}

void TS2299DadosCalculos::CarregarRegistrosCalculo()
{
    LimparListas();
    Currency LRetidoNasFerias;
    bool LTemFeriasComplementares = false;
    if (const auto LCds = BuscarCalculo()) {
        for (; !LCds->Eof(); LCds->Next()) {
            const auto LFormula = LCds->FieldByName("FORMULA").AsString();
            if (LFormula == "99H" || LFormula == "5EA") {
                LRetidoNasFerias += BuscarValorDaVerba(*LCds);
                continue;
            }
            LTemFeriasComplementares |= LFormula == "7D";
            AdicionarVerba(*LCds);
        }
    }
    if (LTemFeriasComplementares)
        AdicionarVerbasDeFeriasComplementaresNaLista();
    CarregarLotacoesDoCalculo();
    SomarVerbaDeIRRF(LRetidoNasFerias);
}

TDataset TS2299DadosCalculos::BuscarCalculo()
{
    using enum TTipoCalculoDesligamento;
    switch (FDados.TipoCalculo) {
    case Rescisao:
        return BuscarCalculoRescisao();
    case RescisaoComplementar:
        return BuscarCalculoRescisaoComplementar();
    case OutroDaCompetencia:
        return BuscarCalculoOutrosTiposNaCompetencia();
    case ComplementarPagoNaCompet:
        return BuscarCalculoComplementarPagoNaCompet();
    case Intermitente:
        return BuscarCalculoIntermitente();
    case Nenhum:
        break;
    }
    return nullptr;
}

// The items of a dismissal lie under the monthly payroll. A company that splits shows only the split rows.
TDataset TS2299DadosCalculos::BuscarCalculoRescisao()
{
    const auto LCondicoes = "CALCULO.TIPO = '01'\n  AND CALCULO.SUBTIPO IN (104, 105)\n  AND " +
                            CondicaoDoPeriodo(FDados.GetPrimeiroDiaMesRescisao(), FDados.GetUltimoDiaMesRescisao());
    FSqlCalc = SqlDoCalculo(LCondicoes) + std::string(ORDEM_DO_CALCULO);
    FSqlCalcQuebra = SqlDaQuebra(LCondicoes) +
                     "\nORDER BY CALCULO.COD_EMPRESA, CALC_QUEBRA.COD_FILIAL, CALC_QUEBRA.COD_DEPTO, TAB_VERBAS.CODIGO,"
                     " CALCULO.IDCALCULO, CALC_QUEBRA.IDCALCQUEBRA, TAB_VERBAS.IDVERBA";
    return TTarvoConsultasGeral::BuscarCalculoEventoESocial(FDados.TipoQuebraEmpresa, FSqlCalc, FSqlCalcQuebra);
}

TDataset TS2299DadosCalculos::BuscarCalculoComplementarPagoNaCompet() const
{
    const auto LCondicoes =
        Format("CALCULO.TIPO = '%0:s'\n  AND CALCULO.SUBTIPO = 4\n  AND CALCULO.DATA_PAGTO = %1:s\n  AND %2:s",
               FDados.TipoFolha, FormatarDataDB(FDados.DataPagamento, true),
               CondicaoDoPeriodo(FDados.DataInicio, FDados.DataFim));
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(SqlDoCalculo(LCondicoes) +
                                                               std::string(ORDEM_DO_CALCULO));
}

TDataset TS2299DadosCalculos::BuscarCalculoIntermitente()
{
    // The kind stands without quotes in the break form, and its rows come by their columns as they stand, the amounts
    // before the rubric; both are meant.
    const auto Condicoes = [&](std::string_view AModelo) {
        return Format(AModelo, FDados.IdDetConvocacaoTrabInterm, FDados.TipoFolha,
                      CondicaoDoPeriodo(FDados.DataInicio, FDados.DataFim));
    };
    FSqlCalc = SqlDoCalculo(Condicoes("CALCULO.IDDETCONVOCACAO = %0:d\n  AND CALCULO.TIPO = '%1:s'\n  AND %2:s")) +
               std::string(ORDEM_DO_CALCULO);
    FSqlCalcQuebra =
        SqlDaQuebraOuDoCalculo(Condicoes("CALCULO.IDDETCONVOCACAO = %0:d\n  AND CALCULO.TIPO = %1:s\n  AND %2:s")) +
        "\nORDER BY " + std::string(COLUNAS_DA_UNIAO);
    return TTarvoConsultasGeral::BuscarCalculoEventoESocial(FDados.TipoQuebraEmpresa, FSqlCalc, FSqlCalcQuebra);
}

void TS2299DadosCalculos::AdicionarVerbasDeFeriasComplementaresNaLista()
{
    regras::SomarFeriasComplementares(
        FListaDadosCalculo, &TDadosCalculo::IDVerba, &TDadosCalculo::Base, &TDadosCalculo::Valor,
        regras::SqlFeriasComplementares(FDados.IDEmpregado, FDados.TipoFolha, FDados.DataInicio, FDados.DataFim));
}

// Without a net of vacations the sum is lost; that is meant.
void TS2299DadosCalculos::SomarVerbaDeIRRF(Currency AValor)
{
    const auto LLiquido = std::find_if(FListaDadosCalculo.begin(), FListaDadosCalculo.end(),
                                       [](const auto& A) { return A.CaracteristicaVerba == "7L"; });
    if (LLiquido != FListaDadosCalculo.end())
        LLiquido->Valor += AValor;
}

} // namespace tarvo::desligamento
