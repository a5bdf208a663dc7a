#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::rural {

/// S-1250 and S-1260 nfs: an invoice. It stands for its place in the layout; a caller fills it.
class TTarvoESocialCamposnfs : public TTarvoESocialCamposQuadro<TTarvoESocialCamposnfs> {
public:
    explicit TTarvoESocialCamposnfs(std::int64_t AIdFilial)
        : TTarvoESocialCamposQuadro("{4A1E9480-034F-4641-B9C3-440CAAEFF09F}", AIdFilial)
    {}

    std::string serie;
    std::string nrDocto;
    std::string dtEmisNF;
    std::string vlrBruto;
    std::string vrCPDescPR;
    std::string vrRatDescPR;
    std::string vrSenarDesc;

    static TPropriedades Tags()
    {
        return {{"serie", &Eu::serie},
                {"nrDocto", &Eu::nrDocto},
                {"dtEmisNF", &Eu::dtEmisNF},
                {"vlrBruto", &Eu::vlrBruto},
                {"vrCPDescPR", &Eu::vrCPDescPR},
                {"vrRatDescPR", &Eu::vrRatDescPR},
                {"vrSenarDesc", &Eu::vrSenarDesc}};
    }
};

} // namespace tarvo::rural
