#pragma once

#include "sst/exposicao/UnTarvoESocialCamposinfoAmb.h"

// The three moments of a condition, shared by the exposure of S-2240 and by the unhealthy work and the special
// retirement of S-2241: a date and the environment.

namespace tarvo::sst {

class TTarvoESocialCamposIniCondicao : public TTarvoESocialCamposQuadro<TTarvoESocialCamposIniCondicao> {
public:
    TDateTime dtIniCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    static TPropriedades Tags() { return {{"dtIniCondicao", &Eu::dtIniCondicao}, {"infoAmb", &Eu::infoAmb}}; }

protected:
    TTarvoESocialCamposIniCondicao(std::string_view AGuid, std::int64_t AId)
        : TTarvoESocialCamposQuadro(AGuid, AId), infoAmb(AId)
    {}
};

class TTarvoESocialCamposAltCondicao : public TTarvoESocialCamposQuadro<TTarvoESocialCamposAltCondicao> {
public:
    TDateTime dtAltCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    static TPropriedades Tags() { return {{"dtAltCondicao", &Eu::dtAltCondicao}, {"infoAmb", &Eu::infoAmb}}; }

protected:
    TTarvoESocialCamposAltCondicao(std::string_view AGuid, std::int64_t AId)
        : TTarvoESocialCamposQuadro(AGuid, AId), infoAmb(AId)
    {}
};

class TTarvoESocialCamposFimCondicao : public TTarvoESocialCamposQuadro<TTarvoESocialCamposFimCondicao> {
public:
    TDateTime dtFimCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    static TPropriedades Tags() { return {{"dtFimCondicao", &Eu::dtFimCondicao}, {"infoAmb", &Eu::infoAmb}}; }

protected:
    TTarvoESocialCamposFimCondicao(std::string_view AGuid, std::int64_t AId)
        : TTarvoESocialCamposQuadro(AGuid, AId), infoAmb(AId)
    {}
};

} // namespace tarvo::sst
