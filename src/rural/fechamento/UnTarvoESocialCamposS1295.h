#pragma once

#include "rural/fechamento/UnTarvoESocialCamposideRespInf.h"

namespace tarvo::rural {

/// Event S-1295: request of a total of the period.
class TTarvoESocialCamposS1295 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposS1295();

    TTarvoESocialCamposideRespInf ideRespInf;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::rural
