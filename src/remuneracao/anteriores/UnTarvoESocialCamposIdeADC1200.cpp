#include "remuneracao/anteriores/UnTarvoESocialCamposIdeADC1200.h"

#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposIdeADC1200::TTarvoESocialCamposIdeADC1200(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{D11CC5E8-A4DA-48EE-9B44-60EDAACFE982}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposIdeADC1200::Tabela()
{
    using Eu = TTarvoESocialCamposIdeADC1200;
    static const TPropriedades tabela{
        {"dtAcConv", &Eu::dtAcConv, TFieldRelacionado("DATAOCORRENCIA")},
        {"tpAcConv", &Eu::tpAcConv, TFieldRelacionado("CARACTERISTICA")},
        {"compAcConv", &Eu::compAcConv},
        {"dtEfAcConv", &Eu::dtEfAcConv, TFieldRelacionado("DTEFACCONV")},
        {"dsc", &Eu::dsc, TFieldRelacionado("DESCRICAO")},
        {"remunSuc", &Eu::remunSuc},
        {"idePeriodo", &Eu::idePeriodo},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeADC1200::BuscarSQLDados() { return regras::SqlAcordo(FInfoBind.IdAcordo); }

void TTarvoESocialCamposIdeADC1200::AtribuirValoresManualmente()
{
    if (FInfoBind.Chave == 6)
        tpAcConv = 6;
}

void TTarvoESocialCamposIdeADC1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosIdePeriodo(AListaCamposModificados);
    compAcConv = FInfoBind.DataPagto();
}

void TTarvoESocialCamposIdeADC1200::CarregarDadosIdePeriodo(const TListaCamposModificados* AListaCamposModificados)
{
    auto LPeriodo = std::make_unique<TTarvoESocialCamposIdePeriodoS1200>(FInfoBind);
    LPeriodo->CarregarDados(AListaCamposModificados);
    if (!LPeriodo->ideEstabLot.empty())
        idePeriodo.push_back(std::move(LPeriodo));
}

} // namespace tarvo::remuneracao
