#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Union of a worker. Source: EMPREGADOS, SINDICATOS.
class TTarvoESocialCamposFiliacaoSindical : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposFiliacaoSindical(std::int64_t AIDEmpregado);

    std::string CnpjSindicato;
    std::string EmpregSindicalizado;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
