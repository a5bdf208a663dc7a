#include "pagamento/UnTarvoESocialCamposDetPgtoBenPr.h"

namespace tarvo::pagamento {

TTarvoESocialCamposDetPgtoBenPr::TTarvoESocialCamposDetPgtoBenPr(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{35B33630-A1F2-4D1B-8C37-E8F076D2E80C}"), retPgtoTot(AInfoBind),
      infoPgtoParc(AInfoBind.IdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposDetPgtoBenPr::Propriedades() const
{
    using Eu = TTarvoESocialCamposDetPgtoBenPr;
    static const TPropriedades tabela{
        {"perRef", &Eu::perRef}, {"ideDmDev", &Eu::ideDmDev},     {"indPgtoTt", &Eu::indPgtoTt},
        {"vrLiq", &Eu::vrLiq},   {"retPgtoTot", &Eu::retPgtoTot}, {"infoPgtoParc", &Eu::infoPgtoParc},
    };
    return tabela;
}

void TTarvoESocialCamposDetPgtoBenPr::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    retPgtoTot.CarregarDados(AListaCamposModificados);
    infoPgtoParc.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::pagamento
