#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

// The health plan and the harmful agents of a contract as the layout shapes them, for the caller to fill.

namespace tarvo::remuneracao {

/// Frame detPlano.
class TTarvoESocialCamposdetPlano : public TTarvoESocialCamposQuadro<TTarvoESocialCamposdetPlano> {
public:
    explicit TTarvoESocialCamposdetPlano(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{0A17B6E3-F3F5-4FC1-B3B7-73D9C1E4C795}", AIdEmpregado)
    {}

    std::string tpDep;
    std::string cpfDep;
    std::string nmDep;
    std::string dtNascto;
    std::string vlrPgDep;

    static TPropriedades Tags()
    {
        return {
            {"tpDep", &Eu::tpDep},       {"cpfDep", &Eu::cpfDep},     {"nmDep", &Eu::nmDep},
            {"dtNascto", &Eu::dtNascto}, {"vlrPgDep", &Eu::vlrPgDep},
        };
    }
};

/// Frame detOper.
class TTarvoESocialCamposdetOper : public TTarvoESocialCamposQuadro<TTarvoESocialCamposdetOper> {
public:
    explicit TTarvoESocialCamposdetOper(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{43D016C7-72AE-4AD0-8E0F-16BBC759045A}", AIdEmpregado), detPlano(AIdEmpregado)
    {}

    std::string cnpjOper;
    std::string regANS;
    std::string vrPgTit;
    TTarvoESocialCamposdetPlano detPlano;

    static TPropriedades Tags()
    {
        return {
            {"cnpjOper", &Eu::cnpjOper},
            {"regANS", &Eu::regANS},
            {"vrPgTit", &Eu::vrPgTit},
            {"detPlano", &Eu::detPlano},
        };
    }
};

/// Frame infoSaudeColet.
class TTarvoESocialCamposinfoSaudeColet : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoSaudeColet> {
public:
    explicit TTarvoESocialCamposinfoSaudeColet(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{260C19F9-B650-44D4-9D99-D738462F3723}", AIdEmpregado), detOper(AIdEmpregado)
    {}

    TTarvoESocialCamposdetOper detOper;

    static TPropriedades Tags() { return {{"detOper", &Eu::detOper}}; }
};

/// Frame infoAgNocivo.
class TTarvoESocialCamposinfoAgNocivo : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoAgNocivo> {
public:
    explicit TTarvoESocialCamposinfoAgNocivo(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{683D9299-3F02-4207-BAFF-07C0A4A53AF1}", AIdEmpregado)
    {}

    std::string grauExp;

    static TPropriedades Tags() { return {{"grauExp", &Eu::grauExp}}; }
};

} // namespace tarvo::remuneracao
