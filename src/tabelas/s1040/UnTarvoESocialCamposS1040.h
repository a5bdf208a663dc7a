#pragma once

#include "tabelas/s1040/UnTarvoESocialCamposInfoFuncao.h"

namespace tarvo::tabelas {

/// Event S-1040: a function, from the register of positions.
class TTarvoESocialCamposS1040 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDCargosDescr: FP_CARGOSDESCR.IDCARGOSDESCR.
    explicit TTarvoESocialCamposS1040(std::int64_t AIDCargosDescr);

    TTarvoESocialCamposInfoFuncao InfoFuncao;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
