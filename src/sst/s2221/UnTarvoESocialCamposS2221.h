#pragma once

#include "sst/s2221/UnTarvoESocialCampostoxicologico.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

/// Event S-2221: toxicological examination. The worker is looked up at construction.
class TTarvoESocialCamposS2221 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposS2221(std::int64_t AIdExameToxicologico);

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoeSocialCampostoxicologico toxicologico;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::sst
