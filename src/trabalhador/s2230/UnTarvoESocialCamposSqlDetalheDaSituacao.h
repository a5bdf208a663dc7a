#pragma once

#include <cstdint>
#include <string>

namespace tarvo::trabalhador {

/// Statement for CNPJ and INFOONUS of the detail row FP_EMPREGADOSDET 3/ATp of a situation. The row holds the
/// situation's id as a text, and one that is no number is nobody's.
std::string SqlDetalheDaSituacao(std::int64_t AIdSituacao, int ATp);

} // namespace tarvo::trabalhador
