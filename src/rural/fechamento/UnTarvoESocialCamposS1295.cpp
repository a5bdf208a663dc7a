#include "rural/fechamento/UnTarvoESocialCamposS1295.h"

namespace tarvo::rural {

TTarvoESocialCamposS1295::TTarvoESocialCamposS1295()
    : TTarvoESocialCamposGrupoBase("{EF1E5F06-80E9-43EA-B1EB-F5C165A29CA3}")
{}

const TPropriedades& TTarvoESocialCamposS1295::Tabela()
{
    static const TPropriedades tabela{{"ideRespInf", &TTarvoESocialCamposS1295::ideRespInf}};
    return tabela;
}

void TTarvoESocialCamposS1295::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideRespInf.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::rural
