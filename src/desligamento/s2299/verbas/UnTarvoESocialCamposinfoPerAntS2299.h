#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposideADCS2299.h"

namespace tarvo::desligamento {

/// S-2299 infoPerAnt: the amounts of an earlier period, under their one agreement.
class TTarvoESocialCamposinfoPerAntS2299 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoPerAntS2299();

    TListaDeGrupos<TTarvoESocialCamposideADCS2299> ideADC;

    using TTarvoESocialCamposGrupoBase::CarregarDados;
    /// From the amounts of the demonstrative, which must outlive the groups made here.
    void CarregarDados(const TS2299DadosCalculos& ADadosCalculos);

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::desligamento
