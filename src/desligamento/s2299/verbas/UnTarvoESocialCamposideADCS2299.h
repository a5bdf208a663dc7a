#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposidePeriodoS2299.h"

namespace tarvo::desligamento {

/// S-2299 ideADC: the agreement, convention or dissídio behind differences. Source: FP_INFOGFIP650660.
class TTarvoESocialCamposideADCS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposideADCS2299(const TS2299DadosCalculos& ADadosCalculos);

    TDateTime dtAcConv;
    std::int32_t tpAcConv = 0;
    /// Month of the payment, YYYY-MM.
    std::string compAcConv;
    TDateTime dtEfAcConv;
    std::string dsc;
    TTarvoESocialCamposidePeriodoS2299 idePeriodoS2299;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    const TS2299DadosCalculos& FDadosCalculos;
};

} // namespace tarvo::desligamento
