#include "imports/valores/UnOvraCurrency.h"

#include <cmath>
#include <limits>

#include "imports/UnOvraExcecoes.h"

namespace tarvo {

namespace {

// A decimal half such as 1.00005 has no exact binary form: a product within a few units of its last place of a half is
// met as that half. Where the type itself is coarser than that, the number is taken as it is.
template <class T>
std::int64_t Escalar(T AValor)
{
    T LProduto = AValor * static_cast<T>(Currency::ESCALA);
    const T LMetade = std::trunc(LProduto) + std::copysign(static_cast<T>(0.5), LProduto);
    const T LFolga = 4 * std::numeric_limits<T>::epsilon() * std::fabs(LProduto);
    if (LFolga < static_cast<T>(1e-3) && std::fabs(LProduto - LMetade) <= LFolga)
        LProduto = LMetade;
    const T LEscalado = std::nearbyint(LProduto);
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
