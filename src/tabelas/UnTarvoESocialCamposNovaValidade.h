#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1030 novaValidade: always empty.
class TTarvoESocialCamposNovaValidade : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposNovaValidade();

    std::string IniValid() const { return {}; }
    std::string FimValid() const { return {}; }

protected:
    const TPropriedades& Propriedades() const override;
};

} // namespace tarvo::tabelas
