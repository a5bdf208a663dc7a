#include "tabelas/s1060/UnTarvoESocialCamposS1060.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1060::TTarvoESocialCamposS1060(std::int64_t AIdAmbiente)
    : TTarvoESocialCamposGrupoBase("{CF0A5B14-FFD9-4FEF-8A61-35E14371176D}"), IdeAmbiente(AIdAmbiente),
      DadosAmbiente(AIdAmbiente), FatorRisco(AIdAmbiente)
{}

const TPropriedades& TTarvoESocialCamposS1060::Tabela()
{
    using Eu = TTarvoESocialCamposS1060;
    static const TPropriedades tabela{
        {"IdeAmbiente", &Eu::IdeAmbiente},
        {"DadosAmbiente", &Eu::DadosAmbiente},
        {"FatorRisco", &Eu::FatorRisco},
    };
    return tabela;
}

void TTarvoESocialCamposS1060::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    IdeAmbiente.CarregarDados(AListaCamposModificados);
    DadosAmbiente.CarregarDados(AListaCamposModificados);
    FatorRisco.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
