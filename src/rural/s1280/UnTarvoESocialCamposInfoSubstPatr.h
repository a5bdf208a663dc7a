#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::rural {

/// S-1280 infoSubstPatr: substitution of the employer's contribution. Source: FP_RECEITACPRB of the competence; without a
/// row both stay 0. A percentage that NUMERIC(3,2) can't hold raises the engine's error.
class TTarvoESocialCamposInfoSubstPatr : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoSubstPatr(std::int64_t AIdEmpresa, TDateTime ACompt);

    /// VALORRECEITANB read as an integer: a value with decimals is 0.
    std::int32_t indSubstPatr = 0;
    /// Percent; 0 unless indSubstPatr is 1.
    double percRedContrib = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpresa;
    TDateTime FCompt;
};

} // namespace tarvo::rural
