#include "remuneracao/anteriores/UnTarvoESocialCamposinfoPerAntS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposinfoPerAntS1200::TTarvoESocialCamposinfoPerAntS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{4A7FEADB-8F6D-4ADF-B527-F9D7BACD6019}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposinfoPerAntS1200::Tabela()
{
    using Eu = TTarvoESocialCamposinfoPerAntS1200;
    static const TPropriedades tabela{
        {"ideAdc", &Eu::ideAdc},
        {"possuiInformacao", &Eu::possuiInformacao},
    };
    return tabela;
}

void TTarvoESocialCamposinfoPerAntS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosIdeAdc(AListaCamposModificados);
}

void TTarvoESocialCamposinfoPerAntS1200::CarregarDadosIdeAdc(const TListaCamposModificados* AListaCamposModificados)
{
    auto LAcordo = std::make_unique<TTarvoESocialCamposIdeADC1200>(FInfoBind);
    LAcordo->CarregarDados(AListaCamposModificados);
    possuiInformacao = !LAcordo->idePeriodo.empty();
    ideAdc.push_back(std::move(LAcordo));
}

} // namespace tarvo::remuneracao
