#include "tabelas/s1000/UnTarvoESocialCamposSoftwareHouse.h"

namespace tarvo::tabelas {

TTarvoESocialCamposSoftwareHouse::TTarvoESocialCamposSoftwareHouse(std::int64_t)
    : TTarvoESocialCamposGrupoBase("{29CB61D2-C500-47FD-BBEF-ACC2D959D96D}"), CnpjSoftHouse("11222333000181"),
      NmRazao("Tarvo Sistemas de Gestão Ltda."), NmCont("Suporte eSocial"), Telefone("4830000000"),
      email("esocial@tarvo.example")
{}

const TPropriedades& TTarvoESocialCamposSoftwareHouse::Tabela()
{
    using Eu = TTarvoESocialCamposSoftwareHouse;
    static const TPropriedades tabela{
        {"CnpjSoftHouse", &Eu::CnpjSoftHouse}, {"NmRazao", &Eu::NmRazao}, {"NmCont", &Eu::NmCont},
        {"Telefone", &Eu::Telefone},           {"email", &Eu::email},
    };
    return tabela;
}

void TTarvoESocialCamposSoftwareHouse::ReverterDados() { TTarvoESocialCamposGrupoBase::ReverterDados(); }

} // namespace tarvo::tabelas
