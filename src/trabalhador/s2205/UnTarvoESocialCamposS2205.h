#pragma once

#include "trabalhador/s2205/UnTarvoESocialCamposIdeTrabalhadorS2205.h"
#include "trabalhador/s2205/UnTarvoESocialCamposalteracao.h"

namespace tarvo::trabalhador {

/// Event S-2205: change of a worker's personal data.
class TTarvoESocialCamposS2205 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDEmpregado: EMPREGADOS.IDEMPREGADO.
    explicit TTarvoESocialCamposS2205(std::int64_t AIDEmpregado);

    TTarvoESocialCamposIdeTrabalhadorS2205 ideTrabalhador;
    TTarvoESocialCamposalteracao alteracao;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
