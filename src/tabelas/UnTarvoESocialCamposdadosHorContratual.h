#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "tabelas/UnTarvoESocialCamposHorarioIntervalo.h"

namespace tarvo::tabelas {

/// S-1050 dadosHorContratual: entry, exit and length of a working day. Source: TAB_HORARIOSDET of a detail, else the
/// columns of the weekday in TAB_HORARIOS.
class TTarvoESocialCamposdadosHorContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposdadosHorContratual(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana);

    std::string hrEntr;
    std::string hrSaida;
    /// Minutes.
    std::string durJornada;
    std::string perHorFlexivel;
    TTarvoESocialCamposHorarioIntervalo HorarioIntervalo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    const TPropriedades& Propriedades() const override;
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdHorario;
    std::int64_t FIdHorarioDet;
    TDiaSemana FDiaSemana;
};

} // namespace tarvo::tabelas
