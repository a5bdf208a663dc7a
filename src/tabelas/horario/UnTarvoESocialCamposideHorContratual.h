#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// ideHorContratual: code of a schedule (TAB_HORARIOS.CODIGO) or of one of its details
/// (TAB_HORARIOSDET.CODIGOESOCIAL). The caller sets the validity.
class TTarvoESocialCamposideHorContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposideHorContratual(std::int64_t AIdHorario, std::int64_t AIdHorarioDet);

    std::string codHorContrat;
    std::string iniValid;
    std::string fimValid;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdHorario;
    std::int64_t FIdHorarioDet;
};

} // namespace tarvo::tabelas
