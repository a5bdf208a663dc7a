#pragma once

#include "desligamento/s2399/verbas/UnTarvoESocialCamposremunOutrEmprS2399.h"
#include "desligamento/verbas/UnTarvoESocialCamposinfoMVDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 infoMV: the worker's other employers.
class TTarvoESocialCamposinfoMVS2399
    : public TTarvoESocialCamposinfoMVDesligamento<TTarvoESocialCamposremunOutrEmprS2399> {
public:
    explicit TTarvoESocialCamposinfoMVS2399(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposinfoMVDesligamento("{1BE82F7B-6A17-489E-853A-3185D1EC1902}", AIdEmpregado)
    {}
};

} // namespace tarvo::desligamento
