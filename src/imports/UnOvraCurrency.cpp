#include "imports/UnOvraCurrency.h"

#include <cmath>

#include "imports/UnOvraExcecoes.h"

namespace tarvo {

namespace {

// The product is made in the type of the value, so that a decimal half such as 1.00005 is met as a half.
template <class T>
std::int64_t Escalar(T AValor)
{
    const T LEscalado = std::nearbyint(AValor * static_cast<T>(Currency::ESCALA));
    if (!(LEscalado >= static_cast<T>(-9.2233720368547758e18) && LEscalado < static_cast<T>(9.2233720368547758e18)))
        throw EIntOverflow("Valor fora da faixa do tipo Currency");
    return static_cast<std::int64_t>(LEscalado);
}

} // namespace

Currency::Currency(double AValor) : FDecimos(Escalar(AValor)) {}
Currency::Currency(long double AValor) : FDecimos(Escalar(AValor)) {}

Currency operator+(Currency A, Currency B)
{
    std::int64_t LSoma = 0;
    if (__builtin_add_overflow(A.FDecimos, B.FDecimos, &LSoma))
        throw EIntOverflow("Soma fora da faixa do tipo Currency");
    return Currency::DeDecimosMilesimos(LSoma);
}

Currency operator-(Currency A, Currency B)
{
    std::int64_t LDiferenca = 0;
    if (__builtin_sub_overflow(A.FDecimos, B.FDecimos, &LDiferenca))
        throw EIntOverflow("Diferença fora da faixa do tipo Currency");
    return Currency::DeDecimosMilesimos(LDiferenca);
}

long double operator/(Currency A, Currency B) { return Dividir(A.ParaExtended(), B.ParaExtended()); }
long double operator/(Currency A, long double B) { return Dividir(A.ParaExtended(), B); }

long double Dividir(long double ADividendo, long double ADivisor)
{
    if (ADivisor == 0.0L)
        throw EZeroDivide();
    return ADividendo / ADivisor;
}

} // namespace tarvo
