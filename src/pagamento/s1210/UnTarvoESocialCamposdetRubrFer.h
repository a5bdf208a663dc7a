#pragma once

#include "pagamento/s1210/UnTarvoESocialCamposVerbasS1210.h"

namespace tarvo::pagamento {

/// S-1210 detRubrFer: one rubric of a vacation that was paid. Its code is empty for a rubric without incidences, which
/// isn't reported.
class TTarvoESocialCamposdetRubrFer : public TTarvoESocialCamposVerbaDoPagamento {
public:
    explicit TTarvoESocialCamposdetRubrFer(const TTarvoESocialCamposS1210IOP& AInfoBind);

    /// TAB_VERBAS.FORMULA, set before the load as IdVerba is.
    std::string CaracteristicaVerba;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    std::string BuscarCodRubr();
};

} // namespace tarvo::pagamento
