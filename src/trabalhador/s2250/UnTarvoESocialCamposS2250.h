#pragma once

#include "trabalhador/s2250/UnTarvoESocialCamposinfoAvPrevio.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::trabalhador {

/// Event S-2250: advance notice. The worker is looked up at construction.
class TTarvoESocialCamposS2250 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdAvisoPrevio: FP_AVISOPREVIO.IDAVISOPREVIO.
    explicit TTarvoESocialCamposS2250(std::int64_t AIdAvisoPrevio);

    TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinfoAvPrevio infoAvPrevio;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
