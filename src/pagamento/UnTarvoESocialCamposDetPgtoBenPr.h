#pragma once

#include "pagamento/UnTarvoESocialCamposQuadrosS1210.h"
#include "pagamento/UnTarvoESocialCamposretPgtoTot.h"

namespace tarvo::pagamento {

/// S-1210 detPgtoBenPr: payment of a benefit of a public pension. No load of the event reaches it.
class TTarvoESocialCamposDetPgtoBenPr : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDetPgtoBenPr(const TTarvoESocialCamposS1210IOP& AInfoBind);

    std::string perRef;
    std::string ideDmDev;
    std::string indPgtoTt;
    std::string vrLiq;
    TTarvoESocialCamposretPgtoTot retPgtoTot;
    TTarvoESocialCamposInfoPgtoParc infoPgtoParc;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    const TPropriedades& Propriedades() const override;
};

} // namespace tarvo::pagamento
