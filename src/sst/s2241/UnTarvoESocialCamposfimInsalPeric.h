#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2241 fimInsalPeric.
class TTarvoESocialCamposfimInsalPeric : public TTarvoESocialCamposFimCondicao {
public:
    explicit TTarvoESocialCamposfimInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposFimCondicao("{9F9D3C82-0F9F-483F-8AB4-13872F0C0073}", AIdInsalPeric)
    {}
};

} // namespace tarvo::sst
