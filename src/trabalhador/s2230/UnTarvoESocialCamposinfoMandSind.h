#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2230 infoMandSind: the union of the worker's office. Source: FP_EMPREGADOSDET 3/2 of the situation.
class TTarvoESocialCamposinfoMandSind : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoMandSind(std::int64_t AIdSituacao);

    std::string cnpjSind;
    std::int32_t infOnusRemun = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdSituacao;
};

} // namespace tarvo::trabalhador
