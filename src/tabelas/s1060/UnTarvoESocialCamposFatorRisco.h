#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1060 fatorRisco: the one risk code that every environment reports.
class TTarvoESocialCamposFatorRisco : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposFatorRisco(std::int64_t AIdAmbiente);

    std::string codFatRis;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
