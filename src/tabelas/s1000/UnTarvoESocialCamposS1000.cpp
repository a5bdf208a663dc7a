#include "tabelas/s1000/UnTarvoESocialCamposS1000.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1000::TTarvoESocialCamposS1000(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{92B8A2D9-6067-4E4B-A7D9-6454A47B6E19}"), IdeEmpregador(AIDEmpresa),
      InfoEmpregador(AIDEmpresa, AData)
{}

const TPropriedades& TTarvoESocialCamposS1000::Tabela()
{
    using Eu = TTarvoESocialCamposS1000;
    static const TPropriedades tabela{
        {"IdeEmpregador", &Eu::IdeEmpregador},
        {"InfoEmpregador", &Eu::InfoEmpregador},
    };
    return tabela;
}

void TTarvoESocialCamposS1000::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeEmpregador.CarregarDados(AListaCamposModificados);
    InfoEmpregador.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposS1000::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    InfoEmpregador.ReverterDados();
}

} // namespace tarvo::tabelas
