#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposinfoAgNocivoDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 infoAgNocivo: the exposure to harmful agents in the position held on a day.
class TTarvoESocialCamposinfoAgNocivoS2399 : public TTarvoESocialCamposinfoAgNocivoDesligamento {
public:
    TTarvoESocialCamposinfoAgNocivoS2399(std::int64_t AIdEmpregado, TDateTime ADataBase)
        : TTarvoESocialCamposinfoAgNocivoDesligamento("{82B0B697-6AAB-4724-877E-E403F135DC51}", AIdEmpregado, ADataBase)
    {}
};

} // namespace tarvo::desligamento
