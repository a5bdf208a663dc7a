#pragma once

#include "tabelas/horario/UnTarvoESocialCamposHorarioIntervalo.h"

namespace tarvo::tabelas {

/// dadosHorContratual: start, end, duration and flexibility of a schedule on one weekday (TAB_HORARIOS) or of one detail
/// (TAB_HORARIOSDET).
class TTarvoESocialCamposdadosHorContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposdadosHorContratual(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana);

    std::string hrEntr;
    std::string hrSaida;
    std::string durJornada;
    std::string perHorFlexivel;
    TTarvoESocialCamposHorarioIntervalo HorarioIntervalo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::string BuscarSqlConformeoDia() const;

    std::int64_t FIdHorario;
    std::int64_t FIdHorarioDet;
    TDiaSemana FDiaSemana;
};

} // namespace tarvo::tabelas
