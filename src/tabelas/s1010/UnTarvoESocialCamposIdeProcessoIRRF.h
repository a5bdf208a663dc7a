#pragma once

#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoVerba.h"

namespace tarvo::tabelas {

/// S-1010 ideProcessoIRRF: the process that suspends income tax on a rubric. Sources: ES02_SPPROC and its newest
/// ES02_SPPROCDET.
class TTarvoESocialCamposIdeProcessoIRRF : public TTarvoESocialCamposIdeProcessoVerba {
public:
    TTarvoESocialCamposIdeProcessoIRRF();

    std::string NrProc;
    std::string CodSusp;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::tabelas
