#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// End of a bond. Source: EMPREGADOS, for a worker who has a termination of situation 0 in TAB_RESCISAO.
class TTarvoESocialCamposDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDesligamento(std::int64_t AIDEmpregado);

    TDate DataDesligamento;
    bool PossuiInformacao() const { return DataDesligamento > TDate(); }

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
