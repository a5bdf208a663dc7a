#pragma once

#include <array>
#include <string_view>

#include "imports/UnTarvoTypesGeral.h"

namespace tarvo::tabelas {

/// The weekday's part of the names of TAB_HORARIOS' columns: SEG_ENTR, DURJORNADASEG. std::out_of_range for a value
/// that is no weekday.
inline std::string_view PrefixoDoDia(TDiaSemana ADiaSemana)
{
    static constexpr std::array<std::string_view, 7> PREFIXOS{"DOM", "SEG", "TER", "QUA", "QUI", "SEX", "SAB"};
    return PREFIXOS.at(static_cast<std::size_t>(ADiaSemana));
}

} // namespace tarvo::tabelas
