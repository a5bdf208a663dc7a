#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo::trabalhador {

/// Sub-select of an id that stands in a column of a trainee's internship row, FP_EMPREGADOSDET 1/4.
std::string SqlIdDoEstagio(std::string_view AColuna, std::int64_t AIDEmpregado);

} // namespace tarvo::trabalhador
