#include "tabelas/s1000/UnTarvoESocialCamposInfoOP.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoEFR::TTarvoESocialCamposInfoEFR(std::int64_t)
    : TTarvoESocialCamposGrupoBase("{D2BEEFB8-9629-4730-B206-98D75AE668E5}")
{}

TTarvoESocialCamposInfoEnte::TTarvoESocialCamposInfoEnte(std::int64_t)
    : TTarvoESocialCamposGrupoBase("{905D2B04-8572-4402-810E-C2A5FF4E5548}")
{}

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
