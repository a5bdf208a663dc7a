#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Registration of a worker at a class council. Source: EMPREGADOS.
class TTarvoESocialCamposOc : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposOc(std::int64_t AIDEmpregado);

    std::string Numero;
    std::string OrgaoEmissor;
    TDate DataExpedicao;
    TDate DataValidade;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
