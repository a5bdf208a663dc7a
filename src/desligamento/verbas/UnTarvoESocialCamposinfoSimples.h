#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::desligamento {

/// Frame infoSimples: part of no tree, for the caller to fill.
class TTarvoESocialCamposinfoSimples : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoSimples> {
public:
    explicit TTarvoESocialCamposinfoSimples(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{6323EA37-C64A-4DA5-B84E-53BDE8ACEB28}", AIdEmpregado)
    {}

    std::string indSimples;

    static TPropriedades Tags() { return {{"indSimples", &Eu::indSimples}}; }
};

} // namespace tarvo::desligamento
