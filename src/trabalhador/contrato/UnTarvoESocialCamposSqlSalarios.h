#pragma once

#include <cstdint>
#include <string>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::trabalhador {

/// Derived table of a worker's salary rows at a date: the columns of SP_BUSCARSALARIOEMPREGADO, and in ORDEM their
/// numbers in the order of the procedure, which is that of their keys. A join may turn the rows round.
std::string SqlSalarios(std::int64_t AIDEmpregado, TDateTime AData);

} // namespace tarvo::trabalhador
