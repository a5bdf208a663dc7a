#include "tabelas/s1035/UnTarvoESocialCamposInfoCarreira.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoCarreira::TTarvoESocialCamposInfoCarreira(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{CA48A4BA-A058-47BA-849C-145400E6D5F9}"), IdeCarreira(AIDCargosDescr),
      dadosCarreira(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposInfoCarreira::Tabela()
{
    using Eu = TTarvoESocialCamposInfoCarreira;
    static const TPropriedades tabela{
        {"IdeCarreira", &Eu::IdeCarreira},
        {"dadosCarreira", &Eu::dadosCarreira},
    };
    return tabela;
}

void TTarvoESocialCamposInfoCarreira::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeCarreira.CarregarDados(AListaCamposModificados);
    dadosCarreira.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
