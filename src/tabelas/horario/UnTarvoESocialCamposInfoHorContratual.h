#pragma once

#include "tabelas/horario/UnTarvoESocialCamposdadosHorContratual.h"
#include "tabelas/horario/UnTarvoESocialCamposideHorContratual.h"

namespace tarvo::tabelas {

/// infoHorContratual of S-1050 and of a worker's contract: code and times of one detail or one weekday of a schedule.
class TTarvoESocialCamposInfoHorContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoHorContratual(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana);

    TTarvoESocialCamposideHorContratual ideHorContratual;
    TTarvoESocialCamposdadosHorContratual dadosHorContratual;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
