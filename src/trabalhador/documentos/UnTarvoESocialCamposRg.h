#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Identity card (RG) of a worker. Source: EMPREGADOS, with the code of the country of birth from CA06_PAIS.
class TTarvoESocialCamposRg : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposRg(std::int64_t AIDEmpregado);

    std::string Numero;
    /// Issuer and state in one text; empty when either is not set.
    std::string OrgaoEmissor;
    TDate DataExpedicao;
    std::string UFEmissao;
    /// CA06_PAIS.PAIS, not the id.
    std::int32_t PaisNascimento = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
