#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::sst {

/// S-2240 and S-2241 infoAtiv.
class TTarvoESocialCamposinfoAtiv : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoAtiv> {
public:
    explicit TTarvoESocialCamposinfoAtiv(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{309D472A-A57A-4F90-AB7A-0206DF361F20}", AIdFatRisco)
    {}

    std::string dscAtivDes;

    static TPropriedades Tags() { return {{"dscAtivDes", &Eu::dscAtivDes}}; }
};

/// S-2240 and S-2241 epc: collective protection.
class TTarvoESocialCamposepc : public TTarvoESocialCamposQuadro<TTarvoESocialCamposepc> {
public:
    explicit TTarvoESocialCamposepc(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{AF7A6EF4-92EB-4C96-B773-EFC27C8D7330}", AIdFatRisco)
    {}

    std::string dscEpc;
    std::string eficEpc;

    static TPropriedades Tags() { return {{"dscEpc", &Eu::dscEpc}, {"eficEpc", &Eu::eficEpc}}; }
};

/// S-2240 and S-2241 epi: personal protection.
class TTarvoESocialCamposepi : public TTarvoESocialCamposQuadro<TTarvoESocialCamposepi> {
public:
    explicit TTarvoESocialCamposepi(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{8203778E-D2BB-4C4C-AF9C-8BF76AEB1A1C}", AIdFatRisco)
    {}

    std::string caEPI;
    std::string eficEpi;
    std::string medProtecao;
    std::string condFuncto;
    std::string przValid;
    std::string periodicTroca;
    std::string higienizacao;

    static TPropriedades Tags()
    {
        return {{"caEPI", &Eu::caEPI},
                {"eficEpi", &Eu::eficEpi},
                {"medProtecao", &Eu::medProtecao},
                {"condFuncto", &Eu::condFuncto},
                {"przValid", &Eu::przValid},
                {"periodicTroca", &Eu::periodicTroca},
                {"higienizacao", &Eu::higienizacao}};
    }
};

/// S-2240 and S-2241 epcEpi.
class TTarvoESocialCamposepcEpi : public TTarvoESocialCamposQuadro<TTarvoESocialCamposepcEpi> {
public:
    explicit TTarvoESocialCamposepcEpi(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{4423441C-0909-4766-9260-CA9FE61EC9FC}", AIdFatRisco), epc(AIdFatRisco),
          epi(AIdFatRisco)
    {}

    std::string utilizEPC;
    std::string utilizEPI;
    TTarvoESocialCamposepc epc;
    TTarvoESocialCamposepi epi;

    static TPropriedades Tags()
    {
        return {{"utilizEPC", &Eu::utilizEPC}, {"utilizEPI", &Eu::utilizEPI}, {"epc", &Eu::epc}, {"epi", &Eu::epi}};
    }
};

/// S-2240 and S-2241 fatRisco: a risk factor.
class TTarvoESocialCamposfatRisco : public TTarvoESocialCamposQuadro<TTarvoESocialCamposfatRisco> {
public:
    explicit TTarvoESocialCamposfatRisco(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{4A82EA32-5808-4964-8211-4D8DF83E770D}", AIdFatRisco), epcEpi(AIdFatRisco)
    {}

    std::string codFatRis;
    std::string intConc;
    std::string tecMedicao;
    TTarvoESocialCamposepcEpi epcEpi;

    static TPropriedades Tags()
    {
        return {{"codFatRis", &Eu::codFatRis},
                {"intConc", &Eu::intConc},
                {"tecMedicao", &Eu::tecMedicao},
                {"epcEpi", &Eu::epcEpi}};
    }
};

/// S-2240 and S-2241 infoAmb: the environment, shared by both events.
class TTarvoESocialCamposinfoAmb : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoAmb> {
public:
    explicit TTarvoESocialCamposinfoAmb(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposQuadro("{066CB063-9D13-411D-A39B-169A9BE8BB5B}", AIdFatRisco), infoAtiv(AIdFatRisco),
          fatRisco(AIdFatRisco)
    {}

    std::string codAmb;
    TTarvoESocialCamposinfoAtiv infoAtiv;
    TTarvoESocialCamposfatRisco fatRisco;

    static TPropriedades Tags()
    {
        return {{"codAmb", &Eu::codAmb}, {"infoAtiv", &Eu::infoAtiv}, {"fatRisco", &Eu::fatRisco}};
    }
};

} // namespace tarvo::sst
