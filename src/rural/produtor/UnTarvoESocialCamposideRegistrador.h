#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::rural {

/// ideRegistrador: who registers an event. It belongs to no event's tree; a caller fills it.
class TTarvoESocialCamposideRegistrador : public TTarvoESocialCamposQuadro<TTarvoESocialCamposideRegistrador> {
public:
    TTarvoESocialCamposideRegistrador() : TTarvoESocialCamposQuadro("{B87F5AF7-DCB0-4FEC-A962-9F6725480DF0}") {}

    std::int32_t tpRegistrador = 0;
    std::int32_t tpInsc = 0;
    std::string nrInsc;

    static TPropriedades Tags()
    {
        return {
            {"tpRegistrador", &Eu::tpRegistrador},
            {"tpInsc", &Eu::tpInsc},
            {"nrInsc", &Eu::nrInsc},
        };
    }
};

} // namespace tarvo::rural
