#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1030 ideCargo: code of the position. Source: FP_CARGOSDESCR.
class TTarvoESocialCamposIdeCargo : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeCargo(std::int64_t AIDCargosDescr);

    std::string CodCargo;
    /// For the caller to fill.
    std::string iniValid;
    /// For the caller to fill.
    std::string fimValid;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDCargosDescr;
};

} // namespace tarvo::tabelas
