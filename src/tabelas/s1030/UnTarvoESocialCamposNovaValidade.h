#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1030 novaValidade: always empty.
class TTarvoESocialCamposNovaValidade : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposNovaValidade();

    std::string IniValid() const { return {}; }
    std::string FimValid() const { return {}; }

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
