#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposdetPlanoDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 detPlano: a dependant in the health plan.
class TTarvoESocialCamposdetPlanoS2299 : public TTarvoESocialCamposdetPlanoDesligamento {
public:
    TTarvoESocialCamposdetPlanoS2299(std::int64_t AIdPSaudeVlrMesDep, TDateTime ADataInicioCalculo,
                                     TDateTime ADataFimCalculo, std::int32_t ADiasTrabalhadosNaLotacao)
        : TTarvoESocialCamposdetPlanoDesligamento("{7C8D2E4B-6CE5-4CF6-9FFA-7A98243FE2E8}", AIdPSaudeVlrMesDep,
                                                  ADataInicioCalculo, ADataFimCalculo, ADiasTrabalhadosNaLotacao)
    {}
};

} // namespace tarvo::desligamento
