#pragma once

#include "trabalhador/s2206/UnTarvoESocialCamposaltContratual.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::trabalhador {

/// Event S-2206: change of a worker's contract.
class TTarvoESocialCamposS2206 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDEmpregado: EMPREGADOS.IDEMPREGADO; AData: the date at which the contract is read.
    TTarvoESocialCamposS2206(std::int64_t AIDEmpregado, TDateTime AData);

    TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposaltContratual altContratual;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
