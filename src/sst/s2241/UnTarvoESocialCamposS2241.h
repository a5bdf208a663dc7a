#pragma once

#include "sst/s2241/UnTarvoESocialCamposaltAposentEsp.h"
#include "sst/s2241/UnTarvoESocialCamposaltInsalPeric.h"
#include "sst/s2241/UnTarvoESocialCamposfimAposentEsp.h"
#include "sst/s2241/UnTarvoESocialCamposfimInsalPeric.h"
#include "sst/s2241/UnTarvoESocialCamposiniAposentEsp.h"
#include "sst/s2241/UnTarvoESocialCamposiniInsalPeric.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

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
