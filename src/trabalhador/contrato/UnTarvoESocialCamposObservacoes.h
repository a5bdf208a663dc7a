#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// A remark on a contract. It only carries its text: without the base's construction it takes part in no load.
class TTarvoESocialCamposObservacoes : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposObservacoes(std::int64_t AIdEmpregadoObs, std::string AObs);

    std::string Observacao;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregadoObs;
};

} // namespace tarvo::trabalhador
