#pragma once

#include "rural/produtor/UnTarvoESocialCamposnfs.h"

namespace tarvo::rural {

/// S-1260 ideAdquir: the buyer.
class TTarvoESocialCamposideAdquir : public TTarvoESocialCamposQuadro<TTarvoESocialCamposideAdquir> {
public:
    explicit TTarvoESocialCamposideAdquir(std::int64_t AIdFilial)
        : TTarvoESocialCamposQuadro("{5A874E9E-122A-474A-A64B-36E66F033970}", AIdFilial), nfs(AIdFilial)
    {}

    std::string tpInsc;
    std::string nrInsc;
    std::string vrComerc;
    TTarvoESocialCamposnfs nfs;

    static TPropriedades Tags()
    {
        return {{"tpInsc", &Eu::tpInsc}, {"nrInsc", &Eu::nrInsc}, {"vrComerc", &Eu::vrComerc}, {"nfs", &Eu::nfs}};
    }
};

/// S-1260 infoProcJud: a legal process of the seller.
class TTarvoESocialCamposinfoProcJud1060 : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoProcJud1060> {
public:
    explicit TTarvoESocialCamposinfoProcJud1060(std::int64_t AIdFilial)
        : TTarvoESocialCamposQuadro("{0C9D370E-4076-4849-8DA5-DD9BE5CF2415}", AIdFilial)
    {}

    std::string tpProc;
    std::string nrProc;
    std::string codSusp;
    std::string vrCPSusp;
    std::string vrRatSusp;
    std::string vrSenarSusp;

    static TPropriedades Tags()
    {
        return {{"tpProc", &Eu::tpProc},     {"nrProc", &Eu::nrProc},       {"codSusp", &Eu::codSusp},
                {"vrCPSusp", &Eu::vrCPSusp}, {"vrRatSusp", &Eu::vrRatSusp}, {"vrSenarSusp", &Eu::vrSenarSusp}};
    }
};

/// S-1260 tpComerc: a kind of sale; one buyer and one process, no lists.
class TTarvoESocialCampostpComerc : public TTarvoESocialCamposQuadro<TTarvoESocialCampostpComerc> {
public:
    explicit TTarvoESocialCampostpComerc(std::int64_t AIdFilial)
        : TTarvoESocialCamposQuadro("{B0F03F71-E0E0-493E-A90D-16434DC6AA5F}", AIdFilial), ideAdquir(AIdFilial),
          infoProcJud1060(AIdFilial)
    {}

    std::string indComerc;
    std::string vrTotCom;
    TTarvoESocialCamposideAdquir ideAdquir;
    TTarvoESocialCamposinfoProcJud1060 infoProcJud1060;

    static TPropriedades Tags()
    {
        return {{"indComerc", &Eu::indComerc},
                {"vrTotCom", &Eu::vrTotCom},
                {"ideAdquir", &Eu::ideAdquir},
                {"infoProcJud1060", &Eu::infoProcJud1060}};
    }
};

/// S-1260 ideEstabel: the establishment that sells.
class TTarvoESocialCamposideEstabel : public TTarvoESocialCamposQuadro<TTarvoESocialCamposideEstabel> {
public:
    explicit TTarvoESocialCamposideEstabel(std::int64_t AIdFilial)
        : TTarvoESocialCamposQuadro("{CE36C7B7-B1B9-4392-BBB6-59A612221A12}", AIdFilial), tpComerc(AIdFilial)
    {}

    std::string nrInscEstabRural;
    TTarvoESocialCampostpComerc tpComerc;

    static TPropriedades Tags() { return {{"nrInscEstabRural", &Eu::nrInscEstabRural}, {"tpComerc", &Eu::tpComerc}}; }
};

/// Event S-1260: an establishment's own sale of rural production. A frame that the caller fills; nothing of it is read
/// from the database.
class TTarvoESocialCamposS1260 : public TTarvoESocialCamposQuadro<TTarvoESocialCamposS1260> {
public:
    explicit TTarvoESocialCamposS1260(std::int64_t AIdFilial)
        : TTarvoESocialCamposQuadro("{8E08F7DF-01AB-405D-9514-361A0E8B641B}", AIdFilial), ideEstabel(AIdFilial)
    {}

    TTarvoESocialCamposideEstabel ideEstabel;

    static TPropriedades Tags() { return {{"ideEstabel", &Eu::ideEstabel}}; }
};

} // namespace tarvo::rural
