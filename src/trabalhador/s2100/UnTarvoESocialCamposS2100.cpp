#include "trabalhador/s2100/UnTarvoESocialCamposS2100.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2100::TTarvoESocialCamposS2100(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{144E457B-6CBE-47B6-8048-9C2228855153}"), Trabalhador(AIDEmpregado),
      Vinculo(AIDEmpregado, ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposS2100::Tabela()
{
    using Eu = TTarvoESocialCamposS2100;
    static const TPropriedades tabela{
        {"Trabalhador", &Eu::Trabalhador},
        {"Vinculo", &Eu::Vinculo},
    };
    return tabela;
}

void TTarvoESocialCamposS2100::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Trabalhador.CarregarDados(AListaCamposModificados);
    Vinculo.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
