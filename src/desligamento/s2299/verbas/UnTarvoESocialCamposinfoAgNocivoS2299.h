#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposinfoAgNocivoDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 infoAgNocivo: the exposure to harmful agents in the position held on a day.
class TTarvoESocialCamposinfoAgNocivoS2299 : public TTarvoESocialCamposinfoAgNocivoDesligamento {
public:
    TTarvoESocialCamposinfoAgNocivoS2299(std::int64_t AIdEmpregado, TDateTime ADataBase)
        : TTarvoESocialCamposinfoAgNocivoDesligamento("{962A9094-05E4-4E77-91A4-515D0D45591C}", AIdEmpregado, ADataBase)
    {}
};

} // namespace tarvo::desligamento
