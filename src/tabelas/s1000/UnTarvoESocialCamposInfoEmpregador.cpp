#include "tabelas/s1000/UnTarvoESocialCamposInfoEmpregador.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoEmpregador::TTarvoESocialCamposInfoEmpregador(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{B1FCA9A0-0ED5-40F9-9001-400AC2384702}"), infoCadastro(AIDEmpresa, AData),
      idePeriodo(AIDEmpresa, AData)
{}

const TPropriedades& TTarvoESocialCamposInfoEmpregador::Tabela()
{
    using Eu = TTarvoESocialCamposInfoEmpregador;
    static const TPropriedades tabela{
        {"infoCadastro", &Eu::infoCadastro},
        {"idePeriodo", &Eu::idePeriodo},
    };
    return tabela;
}

void TTarvoESocialCamposInfoEmpregador::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    infoCadastro.CarregarDados(AListaCamposModificados);
    idePeriodo.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposInfoEmpregador::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    // The reverse of the load order; meant.
    idePeriodo.ReverterDados();
    infoCadastro.ReverterDados();
}

} // namespace tarvo::tabelas
