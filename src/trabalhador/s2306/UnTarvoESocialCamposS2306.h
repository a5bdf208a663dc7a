#pragma once

#include "trabalhador/s2306/UnTarvoESocialCamposinfoTSVAlteracao.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposideTrabSemVinculo.h"

namespace tarvo::trabalhador {

/// Event S-2306: change of the work of a worker without a bond.
class TTarvoESocialCamposS2306 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO; AData: the date at which position and salary are read.
    TTarvoESocialCamposS2306(std::int64_t AIdEmpregado, TDateTime AData);

    TTarvoESocialCamposideTrabSemVinculo ideTrabSemVinculo;
    TTarvoESocialCamposinfoTSVAlteracao infoTSVAlteracao;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
