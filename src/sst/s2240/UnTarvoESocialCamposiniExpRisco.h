#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2240 iniExpRisco.
class TTarvoESocialCamposiniExpRisco : public TTarvoESocialCamposIniCondicao {
public:
    explicit TTarvoESocialCamposiniExpRisco(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposIniCondicao("{E5830759-F906-41C2-8516-8EB8A13A511E}", AIdFatRisco)
    {}
};

} // namespace tarvo::sst
