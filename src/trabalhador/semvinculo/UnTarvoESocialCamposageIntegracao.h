#pragma once

#include "trabalhador/semvinculo/UnTarvoESocialCamposEntidadeEstagio.h"

namespace tarvo::trabalhador {

/// Agent of integration of an internship.
class TTarvoESocialCamposageIntegracao : public TTarvoESocialCamposEntidadeEstagio {
public:
    explicit TTarvoESocialCamposageIntegracao(std::int64_t AIDEmpregado);

    std::string cnpjAgntInteg;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
