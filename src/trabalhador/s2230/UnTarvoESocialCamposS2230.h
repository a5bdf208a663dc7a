#pragma once

#include "trabalhador/s2230/UnTarvoESocialCamposinfoAfastamento.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::trabalhador {

/// Event S-2230: start or end of a leave. The worker is looked up at construction.
class TTarvoESocialCamposS2230 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdSituacao: SITUACOES.IDSITUACAO; ATipoEvento: which side of the leave is reported.
    TTarvoESocialCamposS2230(std::int64_t AIdSituacao, TTipoEventoS2230 ATipoEvento);

    TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinfoAfastamento infoAfastamento;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
