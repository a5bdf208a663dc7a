#include "trabalhador/documentos/UnTarvoESocialCamposDocumentos.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposDocumentos::TTarvoESocialCamposDocumentos(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{6CD2616D-4774-4AFB-B171-E24E0AE5AC4D}"), Ctps(AIDEmpregado), Rg(AIDEmpregado),
      Rne(AIDEmpregado), Oc(AIDEmpregado), Cnh(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposDocumentos::Tabela()
{
    using Eu = TTarvoESocialCamposDocumentos;
    static const TPropriedades tabela{
        {"Ctps", &Eu::Ctps}, {"Ric", &Eu::Ric}, {"Rg", &Eu::Rg}, {"Rne", &Eu::Rne}, {"Oc", &Eu::Oc}, {"Cnh", &Eu::Cnh},
    };
    return tabela;
}

void TTarvoESocialCamposDocumentos::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Ctps.CarregarDados(AListaCamposModificados);
    Ric.CarregarDados(AListaCamposModificados);
    Rg.CarregarDados(AListaCamposModificados);
    Rne.CarregarDados(AListaCamposModificados);
    Oc.CarregarDados(AListaCamposModificados);
    Cnh.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
