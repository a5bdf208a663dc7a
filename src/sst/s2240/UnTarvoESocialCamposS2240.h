#pragma once

#include "sst/s2240/UnTarvoESocialCamposaltExpRisco.h"
#include "sst/s2240/UnTarvoESocialCamposfimExpRisco.h"
#include "sst/s2240/UnTarvoESocialCamposiniExpRisco.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

/// S-2240 respReg: who answers for the register.
class TTarvoESocialCamposrespReg : public TTarvoESocialCamposQuadro<TTarvoESocialCamposrespReg> {
public:
    explicit TTarvoESocialCamposrespReg(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{6AFA20DE-DD61-49BB-8E41-133E55FB45EE}", AIdFatRisco)
    {}

    TDateTime dtIni;
    TDateTime dtFim;
    std::string nisResp;
    std::string nrOc;
    std::string ufOC;

    static TPropriedades Tags()
    {
        return {{"dtIni", &Eu::dtIni},
                {"dtFim", &Eu::dtFim},
                {"nisResp", &Eu::nisResp},
                {"nrOc", &Eu::nrOc},
                {"ufOC", &Eu::ufOC}};
    }
};

/// S-2240 infoExpRisco. The end is created and loaded before the start; meant.
class TTarvoESocialCamposinfoExpRisco : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoExpRisco> {
public:
    explicit TTarvoESocialCamposinfoExpRisco(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{67F40B8F-0419-4F47-80AE-97358D285E1F}", AIdFatRisco), fimExpRisco(AIdFatRisco),
          iniExpRisco(AIdFatRisco), altExpRisco(AIdFatRisco), respReg(AIdFatRisco)
    {}

    TTarvoESocialCamposfimExpRisco fimExpRisco;
    TTarvoESocialCamposiniExpRisco iniExpRisco;
    TTarvoESocialCamposaltExpRisco altExpRisco;
    TTarvoESocialCamposrespReg respReg;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposQuadro::CarregarDados(AListaCamposModificados);
        fimExpRisco.CarregarDados(AListaCamposModificados);
        iniExpRisco.CarregarDados(AListaCamposModificados);
        altExpRisco.CarregarDados(AListaCamposModificados);
        respReg.CarregarDados(AListaCamposModificados);
    }

    static TPropriedades Tags()
    {
        return {{"iniExpRisco", &Eu::iniExpRisco},
                {"altExpRisco", &Eu::altExpRisco},
                {"fimExpRisco", &Eu::fimExpRisco},
                {"respReg", &Eu::respReg}};
    }
};

/// Event S-2240: exposure to risk. A frame that the caller fills; only ideVinculo reads the database, and takes the id
/// of the risk factor as if it were a worker's; meant.
class TTarvoESocialCamposS2240 : public TTarvoESocialCamposQuadro<TTarvoESocialCamposS2240> {
public:
    explicit TTarvoESocialCamposS2240(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{6CE14039-9979-402C-82A5-EFA4B946C25B}", AIdFatRisco), ideVinculo(AIdFatRisco),
          infoExpRisco(AIdFatRisco)
    {}

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinfoExpRisco infoExpRisco;

    static TPropriedades Tags() { return {{"ideVinculo", &Eu::ideVinculo}, {"infoExpRisco", &Eu::infoExpRisco}}; }
};

} // namespace tarvo::sst
