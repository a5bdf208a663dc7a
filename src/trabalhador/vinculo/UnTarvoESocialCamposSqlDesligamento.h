#pragma once

#include <cstdint>
#include <string>

namespace tarvo::trabalhador {

/// Statement for DATA_DEMISSAO of a worker who has a termination of situation 0 in TAB_RESCISAO; no row otherwise.
std::string SqlDataDoDesligamento(std::int64_t AIDEmpregado);

} // namespace tarvo::trabalhador
