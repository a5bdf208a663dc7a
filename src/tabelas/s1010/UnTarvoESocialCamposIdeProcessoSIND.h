#pragma once

#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoVerba.h"

namespace tarvo::tabelas {

/// S-1010 ideProcessoSIND: the process that suspends the union contribution on a rubric. Source: ES02_SPPROC.
class TTarvoESocialCamposIdeProcessoSIND : public TTarvoESocialCamposIdeProcessoVerba {
public:
    TTarvoESocialCamposIdeProcessoSIND();

    std::string NrProc;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::tabelas
