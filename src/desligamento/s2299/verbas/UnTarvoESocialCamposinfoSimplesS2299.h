#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposinfoSimplesDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 infoSimples: the simplified tax regime of a lotação on a day.
class TTarvoESocialCamposinfoSimplesS2299 : public TTarvoESocialCamposinfoSimplesDesligamento {
public:
    TTarvoESocialCamposinfoSimplesS2299(std::int64_t AIDEstabelecimento, std::int64_t AIDDepartamento,
                                        TDateTime ADataBase)
        : TTarvoESocialCamposinfoSimplesDesligamento("{3B6CE49D-AF4F-4C04-B936-75E4C2E1AE15}", AIDEstabelecimento,
                                                     AIDDepartamento, ADataBase)
    {}
};

} // namespace tarvo::desligamento
