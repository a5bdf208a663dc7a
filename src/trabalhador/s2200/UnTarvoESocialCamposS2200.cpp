#include "trabalhador/s2200/UnTarvoESocialCamposS2200.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2200::TTarvoESocialCamposS2200(std::int64_t, std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{DA9D11DB-3AEB-48FE-9762-12177FD96BEC}"), Trabalhador(AIDEmpregado),
      Vinculo(AIDEmpregado, ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposS2200::Tabela()
{
    using Eu = TTarvoESocialCamposS2200;
    static const TPropriedades tabela{
        {"Trabalhador", &Eu::Trabalhador},
        {"Vinculo", &Eu::Vinculo},
    };
    return tabela;
}

void TTarvoESocialCamposS2200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Trabalhador.CarregarDados(AListaCamposModificados);
    Vinculo.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
