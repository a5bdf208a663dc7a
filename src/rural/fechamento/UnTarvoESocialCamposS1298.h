#pragma once

#include "tabelas/empregador/UnTarvoESocialCamposIdEmpregador.h"

namespace tarvo::rural {

/// Event S-1298: reopening of a period.
class TTarvoESocialCamposS1298 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposS1298(std::int64_t AIDEmpresa);

    tabelas::TTarvoESocialCamposIdEmpregador IdeEmpregador;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::rural
