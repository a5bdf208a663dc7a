#pragma once

#include <string_view>

namespace tarvo::trabalhador {

/// Column of EMPREGADOS: the number of the street as the layouts take it. A number that is not set stays NULL: the test
/// isn't true then, and the other branch is the column itself.
inline constexpr std::string_view NUMERO_LOGRADOURO_ESOCIAL =
    "IIF(TRIM(EMPREGADOS.NUM_END) = '','S/N',EMPREGADOS.NUM_END) AS NUMEROLOGRESOCIAL";

} // namespace tarvo::trabalhador
