#pragma once

#include <cstdint>

#include "imports/valores/UnOvraCurrency.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// Legal amounts of the income tax.
class TTarvoConsultasIrrf {
public:
    /// Monthly deduction for a number of dependants, by the law's amount at the date; 0 before January 2007.
    static Currency BuscarValorDeDeducaoDosDependentes(std::int32_t ANumero, TDateTime AData);
};

} // namespace tarvo
