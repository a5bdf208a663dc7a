#pragma once

#include "desligamento/s2299/UnTS2299DadosCalculos.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposdetVerbasS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoAgNocivoS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoSaudeColetS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoSimplesS2299.h"
#include "desligamento/verbas/UnTarvoESocialCamposideEstabLotDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 ideEstabLot: a lotação and its rubrics. No health plan in a complementary dismissal or in the differences of
/// an agreement.
class TTarvoESocialCamposideEstabLotS2299
    : public TTarvoESocialCamposideEstabLotDesligamento<
          TTarvoESocialCamposdetVerbasS2299, TTarvoESocialCamposinfoSaudeColetS2299,
          TTarvoESocialCamposinfoAgNocivoS2299, TTarvoESocialCamposinfoSimplesS2299> {
public:
    explicit TTarvoESocialCamposideEstabLotS2299(const TS2299DadosCalculos& ADadosCalculo)
        : TTarvoESocialCamposideEstabLotDesligamento("{A8F0D8CA-CE60-4479-B554-4D3488828F4B}", ADadosCalculo)
    {}

protected:
    bool TemPlanoDeSaude(TTipoCalculoDesligamento ATipo) const override
    {
        return ATipo != TTipoCalculoDesligamento::RescisaoComplementar &&
               ATipo != TTipoCalculoDesligamento::ComplementarPagoNaCompet;
    }
};

} // namespace tarvo::desligamento
