#pragma once

#include "desligamento/s2399/UnTS2399DadosCalculos.h"
#include "desligamento/s2399/verbas/UnTarvoESocialCamposdetVerbasS2399.h"
#include "desligamento/s2399/verbas/UnTarvoESocialCamposinfoAgNocivoS2399.h"
#include "desligamento/s2399/verbas/UnTarvoESocialCamposinfoSaudeColetS2399.h"
#include "desligamento/s2399/verbas/UnTarvoESocialCamposinfoSimplesS2399.h"
#include "desligamento/verbas/UnTarvoESocialCamposideEstabLotDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 ideEstabLot: a lotação and its rubrics. No health plan in a complementary termination.
class TTarvoESocialCamposideEstabLotS2399
    : public TTarvoESocialCamposideEstabLotDesligamento<
          TTarvoESocialCamposdetVerbasS2399, TTarvoESocialCamposinfoSaudeColetS2399,
          TTarvoESocialCamposinfoAgNocivoS2399, TTarvoESocialCamposinfoSimplesS2399> {
public:
    explicit TTarvoESocialCamposideEstabLotS2399(const TS2399DadosCalculos& ADadosCalculo)
        : TTarvoESocialCamposideEstabLotDesligamento("{BC9056DD-2CB4-4539-A0FD-7429F7771DC6}", ADadosCalculo)
    {}

protected:
    bool TemPlanoDeSaude(TTipoCalculoDesligamento ATipo) const override
    {
        return ATipo != TTipoCalculoDesligamento::RescisaoComplementar;
    }
};

} // namespace tarvo::desligamento
