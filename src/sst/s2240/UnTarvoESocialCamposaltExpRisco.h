#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2240 altExpRisco.
class TTarvoESocialCamposaltExpRisco : public TTarvoESocialCamposAltCondicao {
public:
    explicit TTarvoESocialCamposaltExpRisco(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposAltCondicao("{213EDDCD-2392-4550-B2C6-D9D31C44D6C3}", AIdFatRisco)
    {}
};

} // namespace tarvo::sst
