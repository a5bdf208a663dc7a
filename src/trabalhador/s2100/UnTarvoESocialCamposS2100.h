#pragma once

#include "trabalhador/pessoa/UnTarvoESocialCamposTrabalhador.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposVinculo.h"

namespace tarvo::trabalhador {

/// Event S-2100: initial record of a bond, with the same tree as S-2200.
class TTarvoESocialCamposS2100 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDEmpregado: EMPREGADOS.IDEMPREGADO; ADataGeracao: the date at which configuration and positions are read.
    TTarvoESocialCamposS2100(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposTrabalhador Trabalhador;
    TTarvoESocialCamposVinculo Vinculo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
