#pragma once

#include <cstdint>

namespace tarvo::rural {

/// What a process group is told by whoever has the process: a producer, or the acquirer. Amounts in reais.
class TTarvoESocialCamposinfoProcJudIOP {
public:
    std::int64_t IdProcesso = 0;
    double vlrBruto = 0;
    double vrCPDescPR = 0;
    double vrRatDescPR = 0;
    double vrSenarDesc = 0;
    /// How many processes share what was not retained.
    std::int32_t QtdProcesso = 0;
    /// Set by the own payroll's producer alone.
    bool ProducaoIsenta = false;
};

} // namespace tarvo::rural
