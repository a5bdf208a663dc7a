#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Work card (CTPS) and category of a worker. Source: EMPREGADOS joined to table 1 of the categories: a worker whose
/// category isn't there has no row, and the whole group stays empty, card included; meant.
class TTarvoESocialCamposCtps : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposCtps(std::int64_t AIDEmpregado);

    std::string Numero;
    std::string Serie;
    std::string Uf;
    std::string CodCategoria;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
