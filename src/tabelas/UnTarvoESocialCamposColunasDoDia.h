#pragma once

#include <string_view>

#include "imports/UnTarvoTypesGeral.h"

namespace tarvo::tabelas {

/// Prefix or suffix of the columns of a weekday in TAB_HORARIOS: DOM, SEG ... SAB.
constexpr std::string_view ColunaDoDia(TDiaSemana ADia)
{
    constexpr std::string_view DIAS[]{"DOM", "SEG", "TER", "QUA", "QUI", "SEX", "SAB"};
    return DIAS[static_cast<std::size_t>(ADia)];
}

} // namespace tarvo::tabelas
