#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposdetPlanoDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 detPlano: a dependant in the health plan.
class TTarvoESocialCamposdetPlanoS2399 : public TTarvoESocialCamposdetPlanoDesligamento {
public:
    TTarvoESocialCamposdetPlanoS2399(std::int64_t AIdPSaudeVlrMesDep, TDateTime ADataInicioCalculo,
                                     TDateTime ADataFimCalculo, std::int32_t ADiasTrabalhadosNaLotacao)
        : TTarvoESocialCamposdetPlanoDesligamento("{24D07A1F-63EB-4D8A-B054-063E94EC7050}", AIdPSaudeVlrMesDep,
                                                  ADataInicioCalculo, ADataFimCalculo, ADiasTrabalhadosNaLotacao)
    {}
};

} // namespace tarvo::desligamento
