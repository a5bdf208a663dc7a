#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1050 ideHorContratual: code of a schedule. Source: TAB_HORARIOSDET of a detail, else TAB_HORARIOS.
class TTarvoESocialCamposideHorContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposideHorContratual(std::int64_t AIdHorario, std::int64_t AIdHorarioDet);

    std::string codHorContrat;
    /// Set by the caller.
    std::string iniValid;
    std::string fimValid;

protected:
    const TPropriedades& Propriedades() const override;
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdHorario;
    std::int64_t FIdHorarioDet;
};

} // namespace tarvo::tabelas
