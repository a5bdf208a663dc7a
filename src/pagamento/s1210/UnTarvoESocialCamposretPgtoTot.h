#pragma once

#include "pagamento/s1210/UnTarvoESocialCamposVerbasS1210.h"

namespace tarvo::pagamento {

/// S-1210 retPgtoTot: one rubric of withheld income tax of a demonstrative. IdVerba is TAB_VERBAS.IDVERBA, of a
/// provider RPATPVALOR.IDRPATPVALOR, whose source is RPAVALOR of the receipt.
class TTarvoESocialCamposretPgtoTot : public TTarvoESocialCamposVerbaDoPagamento {
public:
    explicit TTarvoESocialCamposretPgtoTot(const TTarvoESocialCamposS1210IOP& AInfoBind);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    bool EhPrestador() const { return FInfoBind.TipoTrabalhador == TTipoTrabalhador::Prestador; }
    void AlimentarPropriedadesDaTag();
    std::string BuscarCodRubrEmpregado();
    std::string BuscarCodRubrPrestador() const;
    long double BuscarVrRubrPrestador() const;
};

} // namespace tarvo::pagamento
