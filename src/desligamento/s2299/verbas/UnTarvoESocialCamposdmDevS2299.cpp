#include "desligamento/s2299/verbas/UnTarvoESocialCamposdmDevS2299.h"

#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"

namespace tarvo::desligamento {

TTarvoESocialCamposdmDevS2299::TTarvoESocialCamposdmDevS2299(const TdmDevS2299IOP& ADadosDmDev)
    : TTarvoESocialCamposGrupoBase("{44E40CBB-230A-4D41-AA79-90C24D690A73}"), FDadosDmDev(ADadosDmDev),
      FDadosCalculos(FDadosDmDev)
{}

const TPropriedades& TTarvoESocialCamposdmDevS2299::Tabela()
{
    using Eu = TTarvoESocialCamposdmDevS2299;
    static const TPropriedades tabela{
        {"ideDmDev", &Eu::ideDmDev},
        {"infoPerApur", &Eu::infoPerApur},
        {"infoPerAnt", &Eu::infoPerAnt},
        {"infoTrabInterm", &Eu::infoTrabInterm},
    };
    return tabela;
}

bool TTarvoESocialCamposdmDevS2299::Vazio() const
{
    return infoPerApur.ideEstabLot.empty() && infoPerAnt.ideADC.empty() && infoTrabInterm.empty();
}

void TTarvoESocialCamposdmDevS2299::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FDadosCalculos.CarregarRegistrosCalculo();
    if (FDadosDmDev.TipoCalculo == TTipoCalculoDesligamento::ComplementarPagoNaCompet)
        infoPerAnt.CarregarDados(FDadosCalculos);
    else
        infoPerApur.CarregarDados(FDadosCalculos);
    CarregarDadosInfoTrabInterm();
}

void TTarvoESocialCamposdmDevS2299::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    ideDmDev =
        FormarIdeDmDevDesligamento(FDadosDmDev, FDadosDmDev.TipoCalcComplem, FDadosDmDev.IdDetConvocacaoTrabInterm);
}

void TTarvoESocialCamposdmDevS2299::CarregarDadosInfoTrabInterm()
{
    if (FDadosDmDev.IdDetConvocacaoTrabInterm == 0)
        return;
    auto LConvocacao = std::make_unique<TTarvoESocialCamposInfoTrabIntermS2299>(FDadosDmDev.IdDetConvocacaoTrabInterm);
    LConvocacao->CarregarDados();
    infoTrabInterm.push_back(std::move(LConvocacao));
}

} // namespace tarvo::desligamento
