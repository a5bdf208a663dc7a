#pragma once

#include "tabelas/s1030/UnTarvoESocialCamposInfoCargo.h"

namespace tarvo::tabelas {

/// Event S-1030: a position. The corrected values turn back into one statement, three of a public position.
class TTarvoESocialCamposS1030 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDCargosDescr: FP_CARGOSDESCR.IDCARGOSDESCR.
    explicit TTarvoESocialCamposS1030(std::int64_t AIDCargosDescr);

    TTarvoESocialCamposInfoCargo InfoCargo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
