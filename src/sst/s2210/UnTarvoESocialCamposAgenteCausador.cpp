#include "sst/s2210/UnTarvoESocialCamposAgenteCausador.h"

namespace tarvo::sst {

TTarvoESocialCamposAgenteCausador::TTarvoESocialCamposAgenteCausador()
    : TTarvoESocialCamposGrupoBase("{D663262B-E03F-4E0C-9F53-64960F302863}")
{}

const TPropriedades& TTarvoESocialCamposAgenteCausador::Tabela()
{
    using Eu = TTarvoESocialCamposAgenteCausador;
    static const TPropriedades tabela{
        {"codAgntCausador", &Eu::codAgntCausador},
    };
    return tabela;
}

} // namespace tarvo::sst
