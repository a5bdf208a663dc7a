#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-3000 ideFolhaPagto: the period of the excluded event. Source: SC00_ESOCIALREINFXML.
class TTarvoESocialCamposIdeFolhaPagtoS3000 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeFolhaPagtoS3000(std::int64_t AIdEvento);

    /// 2 for the thirteenth salary, else 1.
    std::int32_t indApuracao = 0;
    TDate perApur;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEvento;
};

} // namespace tarvo::trabalhador
