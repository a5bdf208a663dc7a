#pragma once

#include <cstdint>

namespace tarvo {

/// Look-ups of toxicological exams (FP_EXAMETOXICOLOGICO).
class TTarvoConsultasExamesToxicologicos {
public:
    /// The worker of an exam; 0 when there is none.
    static std::int64_t BuscarIdEmpregadoPeloIdExameToxic(std::int64_t AIdExame);
};

} // namespace tarvo
