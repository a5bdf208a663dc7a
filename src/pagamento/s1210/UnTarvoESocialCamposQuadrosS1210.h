#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

// Frames of S-1210 that declare tags and read nothing.

namespace tarvo::pagamento {

/// infoPgtoParc: a rubric of a partial payment. Nothing loads it.
class TTarvoESocialCamposInfoPgtoParc : public TTarvoESocialCamposQuadro<TTarvoESocialCamposInfoPgtoParc> {
public:
    explicit TTarvoESocialCamposInfoPgtoParc(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{D3C25E6A-57F1-43B1-99C3-9B5F5F86FA48}", AIdEmpregado)
    {}

    std::string codRubr;
    std::string ideTabRubr;
    std::string qtdRubr;
    std::string fatorRubr;
    std::string vrUnit;
    std::string vrRubr;
    std::string Matricula;

    static TPropriedades Tags()
    {
        return {{"codRubr", &Eu::codRubr},     {"ideTabRubr", &Eu::ideTabRubr}, {"qtdRubr", &Eu::qtdRubr},
                {"fatorRubr", &Eu::fatorRubr}, {"vrUnit", &Eu::vrUnit},         {"vrRubr", &Eu::vrRubr},
                {"Matricula", &Eu::Matricula}};
    }
};

/// InfoPgtoAnt: what was paid under one incidence of income tax, in reais. detPgtoAnt sets both.
class TTarvoESocialCamposInfoPgtoAnt : public TTarvoESocialCamposQuadro<TTarvoESocialCamposInfoPgtoAnt> {
public:
    explicit TTarvoESocialCamposInfoPgtoAnt(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{E2C9F164-3CF3-485E-9523-EC302D8BEA46}", AIdEmpregado)
    {}

    std::string tpBcIRRF;
    long double vrBcIRRF = 0;

    static TPropriedades Tags() { return {{"tpBcIRRF", &Eu::tpBcIRRF}, {"vrBcIRRF", &Eu::vrBcIRRF}}; }
};

/// idePais: country of a beneficiary abroad. Nothing fills it.
class TTarvoESocialCamposIdePais : public TTarvoESocialCamposQuadro<TTarvoESocialCamposIdePais> {
public:
    explicit TTarvoESocialCamposIdePais(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{B4FB3B56-3FDB-40FF-8811-5D5F9656D337}", AIdEmpregado)
    {}

    std::string codPais;
    std::string indNIF;
    std::string nifBenef;

    static TPropriedades Tags()
    {
        return {{"codPais", &Eu::codPais}, {"indNIF", &Eu::indNIF}, {"nifBenef", &Eu::nifBenef}};
    }
};

/// endExt: address abroad. Nothing fills it.
class TTarvoESocialCamposEndExt : public TTarvoESocialCamposQuadro<TTarvoESocialCamposEndExt> {
public:
    explicit TTarvoESocialCamposEndExt(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{1FEB5350-B804-4BD8-BE9A-AA81B75D2973}", AIdEmpregado)
    {}

    std::string dscLograd;
    std::string nrLograd;
    std::string complem;
    std::string bairro;
    std::string nmCid;
    std::string codPostal;

    static TPropriedades Tags()
    {
        return {{"dscLograd", &Eu::dscLograd}, {"nrLograd", &Eu::nrLograd}, {"complem", &Eu::complem},
                {"bairro", &Eu::bairro},       {"nmCid", &Eu::nmCid},       {"codPostal", &Eu::codPostal}};
    }
};

/// idePgtoExt: payment abroad. No load of the event reaches it. Its endExt has no object until a caller gives it one:
/// a load without it raises EAccessViolation.
class TTarvoESocialCamposIdePgtoExt : public TTarvoESocialCamposQuadro<TTarvoESocialCamposIdePgtoExt> {
public:
    explicit TTarvoESocialCamposIdePgtoExt(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{694F11CA-6A18-49DF-91D0-6D2B8CD4806B}", AIdEmpregado), idePais(AIdEmpregado)
    {}

    TTarvoESocialCamposIdePais idePais;
    std::unique_ptr<TTarvoESocialCamposEndExt> endExt;

    static TPropriedades Tags() { return {{"idePais", &Eu::idePais}, {"endExt", &Eu::endExt}}; }
};

} // namespace tarvo::pagamento
