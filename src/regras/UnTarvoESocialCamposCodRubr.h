#pragma once

#include <cstdint>
#include <string>

namespace tarvo::regras {

struct TIncidVerba;

/// One incidence code for each tribute.
struct TCodigosIncidenciaVerba {
    std::int32_t codIncCP = 0;
    std::int32_t codIncIRRF = 0;
    std::int32_t codIncFGTS = 0;
    std::int32_t codIncSIND = 0;
};

/// The first code of each list, 0 where a list is empty.
TCodigosIncidenciaVerba PrimeirosCodigos(const TIncidVerba& AIncidVerba);

/// The rubric code of an amount: code and incidences in one text, 00125P011I012F011C000 for rubric 125 with 11, 12, 11
/// and 0. A remuneration, its payment and a termination must name a rubric alike; this is the one place that does.
std::string ComporCodRubr(std::int64_t ACodVerba, const TCodigosIncidenciaVerba& ACodigos);
/// The same for a value of a provider's receipt (RPATPVALOR.IDRPATPVALOR): it ends in RPA.
std::string ComporCodRubrRpa(std::int64_t AIdRpaTpValor, const TCodigosIncidenciaVerba& ACodigos);

} // namespace tarvo::regras
