#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposideEstabLotS2299.h"

namespace tarvo::desligamento {

/// S-2299 infoPerApur: the amounts of the current period, by lotação.
class TTarvoESocialCamposinfoPerApurS2299 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoPerApurS2299();

    TListaDeGrupos<TTarvoESocialCamposideEstabLotS2299> ideEstabLot;

    using TTarvoESocialCamposGrupoBase::CarregarDados;
    /// From the amounts of the demonstrative, which must outlive the groups made here.
    void CarregarDados(const TS2299DadosCalculos& ADadosCalculos);

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::desligamento
