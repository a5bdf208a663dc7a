#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2241 fimAposentEsp.
class TTarvoESocialCamposfimAposentEsp : public TTarvoESocialCamposFimCondicao {
public:
    explicit TTarvoESocialCamposfimAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposFimCondicao("{98897F87-C17E-4046-B21A-ABD156F86DCB}", AIdInsalPeric)
    {}
};

} // namespace tarvo::sst
