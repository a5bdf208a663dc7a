#include "remuneracao/saude/UnTarvoESocialCamposInfoSaudeColetS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposInfoSaudeColetS1200::TTarvoESocialCamposInfoSaudeColetS1200(
    const TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{C672AE56-2259-4EFE-A1B1-D555E2A94E38}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposInfoSaudeColetS1200::Tabela()
{
    using Eu = TTarvoESocialCamposInfoSaudeColetS1200;
    static const TPropriedades tabela{
        {"detOper", &Eu::detOper}, {"OrigemInfoCalculo", &Eu::OrigemInfoCalculo}, {"IdFilial", &Eu::IdFilial},
        {"IdDepto", &Eu::IdDepto}, {"possuiInformacao", &Eu::possuiInformacao},
    };
    return tabela;
}

void TTarvoESocialCamposInfoSaudeColetS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosDetOper();
}

void TTarvoESocialCamposInfoSaudeColetS1200::CarregarDadosDetOper()
{
    if (ListaDadosCalculo == nullptr)
        return;
    for (const auto& LDados : *ListaDadosCalculo)
        tabelas::CarregarDetOper(detOper, std::make_unique<TTarvoESocialCamposdetOperS1200>(
                                              FInfoBind, LDados, FInfoBind.DataInicio(), FInfoBind.DataFim()));
}

} // namespace tarvo::remuneracao
