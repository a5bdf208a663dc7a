#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposinfoSimplesDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 infoSimples: the simplified tax regime of a lotação on a day.
class TTarvoESocialCamposinfoSimplesS2399 : public TTarvoESocialCamposinfoSimplesDesligamento {
public:
    TTarvoESocialCamposinfoSimplesS2399(std::int64_t AIDEstabelecimento, std::int64_t AIDDepartamento,
                                        TDateTime ADataBase)
        : TTarvoESocialCamposinfoSimplesDesligamento("{855B50EF-0B26-43B6-B3A1-6A93B2A067FF}", AIDEstabelecimento,
                                                     AIDDepartamento, ADataBase)
    {}
};

} // namespace tarvo::desligamento
