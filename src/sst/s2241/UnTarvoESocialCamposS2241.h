#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

/// S-2241 iniInsalPeric.
class TTarvoESocialCamposiniInsalPeric : public TTarvoESocialCamposIniCondicao {
public:
    explicit TTarvoESocialCamposiniInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposIniCondicao("{DEDDA557-E6A7-4211-8E4F-CF31329E90C7}", AIdInsalPeric)
    {}
};

/// S-2241 altInsalPeric.
class TTarvoESocialCamposaltInsalPeric : public TTarvoESocialCamposAltCondicao {
public:
    explicit TTarvoESocialCamposaltInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposAltCondicao("{C41EE4D7-5E9B-449E-845A-E6163D50A018}", AIdInsalPeric)
    {}
};

/// S-2241 fimInsalPeric.
class TTarvoESocialCamposfimInsalPeric : public TTarvoESocialCamposFimCondicao {
public:
    explicit TTarvoESocialCamposfimInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposFimCondicao("{9F9D3C82-0F9F-483F-8AB4-13872F0C0073}", AIdInsalPeric)
    {}
};

/// S-2241 iniAposentEsp.
class TTarvoESocialCamposiniAposentEsp : public TTarvoESocialCamposIniCondicao {
public:
    explicit TTarvoESocialCamposiniAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposIniCondicao("{89D47C59-6E27-42EF-AA70-0B458730671C}", AIdInsalPeric)
    {}
};

/// S-2241 altAposentEsp.
class TTarvoESocialCamposaltAposentEsp : public TTarvoESocialCamposAltCondicao {
public:
    explicit TTarvoESocialCamposaltAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposAltCondicao("{229E7B1D-6FB5-4787-9592-7C287751F347}", AIdInsalPeric)
    {}
};

/// S-2241 fimAposentEsp.
class TTarvoESocialCamposfimAposentEsp : public TTarvoESocialCamposFimCondicao {
public:
    explicit TTarvoESocialCamposfimAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposFimCondicao("{98897F87-C17E-4046-B21A-ABD156F86DCB}", AIdInsalPeric)
    {}
};

/// S-2241 insalPeric: unhealthy or dangerous work.
class TTarvoESocialCamposinsalPeric : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinsalPeric> {
public:
    explicit TTarvoESocialCamposinsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{7F32C9EF-1CED-4B6A-8E9A-FEB846F0E854}", AIdInsalPeric),
          iniInsalPeric(AIdInsalPeric), altInsalPeric(AIdInsalPeric), fimInsalPeric(AIdInsalPeric)
    {}

    TTarvoESocialCamposiniInsalPeric iniInsalPeric;
    TTarvoESocialCamposaltInsalPeric altInsalPeric;
    TTarvoESocialCamposfimInsalPeric fimInsalPeric;

    static TPropriedades Tags()
    {
        return {{"iniInsalPeric", &Eu::iniInsalPeric},
                {"altInsalPeric", &Eu::altInsalPeric},
                {"fimInsalPeric", &Eu::fimInsalPeric}};
    }
};

/// S-2241 aposentEsp: special retirement, its end first.
class TTarvoESocialCamposaposentEsp : public TTarvoESocialCamposQuadro<TTarvoESocialCamposaposentEsp> {
public:
    explicit TTarvoESocialCamposaposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{E7EF4857-2E7B-4460-B91D-FE65914F64B4}", AIdInsalPeric),
          fimAposentEsp(AIdInsalPeric), iniAposentEsp(AIdInsalPeric), altAposentEsp(AIdInsalPeric)
    {}

    TTarvoESocialCamposfimAposentEsp fimAposentEsp;
    TTarvoESocialCamposiniAposentEsp iniAposentEsp;
    TTarvoESocialCamposaltAposentEsp altAposentEsp;

    static TPropriedades Tags()
    {
        return {{"fimAposentEsp", &Eu::fimAposentEsp},
                {"iniAposentEsp", &Eu::iniAposentEsp},
                {"altAposentEsp", &Eu::altAposentEsp}};
    }
};

/// Event S-2241: unhealthy or dangerous work and special retirement. A frame that the caller fills; only ideVinculo
/// reads the database, and takes the id of the condition as if it were a worker's; meant.
class TTarvoESocialCamposS2241 : public TTarvoESocialCamposQuadro<TTarvoESocialCamposS2241> {
public:
    explicit TTarvoESocialCamposS2241(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{80A12DC3-308C-416B-A444-5BBA5D68AB44}", AIdInsalPeric), ideVinculo(AIdInsalPeric),
          insalPeric(AIdInsalPeric), aposentEsp(AIdInsalPeric)
    {}

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinsalPeric insalPeric;
    TTarvoESocialCamposaposentEsp aposentEsp;

    static TPropriedades Tags()
    {
        return {{"ideVinculo", &Eu::ideVinculo}, {"insalPeric", &Eu::insalPeric}, {"aposentEsp", &Eu::aposentEsp}};
    }
};

} // namespace tarvo::sst
