#pragma once

#include <cstdint>

namespace tarvo {

/// Look-ups of leaves and other situations (SITUACOES).
class TTarvoConsultasEmpregadoSituacoes {
public:
    /// The worker of a situation; 0 when there is none.
    static std::int64_t BuscarIdEmpregadoPeloIDSituacao(std::int64_t AIdSituacao);
};

} // namespace tarvo
