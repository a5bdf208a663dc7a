#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::trabalhador {

/// S-2298 infoReintegr: the reinstatement, all of it for the caller.
class TTarvoESocialCamposinfoReintegr : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoReintegr> {
public:
    explicit TTarvoESocialCamposinfoReintegr(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{B0FA6BD7-79DD-4DDA-9132-7E3A3D734BEA}", AIdEmpregado)
    {}

    std::string tpReint;
    std::string nrProcJud;
    std::string nrLeiAnistia;
    std::string indPagtoJuizo;
    TDateTime dtEfetRetorno;
    TDateTime dtEfeito;

    static TPropriedades Tags()
    {
        return {{"tpReint", &Eu::tpReint},
                {"nrProcJud", &Eu::nrProcJud},
                {"nrLeiAnistia", &Eu::nrLeiAnistia},
                {"indPagtoJuizo", &Eu::indPagtoJuizo},
                {"dtEfetRetorno", &Eu::dtEfetRetorno},
                {"dtEfeito", &Eu::dtEfeito}};
    }
};

/// Event S-2298: reinstatement of a worker. A frame that the caller fills; only ideVinculo reads the database.
class TTarvoESocialCamposS2298 : public TTarvoESocialCamposQuadro<TTarvoESocialCamposS2298> {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO.
    explicit TTarvoESocialCamposS2298(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{9CA783AD-3462-4A8C-A2DF-01F1B80D8CAD}", AIdEmpregado), ideVinculo(AIdEmpregado),
          infoReintegr(AIdEmpregado)
    {}

    TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinfoReintegr infoReintegr;

    static TPropriedades Tags() { return {{"ideVinculo", &Eu::ideVinculo}, {"infoReintegr", &Eu::infoReintegr}}; }
};

} // namespace tarvo::trabalhador
