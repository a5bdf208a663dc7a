#pragma once

#include "desligamento/s2399/verbas/UnTarvoESocialCamposdetOperS2399.h"
#include "desligamento/verbas/UnTarvoESocialCamposinfoSaudeColetDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 infoSaudeColet: the collective health plan in a lotação, by operator.
class TTarvoESocialCamposinfoSaudeColetS2399
    : public TTarvoESocialCamposinfoSaudeColetDesligamento<TTarvoESocialCamposdetOperS2399> {
public:
    explicit TTarvoESocialCamposinfoSaudeColetS2399(const TDadosCalculosDesligamento& ADadosCalculos)
        : TTarvoESocialCamposinfoSaudeColetDesligamento("{AFD81CDD-9EFA-482A-96D3-A37680F08B4E}", ADadosCalculos)
    {}
};

} // namespace tarvo::desligamento
