#pragma once

#include "trabalhador/semvinculo/UnTarvoESocialCamposEntidadeEstagio.h"

namespace tarvo::trabalhador {

/// Teaching institution of an internship.
class TTarvoESocialCamposinstEnsino : public TTarvoESocialCamposEntidadeEstagio {
public:
    explicit TTarvoESocialCamposinstEnsino(std::int64_t AIDEmpregado);

    std::string cnpjInstEnsino;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
