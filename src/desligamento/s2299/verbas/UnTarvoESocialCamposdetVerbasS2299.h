#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposdetVerbasDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 detVerbas: a rubric of the dismissal in a lotação. Clears vrUnit.
class TTarvoESocialCamposdetVerbasS2299 : public TTarvoESocialCamposdetVerbasDesligamento {
public:
    TTarvoESocialCamposdetVerbasS2299(const TDadosCalculo& ADadosCalculo, std::int64_t AIdEmpresa, TDate ADataDemissao)
        : TTarvoESocialCamposdetVerbasDesligamento("{AB00A200-FFC9-4C40-97EC-AE903DB0430A}", ADadosCalculo, AIdEmpresa,
                                                   ADataDemissao)
    {}

protected:
    void AtribuirValoresManualmente() override;
};

} // namespace tarvo::desligamento
