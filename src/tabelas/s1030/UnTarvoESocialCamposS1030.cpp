#include "tabelas/s1030/UnTarvoESocialCamposS1030.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1030::TTarvoESocialCamposS1030(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{8745651A-235E-4038-86DF-FB569C94F5D0}"), InfoCargo(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposS1030::Tabela()
{
    using Eu = TTarvoESocialCamposS1030;
    static const TPropriedades tabela{
        {"InfoCargo", &Eu::InfoCargo},
    };
    return tabela;
}

void TTarvoESocialCamposS1030::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoCargo.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposS1030::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    InfoCargo.ReverterDados();
}

} // namespace tarvo::tabelas
