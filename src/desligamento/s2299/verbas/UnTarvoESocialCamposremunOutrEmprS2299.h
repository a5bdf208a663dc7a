#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposremunOutrEmprDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 remunOutrEmpr: what another employer paid.
class TTarvoESocialCamposremunOutrEmprS2299 : public TTarvoESocialCamposremunOutrEmprDesligamento {
public:
    TTarvoESocialCamposremunOutrEmprS2299()
        : TTarvoESocialCamposremunOutrEmprDesligamento("{B77EFADE-8E06-49EC-AD77-91366CF77434}")
    {}
};

} // namespace tarvo::desligamento
