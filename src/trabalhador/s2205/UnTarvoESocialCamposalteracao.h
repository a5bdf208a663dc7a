#pragma once

#include "trabalhador/pessoa/UnTarvoESocialCamposTrabalhador.h"

namespace tarvo::trabalhador {

/// S-2205 alteracao: the personal data as they stand after the change.
class TTarvoESocialCamposalteracao : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposalteracao(std::int64_t AIDEmpregado);

    /// For the caller; no load sets it.
    TDateTime dtAlteracao;
    TTarvoESocialCamposTrabalhador dadosTrabalhador;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
