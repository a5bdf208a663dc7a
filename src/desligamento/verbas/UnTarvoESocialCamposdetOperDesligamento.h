#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"
#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

namespace tarvo::desligamento {

/// detOper: the operator of a rubric's health plan, of the worker of the amount.
template <class TDetPlano>
class TTarvoESocialCamposdetOperDesligamento : public tabelas::TTarvoESocialCamposDetOperPlanoSaude<TDetPlano> {
protected:
    TTarvoESocialCamposdetOperDesligamento(std::string_view AGuid, const TDadosCalculo& ADadosCalculo,
                                           TDateTime ADataInicioCalculo, TDateTime ADataFimCalculo,
                                           tabelas::TOperadorasDaVerba AOperadoras)
        : tabelas::TTarvoESocialCamposDetOperPlanoSaude<TDetPlano>(AGuid,
                                                                   {.IdVerba = ADadosCalculo.IDVerba,
                                                                    .Valor = ADadosCalculo.Valor,
                                                                    .DataInicio = ADataInicioCalculo,
                                                                    .DataFim = ADataFimCalculo,
                                                                    .DiasTrab = ADadosCalculo.DiasTrabNaLotacao},
                                                                   AOperadoras),
          FIDEmpregado(ADadosCalculo.IDEmpregado)
    {}

    std::string CondicaoDoEmpregado() const override { return "= " + std::to_string(FIDEmpregado); }

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::desligamento
