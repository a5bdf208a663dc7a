#pragma once

#include "desligamento/s2399/verbas/UnTarvoESocialCamposideEstabLotS2399.h"

namespace tarvo::desligamento {

/// S-2399 dmDev: one calculation that the end of the work paid; the lotações hang on it. Keeps parameters and amounts
/// of its own, so that its groups can be loaded again whatever became of the others.
class TTarvoESocialCamposdmDev2399 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdmDev2399(const TdmDevS2399IOP& ADadosDmDev);

    TListaDeGrupos<TTarvoESocialCamposideEstabLotS2399> ideEstabLot;
    std::string ideDmDev;

    /// Nothing was paid: not reported.
    bool Vazio() const { return ideEstabLot.empty(); }

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    TdmDevS2399IOP FDadosDmDev;
    TS2399DadosCalculos FDadosCalculos;
};

} // namespace tarvo::desligamento
