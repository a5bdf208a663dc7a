#include "desligamento/s2299/verbas/UnTarvoESocialCamposidePeriodoS2299.h"

namespace tarvo::desligamento {

TTarvoESocialCamposidePeriodoS2299::TTarvoESocialCamposidePeriodoS2299(const TS2299DadosCalculos& ADadosCalculos)
    : TTarvoESocialCamposGrupoBase("{F1D04CC4-6715-4019-A6CF-1ABCD5AE68BA}"), FDadosCalculos(ADadosCalculos)
{}

const TPropriedades& TTarvoESocialCamposidePeriodoS2299::Tabela()
{
    using Eu = TTarvoESocialCamposidePeriodoS2299;
    static const TPropriedades tabela{{"perRef", &Eu::perRef}, {"ideEstabLot", &Eu::ideEstabLot}};
    return tabela;
}

void TTarvoESocialCamposidePeriodoS2299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarIdeEstabLot(ideEstabLot, FDadosCalculos);
}

void TTarvoESocialCamposidePeriodoS2299::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    perRef = FDadosCalculos.DadosDmDev().DataInicio;
}

} // namespace tarvo::desligamento
