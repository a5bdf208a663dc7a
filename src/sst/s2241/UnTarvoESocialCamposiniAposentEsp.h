#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2241 iniAposentEsp.
class TTarvoESocialCamposiniAposentEsp : public TTarvoESocialCamposIniCondicao {
public:
    explicit TTarvoESocialCamposiniAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposIniCondicao("{89D47C59-6E27-42EF-AA70-0B458730671C}", AIdInsalPeric)
    {}
};

} // namespace tarvo::sst
