#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposdetVerbasDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 detVerbas: a rubric of the end of the work in a lotação. Leaves vrUnit as it is.
class TTarvoESocialCamposdetVerbasS2399 : public TTarvoESocialCamposdetVerbasDesligamento {
public:
    TTarvoESocialCamposdetVerbasS2399(const TDadosCalculoS2399& ADadosCalculo, std::int64_t AIdEmpresa,
                                      TDate ADataDemissao)
        : TTarvoESocialCamposdetVerbasDesligamento("{C2281B0F-AE85-4262-ACC7-2396C4ADA3D1}", ADadosCalculo, AIdEmpresa,
                                                   ADataDemissao)
    {}
};

} // namespace tarvo::desligamento
