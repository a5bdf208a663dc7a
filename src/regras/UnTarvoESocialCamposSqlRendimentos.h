#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo::regras {

/// Leaves out incomes that the employer itself paid: `AND AColuna NOT IN (its registration and those of its
/// establishments)`. AIdEmpresa is a column or a number.
std::string CondicaoDeOutroEmpregador(std::string_view AColuna, std::string_view AIdEmpresa);

/// Where the worker's contribution is withheld by several employers in a fixed order, only the incomes up to this
/// employer's turn count (RENDIMENTOS, EMPREGADOS); otherwise empty.
std::string_view CondicaoDaOrdemDeDesconto(std::int64_t AIdEmpresa, std::string_view ACpf);

} // namespace tarvo::regras
