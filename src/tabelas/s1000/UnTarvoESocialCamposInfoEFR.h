#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 infoEFR: a tag without content of its own.
class TTarvoESocialCamposInfoEFR : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoEFR(std::int64_t)
        : TTarvoESocialCamposGrupoBase("{D2BEEFB8-9629-4730-B206-98D75AE668E5}")
    {}
};

} // namespace tarvo::tabelas
