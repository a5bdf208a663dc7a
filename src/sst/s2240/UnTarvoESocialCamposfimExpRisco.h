#pragma once

#include "sst/exposicao/UnTarvoESocialCamposCondicao.h"

namespace tarvo::sst {

/// S-2240 fimExpRisco.
class TTarvoESocialCamposfimExpRisco : public TTarvoESocialCamposFimCondicao {
public:
    explicit TTarvoESocialCamposfimExpRisco(std::int64_t AIdFatRisco)
        : TTarvoESocialCamposFimCondicao("{AB520ECE-FD18-4573-A001-F31683129077}", AIdFatRisco)
    {}
};

} // namespace tarvo::sst
