#include "tabelas/s1030/UnTarvoESocialCamposInfoCargo.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoCargo::TTarvoESocialCamposInfoCargo(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{FC496187-C3E0-411F-AC0C-3EFB2E3E662B}"), IdeCargo(AIDCargosDescr),
      DadosCargo(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposInfoCargo::Tabela()
{
    using Eu = TTarvoESocialCamposInfoCargo;
    static const TPropriedades tabela{
        {"IdeCargo", &Eu::IdeCargo},
        {"DadosCargo", &Eu::DadosCargo},
        {"NovaValidade", &Eu::NovaValidade},
    };
    return tabela;
}

void TTarvoESocialCamposInfoCargo::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeCargo.CarregarDados(AListaCamposModificados);
    DadosCargo.CarregarDados(AListaCamposModificados);
    NovaValidade.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposInfoCargo::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    IdeCargo.ReverterDados();
    DadosCargo.ReverterDados();
}

} // namespace tarvo::tabelas
