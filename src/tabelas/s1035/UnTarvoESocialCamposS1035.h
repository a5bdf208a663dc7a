#pragma once

#include "tabelas/s1035/UnTarvoESocialCamposInfoCarreira.h"

namespace tarvo::tabelas {

/// Event S-1035: a career, from the register of positions.
class TTarvoESocialCamposS1035 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdCargoDescr: FP_CARGOSDESCR.IDCARGOSDESCR.
    explicit TTarvoESocialCamposS1035(std::int64_t AIdCargoDescr);

    TTarvoESocialCamposInfoCarreira infoCarreira;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
