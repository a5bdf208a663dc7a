#pragma once

#include <cstdint>

#include "imports/valores/UnOvraCurrency.h"

namespace tarvo {

class TTarvoUtilsMatematica {
public:
    /// Hours written as hh.mm (7.30) to decimal hours (7.5): the hours plus the minutes over 60, not rounded.
    static double ConverterHorasEmDecimais(double AHoras);
};

/// Rounds to a number of decimal places, half away from zero, on the decimal value. Currency has four; more places
/// leave it as it is.
double Arredondar(Currency AValor, std::uint8_t ACasas);

} // namespace tarvo
