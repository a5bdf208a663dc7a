#pragma once

#include <cstdint>

#include "imports/UnTarvoTypesGeral.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// Adds a count (of the unit ASoma) to a date and gives the first or the last day of the month that it falls in,
/// without a time of day.
TDateTime TransformarData(TDateTime AData, std::int32_t ADias, TDiasTransformarData ATipoDia,
                          TSomaTransformarData ASoma = TSomaTransformarData::Dias);

/// First and last day of the date's month.
TDateTime PrimeiroDiaDoMes(TDateTime AData);
TDateTime UltimoDiaDoMes(TDateTime AData);

} // namespace tarvo
