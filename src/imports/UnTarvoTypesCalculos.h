#pragma once

#include <cstdint>

namespace tarvo {

/// What a company splits its social-security guides by.
enum class TTipoQuebraGpsGfip : std::uint8_t { Nenhuma = 0, Empresa = 1, Estabelecimento = 2, Departamento = 3 };

} // namespace tarvo
