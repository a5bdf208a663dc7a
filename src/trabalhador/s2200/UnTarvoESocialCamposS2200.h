#pragma once

#include "trabalhador/pessoa/UnTarvoESocialCamposTrabalhador.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposVinculo.h"

namespace tarvo::trabalhador {

/// Event S-2200: admission of a worker.
class TTarvoESocialCamposS2200 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIDEmpresa is not used; AIDEmpregado: EMPREGADOS.IDEMPREGADO; ADataGeracao: the date at which configuration and
    /// positions are read.
    TTarvoESocialCamposS2200(std::int64_t AIDEmpresa, std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposTrabalhador Trabalhador;
    TTarvoESocialCamposVinculo Vinculo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
