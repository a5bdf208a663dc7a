#include "trabalhador/s2205/UnTarvoESocialCamposS2205.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2205::TTarvoESocialCamposS2205(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{4FDF8CD7-02A0-4B8B-9B8E-F455416AB5E6}"), ideTrabalhador(AIDEmpregado),
      alteracao(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposS2205::Tabela()
{
    using Eu = TTarvoESocialCamposS2205;
    static const TPropriedades tabela{
        {"ideTrabalhador", &Eu::ideTrabalhador},
        {"alteracao", &Eu::alteracao},
    };
    return tabela;
}

void TTarvoESocialCamposS2205::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideTrabalhador.CarregarDados(AListaCamposModificados);
    alteracao.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
