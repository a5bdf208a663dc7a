#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// The worker whom a temporary worker stands in for at a date. Source: SC00_EMPREGADOCFG 90/38/9; of several rows in
/// force the engine's first.
class TTarvoESocialCamposIdeTrabSubstituido : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposIdeTrabSubstituido(std::int64_t AIDEmpregado, TDate ADataGeracao);

    std::string Cpf;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
