#include "trabalhador/documentos/UnTarvoESocialCamposRic.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposRic::TTarvoESocialCamposRic()
    : TTarvoESocialCamposGrupoBase("{9B7B77E5-251A-4A0D-9AD3-4D5721A1B331}")
{}

const TPropriedades& TTarvoESocialCamposRic::Tabela()
{
    using Eu = TTarvoESocialCamposRic;
    static const TPropriedades tabela{
        {"Numero", &Eu::Numero},
        {"OrgaoEmissor", &Eu::OrgaoEmissor},
        {"DataExpedicao", &Eu::DataExpedicao},
    };
    return tabela;
}

} // namespace tarvo::trabalhador
