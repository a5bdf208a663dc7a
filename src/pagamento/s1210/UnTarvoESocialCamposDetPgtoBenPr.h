#pragma once

#include "pagamento/s1210/UnTarvoESocialCamposQuadrosS1210.h"
#include "pagamento/s1210/UnTarvoESocialCamposretPgtoTot.h"

namespace tarvo::pagamento {

/// S-1210 detPgtoBenPr: payment of a benefit of a public pension. No load of the event reaches it.
class TTarvoESocialCamposDetPgtoBenPr : public TTarvoESocialCamposQuadro<TTarvoESocialCamposDetPgtoBenPr> {
public:
    explicit TTarvoESocialCamposDetPgtoBenPr(const TTarvoESocialCamposS1210IOP& AInfoBind)
        : TTarvoESocialCamposQuadro("{35B33630-A1F2-4D1B-8C37-E8F076D2E80C}"), retPgtoTot(AInfoBind),
          infoPgtoParc(AInfoBind.IdEmpregado)
    {}

    std::string perRef;
    std::string ideDmDev;
    std::string indPgtoTt;
    std::string vrLiq;
    TTarvoESocialCamposretPgtoTot retPgtoTot;
    TTarvoESocialCamposInfoPgtoParc infoPgtoParc;

    static TPropriedades Tags()
    {
        return {{"perRef", &Eu::perRef}, {"ideDmDev", &Eu::ideDmDev},     {"indPgtoTt", &Eu::indPgtoTt},
                {"vrLiq", &Eu::vrLiq},   {"retPgtoTot", &Eu::retPgtoTot}, {"infoPgtoParc", &Eu::infoPgtoParc}};
    }
};

} // namespace tarvo::pagamento
