#pragma once

#include "desligamento/s2399/verbas/UnTarvoESocialCamposdetPlanoS2399.h"
#include "desligamento/verbas/UnTarvoESocialCamposdetOperDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 detOper: the operator of a rubric's health plan.
class TTarvoESocialCamposdetOperS2399
    : public TTarvoESocialCamposdetOperDesligamento<TTarvoESocialCamposdetPlanoS2399> {
public:
    TTarvoESocialCamposdetOperS2399(const TDadosCalculoS2399& ADadosCalculo, TDateTime ADataInicioCalculo,
                                    TDateTime ADataFimCalculo)
        : TTarvoESocialCamposdetOperDesligamento("{A00D8010-2F38-4140-8BB9-F99084C2C79C}", ADadosCalculo,
                                                 ADataInicioCalculo, ADataFimCalculo,
                                                 tabelas::TOperadorasDaVerba::Todas)
    {}
};

} // namespace tarvo::desligamento
