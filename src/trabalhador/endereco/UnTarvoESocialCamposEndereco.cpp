#include "trabalhador/endereco/UnTarvoESocialCamposEndereco.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposEndereco::TTarvoESocialCamposEndereco(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{51C354A8-EF61-4A27-B585-253507EDC8A3}"), Brasil(AIDEmpregado),
      Exterior(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposEndereco::Tabela()
{
    using Eu = TTarvoESocialCamposEndereco;
    static const TPropriedades tabela{
        {"Brasil", &Eu::Brasil},
        {"Exterior", &Eu::Exterior},
    };
    return tabela;
}

void TTarvoESocialCamposEndereco::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Brasil.CarregarDados(AListaCamposModificados);
    Exterior.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
