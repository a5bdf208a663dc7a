#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2230 fimAfastamento: the end of a leave. Source: SITUACOES.
class TTarvoESocialCamposfimAfastamento : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposfimAfastamento(std::int64_t AIdSituacao);

    TDateTime dtTermAfast;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdSituacao;
};

} // namespace tarvo::trabalhador
