#pragma once

#include "sst/s2245/UnTarvoESocialCampostreiCap.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

/// Event S-2245: a training course of a worker, who is looked up at construction.
class TTarvoESocialCamposS2245 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposS2245(std::int64_t AIdCursoEmpregado);

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoeSocialCampostreiCap treiCap;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::sst
