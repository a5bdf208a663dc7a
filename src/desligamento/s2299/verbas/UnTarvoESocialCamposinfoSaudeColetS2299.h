#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposdetOperS2299.h"
#include "desligamento/verbas/UnTarvoESocialCamposinfoSaudeColetDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 infoSaudeColet: the collective health plan in a lotação, by operator.
class TTarvoESocialCamposinfoSaudeColetS2299
    : public TTarvoESocialCamposinfoSaudeColetDesligamento<TTarvoESocialCamposdetOperS2299> {
public:
    explicit TTarvoESocialCamposinfoSaudeColetS2299(const TDadosCalculosDesligamento& ADadosCalculos)
        : TTarvoESocialCamposinfoSaudeColetDesligamento("{33B0A0C1-121E-4445-B1C8-C384A53C5037}", ADadosCalculos)
    {}
};

} // namespace tarvo::desligamento
