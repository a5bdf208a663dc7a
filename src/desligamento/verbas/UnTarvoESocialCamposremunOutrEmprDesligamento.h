#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// remunOutrEmpr: what another employer paid, all as text; infoMV fills it.
class TTarvoESocialCamposremunOutrEmprDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    std::string tpInsc;
    std::string nrInsc;
    std::string codCateg;
    /// In reais, decimal comma.
    std::string vlrRemunOE;

    static const TPropriedades& Tabela();

protected:
    using TTarvoESocialCamposGrupoBase::TTarvoESocialCamposGrupoBase;
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::desligamento
