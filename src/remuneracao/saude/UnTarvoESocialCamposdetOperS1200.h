#pragma once

#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"
#include "remuneracao/saude/UnTarvoESocialCamposDetPlanoS1200.h"
#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

namespace tarvo::remuneracao {

/// S-1200 detOper: the operator of a rubric's health plan, of the worker on the parameter object.
class TTarvoESocialCamposdetOperS1200
    : public tabelas::TTarvoESocialCamposDetOperPlanoSaude<TTarvoESocialCamposDetPlanoS1200> {
public:
    TTarvoESocialCamposdetOperS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200,
                                    const TDadosCalculo& ADadosCalculo, TDateTime ADataInicioCalculo,
                                    TDateTime ADataFimCalculo);

protected:
    std::string CondicaoDoEmpregado() const override;

private:
    const TTarvoESocialCamposS1200IOP& FinfoBind1200;
};

} // namespace tarvo::remuneracao
