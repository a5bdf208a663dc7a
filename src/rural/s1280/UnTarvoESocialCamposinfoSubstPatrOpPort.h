#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::rural {

/// S-1280 infoSubstPatrOpPort: a port operator, filled by the caller alone.
class TTarvoESocialCamposinfoSubstPatrOpPort
    : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoSubstPatrOpPort> {
public:
    TTarvoESocialCamposinfoSubstPatrOpPort() : TTarvoESocialCamposQuadro("{94EB1B9E-67F5-4668-9CDA-B53F15682D88}") {}

    std::string cnpjOpPortuario;

    static TPropriedades Tags()
    {
        return {
            {"cnpjOpPortuario", &Eu::cnpjOpPortuario},
        };
    }
};

} // namespace tarvo::rural
