#pragma once

#include "trabalhador/s2260/UnTarvoESocialCamposInfoConvInterm.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::trabalhador {

/// Event S-2260: call of an intermittent worker.
class TTarvoESocialCamposS2260 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO; ADataInicio: the day of the call, not that of the work.
    TTarvoESocialCamposS2260(std::int64_t AIdEmpregado, TDateTime ADataInicio);

    TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposInfoConvInterm InfoConvInterm;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
