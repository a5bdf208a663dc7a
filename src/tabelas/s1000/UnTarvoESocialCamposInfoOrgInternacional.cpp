#include "tabelas/s1000/UnTarvoESocialCamposInfoOrgInternacional.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoOrgInternacional::TTarvoESocialCamposInfoOrgInternacional()
    : TTarvoESocialCamposGrupoBase("{2077594F-5B43-44D6-84B7-73E960CAD3FD}")
{}

const TPropriedades& TTarvoESocialCamposInfoOrgInternacional::Tabela()
{
    static const TPropriedades tabela{
        {"IndAcordoIsenMulta", &TTarvoESocialCamposInfoOrgInternacional::IndAcordoIsenMulta},
    };
    return tabela;
}

void TTarvoESocialCamposInfoOrgInternacional::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IndAcordoIsenMulta = static_cast<tpIndAcordoIsencaoMulta>(0);
}

} // namespace tarvo::tabelas
