#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "tabelas/UnTarvoESocialCamposdadosHorContratual.h"
#include "tabelas/UnTarvoESocialCamposideHorContratual.h"

namespace tarvo::tabelas {

/// S-1050 infoHorContratual: one detail of a schedule (AIdHorarioDet other than 0), or one weekday of it.
class TTarvoESocialCamposInfoHorContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoHorContratual(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana);

    TTarvoESocialCamposideHorContratual ideHorContratual;
    TTarvoESocialCamposdadosHorContratual dadosHorContratual;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    const TPropriedades& Propriedades() const override;
};

} // namespace tarvo::tabelas
