#pragma once

#include "desligamento/s2399/UnTarvoESocialCamposinfoTSVTermino.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposideTrabSemVinculo.h"

namespace tarvo::desligamento {

/// Event S-2399: end of the work of a worker without a bond. The constructor already reads the database.
class TTarvoESocialCamposS2399 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO. ADataInicioEventosPeriodicos: from when the amounts are reported.
    TTarvoESocialCamposS2399(std::int64_t AIdEmpregado, TDate ADataInicioEventosPeriodicos);

    trabalhador::TTarvoESocialCamposideTrabSemVinculo ideTrabSemVinculo;
    TTarvoESocialCamposinfoTSVTermino infoTSVTermino;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::desligamento
