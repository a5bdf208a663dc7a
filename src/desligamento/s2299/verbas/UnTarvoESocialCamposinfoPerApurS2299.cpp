#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoPerApurS2299.h"

namespace tarvo::desligamento {

TTarvoESocialCamposinfoPerApurS2299::TTarvoESocialCamposinfoPerApurS2299()
    : TTarvoESocialCamposGrupoBase("{7E2B1D36-4299-4FD7-B96A-FE94C6CFB9F2}")
{}

const TPropriedades& TTarvoESocialCamposinfoPerApurS2299::Tabela()
{
    static const TPropriedades tabela{{"ideEstabLot", &TTarvoESocialCamposinfoPerApurS2299::ideEstabLot}};
    return tabela;
}

void TTarvoESocialCamposinfoPerApurS2299::CarregarDados(const TS2299DadosCalculos& ADadosCalculos)
{
    TTarvoESocialCamposGrupoBase::CarregarDados();
    CarregarIdeEstabLot(ideEstabLot, ADadosCalculos);
}

} // namespace tarvo::desligamento
