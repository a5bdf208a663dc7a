#include "tabelas/s1030/UnTarvoESocialCamposNovaValidade.h"

namespace tarvo::tabelas {

TTarvoESocialCamposNovaValidade::TTarvoESocialCamposNovaValidade()
    : TTarvoESocialCamposGrupoBase("{3DA25510-A3D6-421A-9FDC-B2A6CAD33F2E}")
{}

const TPropriedades& TTarvoESocialCamposNovaValidade::Tabela()
{
    using Eu = TTarvoESocialCamposNovaValidade;
    static const TPropriedades tabela{
        {"IniValid", &Eu::IniValid},
        {"FimValid", &Eu::FimValid},
    };
    return tabela;
}

} // namespace tarvo::tabelas
