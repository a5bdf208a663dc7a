#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2230 infoCessao: the employer to whom the worker was lent. Source: FP_EMPREGADOSDET 3/1 of the situation.
class TTarvoESocialCamposinfoCessao : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoCessao(std::int64_t AIdSituacao);

    std::string cnpjCess;
    std::int32_t infOnus = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdSituacao;
};

} // namespace tarvo::trabalhador
