#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"
#include "trabalhador/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::trabalhador {

/// S-2298 infoReintegr: the reinstatement, all of it for the caller.
class TTarvoESocialCamposinfoReintegr : public TTarvoESocialCamposQuadro {
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

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposinfoReintegr;
        static const TPropriedades tabela{{"tpReint", &Eu::tpReint},
                                          {"nrProcJud", &Eu::nrProcJud},
                                          {"nrLeiAnistia", &Eu::nrLeiAnistia},
                                          {"indPagtoJuizo", &Eu::indPagtoJuizo},
                                          {"dtEfetRetorno", &Eu::dtEfetRetorno},
                                          {"dtEfeito", &Eu::dtEfeito}};
        return tabela;
    }
};

/// Event S-2298: reinstatement of a worker. A frame that the caller fills; only ideVinculo reads the database.
class TTarvoESocialCamposS2298 : public TTarvoESocialCamposQuadro {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO.
    explicit TTarvoESocialCamposS2298(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{9CA783AD-3462-4A8C-A2DF-01F1B80D8CAD}", AIdEmpregado), ideVinculo(AIdEmpregado),
          infoReintegr(AIdEmpregado)
    {}

    TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinfoReintegr infoReintegr;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&ideVinculo, &infoReintegr});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposS2298;
        static const TPropriedades tabela{{"ideVinculo", &Eu::ideVinculo}, {"infoReintegr", &Eu::infoReintegr}};
        return tabela;
    }
};

} // namespace tarvo::trabalhador
