#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::desligamento {

/// Frame detVerbas: part of no tree, for the caller to fill.
class TTarvoESocialCamposdetVerbas : public TTarvoESocialCamposQuadro<TTarvoESocialCamposdetVerbas> {
public:
    explicit TTarvoESocialCamposdetVerbas(std::int64_t AIdCalculo)
        : TTarvoESocialCamposQuadro("{788F0E70-7B3E-4A76-9E56-508BF345CF54}", AIdCalculo)
    {}

    std::string codRubr;
    std::string ideTabRubr;
    std::string qtdRubr;
    std::string fatorRubr;
    std::string vrUnit;
    std::string vrRubr;

    static TPropriedades Tags()
    {
        return {
            {"codRubr", &Eu::codRubr},     {"ideTabRubr", &Eu::ideTabRubr}, {"qtdRubr", &Eu::qtdRubr},
            {"fatorRubr", &Eu::fatorRubr}, {"vrUnit", &Eu::vrUnit},         {"vrRubr", &Eu::vrRubr},
        };
    }
};

} // namespace tarvo::desligamento
