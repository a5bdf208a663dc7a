#pragma once

#include "trabalhador/endereco/UnTarvoESocialCamposBrasil.h"
#include "trabalhador/endereco/UnTarvoESocialCamposExterior.h"

namespace tarvo::trabalhador {

/// Address of a worker, in both readings; which of them to report is for the reader of the tree to decide.
class TTarvoESocialCamposEndereco : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposEndereco(std::int64_t AIDEmpregado);

    TTarvoESocialCamposBrasil Brasil;
    TTarvoESocialCamposExterior Exterior;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
