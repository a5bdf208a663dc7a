#include "desligamento/verbas/UnTarvoESocialCamposremunOutrEmprDesligamento.h"

namespace tarvo::desligamento {

const TPropriedades& TTarvoESocialCamposremunOutrEmprDesligamento::Tabela()
{
    using Eu = TTarvoESocialCamposremunOutrEmprDesligamento;
    static const TPropriedades tabela{
        {"tpInsc", &Eu::tpInsc},
        {"nrInsc", &Eu::nrInsc},
        {"codCateg", &Eu::codCateg},
        {"vlrRemunOE", &Eu::vlrRemunOE},
    };
    return tabela;
}

} // namespace tarvo::desligamento
