#pragma once

#include <cstdint>

namespace tarvo {

/// Look-ups of terminations (FP_AVISOPREVIO).
class TTarvoConsultasRescisao {
public:
    /// The worker of a notice; 0 when there is none.
    static std::int64_t BuscarIDEmpregadoPeloIDAvisoPrevio(std::int64_t AIdAviso);
};

} // namespace tarvo
