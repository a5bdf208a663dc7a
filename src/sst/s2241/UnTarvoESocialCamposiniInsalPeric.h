#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2241 iniInsalPeric.
class TTarvoESocialCamposiniInsalPeric : public TTarvoESocialCamposIniCondicao {
public:
    explicit TTarvoESocialCamposiniInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposIniCondicao("{DEDDA557-E6A7-4211-8E4F-CF31329E90C7}", AIdInsalPeric)
    {}
};

} // namespace tarvo::sst
