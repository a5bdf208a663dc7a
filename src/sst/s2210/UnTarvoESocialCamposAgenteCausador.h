#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::sst {

/// S-2210 agenteCausador: an agent of the accident; the parent sets its code.
class TTarvoESocialCamposAgenteCausador : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposAgenteCausador();

    std::int32_t codAgntCausador = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::sst
