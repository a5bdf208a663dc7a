#pragma once

namespace tarvo::rural {

// Rates of the contributions on a purchase of rural production, as shares of its gross amount.
inline constexpr long double ALIQUOTA_CP = 0.012L;
inline constexpr long double ALIQUOTA_RAT = 0.001L;
inline constexpr long double ALIQUOTA_SENAR = 0.002L;

/// What is due on a gross amount in reais; a wide product, rounded once to the double that holds it.
inline double ContribuicaoDevida(long double AAliquota, double AVlrBruto)
{
    return static_cast<double>(AAliquota * AVlrBruto);
}

} // namespace tarvo::rural
