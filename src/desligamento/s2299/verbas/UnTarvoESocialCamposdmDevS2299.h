#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposInfoTrabIntermS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoPerAntS2299.h"
#include "desligamento/s2299/verbas/UnTarvoESocialCamposinfoPerApurS2299.h"

namespace tarvo::desligamento {

/// S-2299 dmDev: one calculation that the dismissal paid. Keeps parameters and amounts of its own, so that its groups
/// can be loaded again whatever became of the others.
class TTarvoESocialCamposdmDevS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdmDevS2299(const TdmDevS2299IOP& ADadosDmDev);

    std::string ideDmDev;
    TTarvoESocialCamposinfoPerApurS2299 infoPerApur;
    TTarvoESocialCamposinfoPerAntS2299 infoPerAnt;
    TListaDeGrupos<TTarvoESocialCamposInfoTrabIntermS2299> infoTrabInterm;

    /// Nothing was paid: not reported.
    bool Vazio() const;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    void CarregarDadosInfoTrabInterm();

    TdmDevS2299IOP FDadosDmDev;
    TS2299DadosCalculos FDadosCalculos;
};

} // namespace tarvo::desligamento
