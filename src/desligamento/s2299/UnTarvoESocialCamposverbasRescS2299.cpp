#include "desligamento/s2299/UnTarvoESocialCamposverbasRescS2299.h"

#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"

namespace tarvo::desligamento {

namespace {

constexpr std::string_view TIPO_DO_CALCULO_S2299 = "TIPO_CALC_S2299";

/// What the branches give beside the dates and the kind: a column, or the literal that stands for it.
std::string Colunas(std::string_view ASubTipo, std::string_view AAcordo, std::string_view ATipoComplementar,
                    std::string_view AConvocacao)
{
    return Format("%0:s AS SUBTIPO,\n  %1:s AS IDACORDO,\n  %2:s AS TIPO_CALC_COMPL,\n  %3:s AS IDDETCONVOCACAO",
                  ASubTipo, AAcordo, ATipoComplementar, AConvocacao);
}

} // namespace

TTarvoESocialCamposverbasRescS2299::TTarvoESocialCamposverbasRescS2299(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposverbasRescDesligamento("{4205BB77-1CCD-44B0-9F98-156349E751AB}", AIdEmpregado),
      procCs(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposverbasRescS2299::Tabela()
{
    using Eu = TTarvoESocialCamposverbasRescS2299;
    static const TPropriedades tabela{
        {"dmDev", &Eu::dmDev},
        {"procJudTrab", &Eu::procJudTrab},
        {"infoMV", &Eu::infoMV},
        {"procCs", &Eu::procCs},
    };
    return tabela;
}

void TTarvoESocialCamposverbasRescS2299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposverbasRescDesligamento::CarregarDados(AListaCamposModificados);
    procCs.CarregarDados(AListaCamposModificados);
}

std::string TTarvoESocialCamposverbasRescS2299::SqlDosDemonstrativos(const TdmDevS2299IOP& ADmDev) const
{
    using enum TTipoCalculoDesligamento;
    static const std::string JUNCOES_DO_ACORDO =
        "\n" + std::string(regras::JUNCAO_CALCULO_COMPLEMENTAR) + "\n" + std::string(regras::JUNCAO_ACORDO);
    const auto LInicio = FormatarDataDB(ADmDev.GetPrimeiroDiaMesRescisao(), true);
    const auto LFim = FormatarDataDB(ADmDev.GetUltimoDiaMesRescisao(), true);

    // Says only that a dismissal was calculated, in whatever month; its items are read from the monthly payroll.
    const TRamoDeDemonstrativo LRescisao{Rescisao, Colunas("0", "0", "0", "0"), JUNCAO_VERBAS,
                                         "CALCULO.TIPO = '05'\n  AND CALCULO.SUBTIPO = 0" +
                                             std::string(SEM_BASE_DO_SALARIO_FAMILIA) + "\n  AND CALCULO.VALOR > 0"};
    const auto LComplementar = RamoRescisaoComplementar(
        ADmDev, Colunas("CALCULO.SUBTIPO", "COALESCE(RESC_COMPL.IDINFOGFIP650660, 0)", "0", "0"));
    const auto LOutros = RamoOutrosTiposNaCompetencia(ADmDev, Colunas("0", "0", "0", "0"));
    const TRamoDeDemonstrativo LAcordo{
        ComplementarPagoNaCompet,
        Colunas("CALCULO.SUBTIPO", "FP_INFOGFIP650660.IDINFOGFIP650660", "CALCCOMPL.TIPOCALCULO", "0"),
        JUNCOES_DO_ACORDO,
        Format("CALCULO.SUBTIPO = 4\n  AND CALCULO.VALOR > 0\n  AND CALCCOMPL.TIPOCALCULO = 1\n"
               "  AND FP_INFOGFIP650660.DATAOCORRENCIA BETWEEN %0:s AND %1:s",
               LInicio, LFim)};
    const TRamoDeDemonstrativo LIntermitente{
        Intermitente, Colunas("CALCULO.SUBTIPO", "0", "0", "CALCULO.IDDETCONVOCACAO"), "",
        Format("CALCULO.IDDETCONVOCACAO IS NOT NULL\n  AND CALCULO.DATA_INICIO BETWEEN %0:s AND %1:s\n"
               "  AND CALCULO.DATA_FIM BETWEEN %0:s AND %1:s",
               LInicio, LFim)};

    // A calculation may belong to several agreements.
    return SqlDosRamos({LRescisao, LComplementar, LOutros, LAcordo, LIntermitente}, TIPO_DO_CALCULO_S2299,
                       "SUBTIPO, IDACORDO, TIPO_CALC_COMPL, IDDETCONVOCACAO", ADmDev.IDEmpregado) +
           "\nORDER BY TIPO_CALC_S2299, DATA_INICIO, TIPO, SUBTIPO, IDDETCONVOCACAO, MIN(IDCALCULO), IDACORDO";
}

void TTarvoESocialCamposverbasRescS2299::AlimentarDemonstrativo(TdmDevS2299IOP& ADmDev,
                                                                const TOvraClientDataSet& ACds) const
{
    AlimentarDmDev(ADmDev, ACds, TIPO_DO_CALCULO_S2299);
    ADmDev.TipoCalcComplem = ACds.FieldByName("TIPO_CALC_COMPL").AsInteger();
    ADmDev.IdAcordoConvencaoDissidio = ACds.FieldByName("IDACORDO").AsLargeInt();
    ADmDev.IdDetConvocacaoTrabInterm = ACds.FieldByName("IDDETCONVOCACAO").AsLargeInt();
}

} // namespace tarvo::desligamento
