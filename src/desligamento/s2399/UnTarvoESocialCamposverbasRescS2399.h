#pragma once

#include "desligamento/s2399/verbas/UnTarvoESocialCamposdmDev2399.h"
#include "desligamento/s2399/verbas/UnTarvoESocialCamposinfoMVS2399.h"
#include "desligamento/s2399/verbas/UnTarvoESocialCamposprocJudTrabS2399.h"
#include "desligamento/verbas/UnTarvoESocialCamposverbasRescDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 verbasResc: what the end of the work paid, one demonstrative a calculation. The constructor reads the company
/// and the day of the end. Sources: CALCULO, RESC_COMPL.
class TTarvoESocialCamposverbasRescS2399
    : public TTarvoESocialCamposverbasRescDesligamento<TdmDevS2399IOP, TTarvoESocialCamposdmDev2399,
                                                       TTarvoESocialCamposprocJudTrabS2399,
                                                       TTarvoESocialCamposinfoMVS2399> {
public:
    explicit TTarvoESocialCamposverbasRescS2399(std::int64_t AIdEmpregado);

protected:
    std::string SqlDosDemonstrativos(const TdmDevS2399IOP& ADmDev) const override;
    void AlimentarDemonstrativo(TdmDevS2399IOP& ADmDev, const TOvraClientDataSet& ACds) const override;
};

} // namespace tarvo::desligamento
