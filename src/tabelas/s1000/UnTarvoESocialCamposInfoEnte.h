#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 infoEnte: a tag without content of its own.
class TTarvoESocialCamposInfoEnte : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoEnte(std::int64_t)
        : TTarvoESocialCamposGrupoBase("{905D2B04-8572-4402-810E-C2A5FF4E5548}")
    {}
};

} // namespace tarvo::tabelas
