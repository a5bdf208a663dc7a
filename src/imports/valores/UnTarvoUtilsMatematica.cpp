#include "imports/valores/UnTarvoUtilsMatematica.h"

#include <array>
#include <cmath>

namespace tarvo {

double TTarvoUtilsMatematica::ConverterHorasEmDecimais(double AHoras)
{
    // 7.30 is a little less or more in binary; the minutes are met again as they were written.
    constexpr long double PRECISAO = 1e8L;
    const long double LHoras = std::trunc(static_cast<long double>(AHoras));
    const long double LMinutos = std::round((static_cast<long double>(AHoras) - LHoras) * 100.0L * PRECISAO) / PRECISAO;
    return static_cast<double>(LHoras + LMinutos / 60.0L);
}

double Arredondar(Currency AValor, std::uint8_t ACasas)
{
    constexpr std::array<std::int64_t, 4> UNIDADES{10'000, 1'000, 100, 10};
    if (ACasas >= UNIDADES.size())
        return AValor.ParaDouble();
    const std::int64_t LUnidade = UNIDADES[ACasas];
    const std::int64_t LResto = AValor.DecimosMilesimos() % LUnidade;
    const Currency LTruncado = Currency::DeDecimosMilesimos(AValor.DecimosMilesimos() - LResto);
    if (LResto >= LUnidade / 2)
        return (LTruncado + Currency::DeDecimosMilesimos(LUnidade)).ParaDouble();
    if (LResto <= -LUnidade / 2)
        return (LTruncado - Currency::DeDecimosMilesimos(LUnidade)).ParaDouble();
    return LTruncado.ParaDouble();
}

} // namespace tarvo
