#include "trabalhador/s2206/UnTarvoESocialCamposS2206.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2206::TTarvoESocialCamposS2206(std::int64_t AIDEmpregado, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{9733FFC0-DFAF-411F-8B4D-EDAAA0533615}"), ideVinculo(AIDEmpregado),
      altContratual(AIDEmpregado, AData)
{}

const TPropriedades& TTarvoESocialCamposS2206::Tabela()
{
    using Eu = TTarvoESocialCamposS2206;
    static const TPropriedades tabela{
        {"ideVinculo", &Eu::ideVinculo},
        {"altContratual", &Eu::altContratual},
    };
    return tabela;
}

void TTarvoESocialCamposS2206::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    altContratual.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
