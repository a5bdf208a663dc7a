#pragma once

#include <cstdint>

namespace tarvo {

/// Look-ups of accident reports (TABCAT).
class TTarvoConsultasCAT {
public:
    /// The worker of an accident report, whoever registered it; 0 when there is none.
    static std::int64_t BuscarIdEmpregadoPeloIdTabCat(std::int64_t AIdCat);
};

} // namespace tarvo
