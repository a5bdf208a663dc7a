#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposdetPlanoS2299.h"
#include "desligamento/verbas/UnTarvoESocialCamposdetOperDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 detOper: the operator of a rubric's health plan.
class TTarvoESocialCamposdetOperS2299
    : public TTarvoESocialCamposdetOperDesligamento<TTarvoESocialCamposdetPlanoS2299> {
public:
    TTarvoESocialCamposdetOperS2299(const TDadosCalculo& ADadosCalculo, TDateTime ADataInicioCalculo,
                                    TDateTime ADataFimCalculo)
        : TTarvoESocialCamposdetOperDesligamento("{47FD1DE5-FF3B-4362-95D1-BAB400A9F942}", ADadosCalculo,
                                                 ADataInicioCalculo, ADataFimCalculo,
                                                 tabelas::TOperadorasDaVerba::SemTipo2)
    {}
};

} // namespace tarvo::desligamento
