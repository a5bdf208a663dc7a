#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposideEstabLotS2299.h"

namespace tarvo::desligamento {

/// S-2299 idePeriodo: the earlier period that the differences of an agreement refer to, and its amounts by lotação.
class TTarvoESocialCamposidePeriodoS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposidePeriodoS2299(const TS2299DadosCalculos& ADadosCalculos);

    TDateTime perRef;
    TListaDeGrupos<TTarvoESocialCamposideEstabLotS2299> ideEstabLot;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    const TS2299DadosCalculos& FDadosCalculos;
};

} // namespace tarvo::desligamento
