#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2241 altInsalPeric.
class TTarvoESocialCamposaltInsalPeric : public TTarvoESocialCamposAltCondicao {
public:
    explicit TTarvoESocialCamposaltInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposAltCondicao("{C41EE4D7-5E9B-449E-845A-E6163D50A018}", AIdInsalPeric)
    {}
};

} // namespace tarvo::sst
