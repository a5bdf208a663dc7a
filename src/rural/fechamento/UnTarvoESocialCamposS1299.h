#pragma once

#include "rural/fechamento/UnTarvoESocialCamposideRespInf.h"
#include "rural/fechamento/UnTarvoESocialCamposinfoFech.h"

namespace tarvo::rural {

/// Event S-1299: closing of a period. To be loaded after the period's other events were accepted, which it counts.
class TTarvoESocialCamposS1299 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposS1299(std::int32_t AIdEmpresa, TDateTime ADataInicio, TDateTime ADataFim,
                             tpIndApuracao AIndApur);

    TTarvoESocialCamposideRespInf ideRespInf;
    TTarvoESocialCamposinfoFech infoFech;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::rural
