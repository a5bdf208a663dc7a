#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/pcesConversaoeSocial.h"

namespace tarvo::tabelas {

/// S-1000 infoOrgInternacional: a company of the suite is never an international organisation.
class TTarvoESocialCamposInfoOrgInternacional : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoOrgInternacional();

    tpIndAcordoIsencaoMulta IndAcordoIsenMulta{};

    /// Always sets the first value, even when the group is left out by the list.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
