#include "rural/fechamento/UnTarvoESocialCamposS1298.h"

namespace tarvo::rural {

TTarvoESocialCamposS1298::TTarvoESocialCamposS1298(std::int64_t AIDEmpresa)
    : TTarvoESocialCamposGrupoBase("{2ADDFF0A-D823-4BA9-8B2C-BA13A6949AA3}"), IdeEmpregador(AIDEmpresa)
{}

const TPropriedades& TTarvoESocialCamposS1298::Tabela()
{
    static const TPropriedades tabela{{"IdeEmpregador", &TTarvoESocialCamposS1298::IdeEmpregador}};
    return tabela;
}

void TTarvoESocialCamposS1298::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeEmpregador.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::rural
