#pragma once

#include "trabalhador/pessoa/UnTarvoESocialCamposTrabalhador.h"
#include "trabalhador/s2300/UnTarvoESocialCamposInfoTSVInicio.h"

namespace tarvo::trabalhador {

/// Event S-2300: start of a worker without a bond.
class TTarvoESocialCamposS2300 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO; ADataGeracao: the date at which position and salary are read.
    TTarvoESocialCamposS2300(std::int64_t AIdEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposTrabalhador Trabalhador;
    TTarvoESocialCamposInfoTSVInicio infoTSVInicio;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
