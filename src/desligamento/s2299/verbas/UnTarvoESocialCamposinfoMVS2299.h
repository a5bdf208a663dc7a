#pragma once

#include "desligamento/s2299/verbas/UnTarvoESocialCamposremunOutrEmprS2299.h"
#include "desligamento/verbas/UnTarvoESocialCamposinfoMVDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 infoMV: the worker's other employers.
class TTarvoESocialCamposinfoMVS2299
    : public TTarvoESocialCamposinfoMVDesligamento<TTarvoESocialCamposremunOutrEmprS2299> {
public:
    explicit TTarvoESocialCamposinfoMVS2299(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposinfoMVDesligamento("{2E86E12D-329D-4549-9850-1147D22FED49}", AIdEmpregado)
    {}
};

} // namespace tarvo::desligamento
