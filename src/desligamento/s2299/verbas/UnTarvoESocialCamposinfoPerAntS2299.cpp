#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoPerAntS2299.h"

namespace tarvo::desligamento {

TTarvoESocialCamposinfoPerAntS2299::TTarvoESocialCamposinfoPerAntS2299()
    : TTarvoESocialCamposGrupoBase("{901C29CD-0C6F-4CE5-BED4-4B5A4BF4E584}")
{}

const TPropriedades& TTarvoESocialCamposinfoPerAntS2299::Tabela()
{
    static const TPropriedades tabela{{"ideADC", &TTarvoESocialCamposinfoPerAntS2299::ideADC}};
    return tabela;
}

void TTarvoESocialCamposinfoPerAntS2299::CarregarDados(const TS2299DadosCalculos& ADadosCalculos)
{
    TTarvoESocialCamposGrupoBase::CarregarDados();
    auto LAcordo = std::make_unique<TTarvoESocialCamposideADCS2299>(ADadosCalculos);
    LAcordo->CarregarDados();
    ideADC.push_back(std::move(LAcordo));
}

} // namespace tarvo::desligamento
