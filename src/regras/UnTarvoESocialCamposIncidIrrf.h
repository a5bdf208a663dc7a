#pragma once

#include <cstdint>

namespace tarvo::regras {

/// True for the income-tax codes of withheld tax (31 to 35), alimony (51 to 55), and judicial deposit and compensation
/// (81 to 83): rubrics that a payment reports and a remuneration doesn't.
constexpr bool EhRetencaoDeIrrf(std::int64_t ACodIncIrrf)
{
    return (ACodIncIrrf >= 31 && ACodIncIrrf <= 35) || (ACodIncIrrf >= 51 && ACodIncIrrf <= 55) ||
           (ACodIncIrrf >= 81 && ACodIncIrrf <= 83);
}

} // namespace tarvo::regras
