#include "tabelas/s1060/UnTarvoESocialCamposFatorRisco.h"

namespace tarvo::tabelas {

TTarvoESocialCamposFatorRisco::TTarvoESocialCamposFatorRisco(std::int64_t)
    : TTarvoESocialCamposGrupoBase("{AED04624-90CF-45EE-9915-01568216141A}"), codFatRis("2222")
{}

const TPropriedades& TTarvoESocialCamposFatorRisco::Tabela()
{
    using Eu = TTarvoESocialCamposFatorRisco;
    static const TPropriedades tabela{
        {"codFatRis", &Eu::codFatRis},
    };
    return tabela;
}

} // namespace tarvo::tabelas
