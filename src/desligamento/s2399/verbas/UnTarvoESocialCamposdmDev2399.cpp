#include "desligamento/s2399/verbas/UnTarvoESocialCamposdmDev2399.h"

#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"

namespace tarvo::desligamento {

TTarvoESocialCamposdmDev2399::TTarvoESocialCamposdmDev2399(const TdmDevS2399IOP& ADadosDmDev)
    : TTarvoESocialCamposGrupoBase("{8758E81C-0BC8-4329-B6BB-71F747D6FE59}"), FDadosDmDev(ADadosDmDev),
      FDadosCalculos(FDadosDmDev)
{}

const TPropriedades& TTarvoESocialCamposdmDev2399::Tabela()
{
    using Eu = TTarvoESocialCamposdmDev2399;
    static const TPropriedades tabela{{"ideEstabLot", &Eu::ideEstabLot}, {"ideDmDev", &Eu::ideDmDev}};
    return tabela;
}

void TTarvoESocialCamposdmDev2399::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FDadosCalculos.CarregarRegistrosCalculo();
    CarregarIdeEstabLot(ideEstabLot, FDadosCalculos);
}

void TTarvoESocialCamposdmDev2399::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    ideDmDev = FormarIdeDmDevDesligamento(FDadosDmDev, 0, 0);
}

} // namespace tarvo::desligamento
