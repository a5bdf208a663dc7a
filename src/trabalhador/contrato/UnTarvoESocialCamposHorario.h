#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// One day or shift of a work schedule. HorContratual sets it; a load of its own only numbers it by the schedule.
class TTarvoESocialCamposHorario : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposHorario(std::int64_t AIDHorario, std::int32_t ADiaSemana);

    /// 1 Monday to 7 Sunday, 8 for a day that varies.
    std::int32_t Dia = 0;
    std::string CodigoHorarioContratual;
    std::int64_t IdHorario;

    /// Takes no notice of the list and reads nothing.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    std::int32_t FDiaSemana;
};

} // namespace tarvo::trabalhador
