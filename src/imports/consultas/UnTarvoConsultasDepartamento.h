#pragma once

#include <cstdint>

namespace tarvo {

/// Look-ups of departments (SC00_DEPTO).
class TTarvoConsultasDepartamento {
public:
    /// Kind of department; 2 and 3 mark one that is a lotação of its own. 0 when absent.
    static std::uint8_t BuscarTipoDepartamento(std::int64_t AIDDepto);
};

} // namespace tarvo
