#pragma once

#include "trabalhador/contrato/UnTarvoESocialCamposInfoContrato.h"
#include "trabalhador/contrato/UnTarvoESocialCamposServPubl.h"

namespace tarvo::trabalhador {

/// S-2206 infoContrato: the terms of the contract and, after all of them, the reason of the change of a public
/// servant. Its GUID is its own, so a list that names it doesn't reach the InfoContrato inside Vinculo.
class TTarvoESocialCamposInfoContratoS2206 : public TTarvoESocialCamposInfoContrato {
public:
    TTarvoESocialCamposInfoContratoS2206(std::int64_t AIDEmpregado, TDate ADataGeracao);

    /// Beside the inherited ServPubl, which stays null.
    TTarvoESocialCamposServPubl servPubl;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
