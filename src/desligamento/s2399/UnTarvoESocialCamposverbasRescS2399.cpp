#include "desligamento/s2399/UnTarvoESocialCamposverbasRescS2399.h"

#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::desligamento {

namespace {

constexpr std::string_view TIPO_DO_CALCULO_S2399 = "TIPO_CALC_S2399";

} // namespace

TTarvoESocialCamposverbasRescS2399::TTarvoESocialCamposverbasRescS2399(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposverbasRescDesligamento("{0775E6B5-8D5B-4886-B19C-1E05F1255952}", AIdEmpregado)
{}

std::string TTarvoESocialCamposverbasRescS2399::SqlDosDemonstrativos(const TdmDevS2399IOP& ADmDev) const
{
    // Informative rubrics always have a value: they alone are no calculation.
    static constexpr std::string_view SEM_INFORMATIVAS = "\n  AND TAB_VERBAS.TIPO <> '5'";
    const TRamoDeDemonstrativo LRescisao{TTipoCalculoDesligamento::Rescisao, "0 AS SUBTIPO", JUNCAO_VERBAS,
                                         "CALCULO.TIPO = '05'\n  AND CALCULO.SUBTIPO = 0" +
                                             std::string(SEM_INFORMATIVAS)};
    // Nor is the net of the termination.
    auto LComplementar = RamoRescisaoComplementar(ADmDev, "CALCULO.SUBTIPO AS SUBTIPO");
    LComplementar.Condicoes += std::string(SEM_INFORMATIVAS) + "\n  AND TAB_VERBAS.FORMULA <> '8J'";
    const auto LOutros = RamoOutrosTiposNaCompetencia(ADmDev, "0 AS SUBTIPO");

    return SqlDosRamos({LRescisao, LComplementar, LOutros}, TIPO_DO_CALCULO_S2399, "SUBTIPO", ADmDev.IDEmpregado) +
           "\nORDER BY TIPO_CALC_S2399, DATA_INICIO, TIPO, SUBTIPO, MIN(IDCALCULO)";
}

void TTarvoESocialCamposverbasRescS2399::AlimentarDemonstrativo(TdmDevS2399IOP& ADmDev,
                                                                const TOvraClientDataSet& ACds) const
{
    AlimentarDmDev(ADmDev, ACds, TIPO_DO_CALCULO_S2399);
}

} // namespace tarvo::desligamento
