#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::rural {

/// S-1295 and S-1299 ideRespInf: who answers for the information, the one contact of the database. Source: CA06_CFG 97/2.
class TTarvoESocialCamposideRespInf : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposideRespInf();

    std::string nmResp;
    std::string cpfResp;
    std::string telefone;
    std::string email;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::rural
