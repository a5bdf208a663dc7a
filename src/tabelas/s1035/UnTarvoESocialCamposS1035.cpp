#include "tabelas/s1035/UnTarvoESocialCamposS1035.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1035::TTarvoESocialCamposS1035(std::int64_t AIdCargoDescr)
    : TTarvoESocialCamposGrupoBase("{9EDD7129-DD0C-48FA-9951-830DB5AC55B2}"), infoCarreira(AIdCargoDescr)
{}

const TPropriedades& TTarvoESocialCamposS1035::Tabela()
{
    using Eu = TTarvoESocialCamposS1035;
    static const TPropriedades tabela{
        {"infoCarreira", &Eu::infoCarreira},
    };
    return tabela;
}

void TTarvoESocialCamposS1035::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    infoCarreira.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
