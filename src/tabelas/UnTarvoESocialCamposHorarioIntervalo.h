#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnTarvoTypesGeral.h"

namespace tarvo::tabelas {

/// S-1050 horarioIntervalo: the break of a working day. Source: TAB_HORARIOSDET of a detail, else the columns of the
/// weekday in TAB_HORARIOS.
class TTarvoESocialCamposHorarioIntervalo : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposHorarioIntervalo(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana);

    std::string tpInterv;
    /// Minutes.
    std::string durInterv;
    std::string iniInterv;
    std::string termInterv;
    TDiaSemana DiaSemana;

protected:
    const TPropriedades& Propriedades() const override;
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdHorario;
    std::int64_t FIdHorarioDet;
};

} // namespace tarvo::tabelas
