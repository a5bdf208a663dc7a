#pragma once

#include <compare>
#include <cstdint>

namespace tarvo {

/// Money: a 64-bit count of ten-thousandths. Sums are exact; a product or a division is computed wide
/// (long double) and rounded once, where it becomes Currency again.
class Currency {
public:
    constexpr Currency() = default;
    constexpr Currency(int AValor) : FDecimos(static_cast<std::int64_t>(AValor) * ESCALA) {}
    /// Rounds half to even on the fifth decimal. EIntOverflow when out of range or no number.
    explicit Currency(double AValor);
    explicit Currency(long double AValor);

    /// From the count of ten-thousandths.
    static constexpr Currency DeDecimosMilesimos(std::int64_t AValor)
    {
        Currency LResultado;
        LResultado.FDecimos = AValor;
        return LResultado;
    }
    constexpr std::int64_t DecimosMilesimos() const { return FDecimos; }

    double ParaDouble() const { return static_cast<double>(FDecimos) / ESCALA; }
    /// The wide form for a product or a division.
    long double ParaExtended() const { return static_cast<long double>(FDecimos) / ESCALA; }

    friend constexpr auto operator<=>(Currency, Currency) = default;
    /// Sums raise EIntOverflow when they leave the range.
    friend Currency operator+(Currency A, Currency B);
    friend Currency operator-(Currency A, Currency B);
    friend Currency operator-(Currency A) { return Currency() - A; }
    Currency& operator+=(Currency B) { return *this = *this + B; }
    Currency& operator-=(Currency B) { return *this = *this - B; }

    friend long double operator*(Currency A, Currency B) { return A.ParaExtended() * B.ParaExtended(); }
    friend long double operator*(Currency A, long double B) { return A.ParaExtended() * B; }
    /// Raise EZeroDivide for a zero divisor.
    friend long double operator/(Currency A, Currency B);
    friend long double operator/(Currency A, long double B);

    static constexpr std::int64_t ESCALA = 10'000;

private:
    std::int64_t FDecimos = 0;
};

/// Division in floating point that raises EZeroDivide instead of giving infinity.
long double Dividir(long double ADividendo, long double ADivisor);

} // namespace tarvo
