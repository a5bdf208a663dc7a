#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnTarvoTypesGeral.h"

namespace tarvo::tabelas {

/// horarioIntervalo: kind, duration, start and end of the interval of a schedule on one weekday (TAB_HORARIOS) or of one
/// detail (TAB_HORARIOSDET).
class TTarvoESocialCamposHorarioIntervalo : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposHorarioIntervalo(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana);

    std::string tpInterv;
    std::string durInterv;
    std::string iniInterv;
    std::string termInterv;
    /// Kept for the caller; the columns are read by the weekday of the constructor.
    TDiaSemana DiaSemana;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::string BuscarSqlConformeODia() const;

    std::int64_t FIdHorario;
    std::int64_t FIdHorarioDet;
    TDiaSemana FDiaSemana;
};

} // namespace tarvo::tabelas
