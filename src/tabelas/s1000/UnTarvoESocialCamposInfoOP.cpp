#include "tabelas/s1000/UnTarvoESocialCamposInfoOP.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoOP::TTarvoESocialCamposInfoOP(std::int64_t)
    : TTarvoESocialCamposGrupoBase("{D0DE68ED-313F-4085-AD3C-9A859B8783AC}")
{}

const TPropriedades& TTarvoESocialCamposInfoOP::Tabela()
{
    using Eu = TTarvoESocialCamposInfoOP;
    static const TPropriedades tabela{
        {"nrSiafi", &Eu::nrSiafi},
        {"infoEFR", &Eu::infoEFR},
        {"infoEnte", &Eu::infoEnte},
    };
    return tabela;
}

void TTarvoESocialCamposInfoOP::ReverterDados() { TTarvoESocialCamposGrupoBase::ReverterDados(); }

} // namespace tarvo::tabelas
