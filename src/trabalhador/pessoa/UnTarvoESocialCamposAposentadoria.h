#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Retirement of a worker. Source: EMPREGADOS.
class TTarvoESocialCamposAposentadoria : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposAposentadoria(std::int64_t AIDEmpregado);

    TDate DataAposentadoria;
    std::int32_t TipoAposent = 0;
    std::string DescAposent;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
