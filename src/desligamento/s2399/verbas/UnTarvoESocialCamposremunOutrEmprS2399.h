#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposremunOutrEmprDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 remunOutrEmpr: what another employer paid.
class TTarvoESocialCamposremunOutrEmprS2399 : public TTarvoESocialCamposremunOutrEmprDesligamento {
public:
    TTarvoESocialCamposremunOutrEmprS2399()
        : TTarvoESocialCamposremunOutrEmprDesligamento("{EF29C855-4BC6-418C-9BC8-36597888FDE9}")
    {}
};

} // namespace tarvo::desligamento
