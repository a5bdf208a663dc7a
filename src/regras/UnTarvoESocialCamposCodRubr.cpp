#include "regras/UnTarvoESocialCamposCodRubr.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"

namespace tarvo::regras {

TCodigosIncidenciaVerba PrimeirosCodigos(const TIncidVerba& AIncidVerba)
{
    const auto Primeiro = [](const std::vector<std::int32_t>& ALista) { return ALista.empty() ? 0 : ALista.front(); };
    return {Primeiro(AIncidVerba.FListInss), Primeiro(AIncidVerba.FListIrrf), Primeiro(AIncidVerba.FListFgts),
            Primeiro(AIncidVerba.FListCs)};
}

std::string ComporCodRubr(std::int64_t ACodVerba, const TCodigosIncidenciaVerba& ACodigos)
{
    const auto Codigo = [](std::int32_t ACodigo) { return FormatFloat("000", std::int64_t{ACodigo}); };
    return FormatFloat("00000", ACodVerba) + "P" + Codigo(ACodigos.codIncCP) + "I" + Codigo(ACodigos.codIncIRRF) + "F" +
           Codigo(ACodigos.codIncFGTS) + "C" + Codigo(ACodigos.codIncSIND);
}

std::string ComporCodRubrRpa(std::int64_t AIdRpaTpValor, const TCodigosIncidenciaVerba& ACodigos)
{
    return ComporCodRubr(AIdRpaTpValor, ACodigos) + "RPA";
}

} // namespace tarvo::regras
