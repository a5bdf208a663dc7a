#pragma once

#include "desligamento/s2299/UnTarvoESocialCamposinfoDeslig.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::desligamento {

/// Event S-2299: dismissal of a worker. The constructor already reads the database.
class TTarvoESocialCamposS2299 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO. ADataInicioEventosPeriodicos: from when the amounts are reported.
    TTarvoESocialCamposS2299(std::int64_t AIdEmpregado, TDateTime ADataInicioEventosPeriodicos);

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinfoDeslig infoDeslig;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::desligamento
