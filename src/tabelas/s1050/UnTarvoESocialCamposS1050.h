#pragma once

#include "tabelas/horario/UnTarvoESocialCamposInfoHorContratual.h"

namespace tarvo::tabelas {

/// S-1050: a contractual work schedule. With AIdHorarioDet the event reports that detail row (TAB_HORARIOSDET), and the
/// other two arguments don't count; with 0 there, one weekday of the schedule row (TAB_HORARIOS).
class TTarvoESocialCamposS1050 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposS1050(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana);

    TTarvoESocialCamposInfoHorContratual infoHorContratual;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
