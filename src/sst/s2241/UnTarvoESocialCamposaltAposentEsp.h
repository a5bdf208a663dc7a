#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2241 altAposentEsp.
class TTarvoESocialCamposaltAposentEsp : public TTarvoESocialCamposAltCondicao {
public:
    explicit TTarvoESocialCamposaltAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposAltCondicao("{229E7B1D-6FB5-4787-9592-7C287751F347}", AIdInsalPeric)
    {}
};

} // namespace tarvo::sst
