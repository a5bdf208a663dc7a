#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1035 ideCarreira: code of the career, the own one of the suite where there is none of the eSocial. Source:
/// FP_CARGOSDESCR.
class TTarvoESocialCamposIdeCarreira : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeCarreira(std::int64_t AIDCargosDescr);

    std::string CodCarreira;
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
