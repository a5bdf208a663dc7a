#pragma once

#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoVerba.h"

namespace tarvo::tabelas {

/// S-1010 ideProcessoFGTS: the process that suspends FGTS on a rubric. Source: ES02_SPPROC.
class TTarvoESocialCamposIdeProcessoFGTS : public TTarvoESocialCamposIdeProcessoVerba {
public:
    TTarvoESocialCamposIdeProcessoFGTS();

    std::string NrProc;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::tabelas
