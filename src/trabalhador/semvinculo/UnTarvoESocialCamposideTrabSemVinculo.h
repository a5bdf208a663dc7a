#pragma once

#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::trabalhador {

/// S-2306 and S-2399 ideTrabSemVinculo: identification of a worker without a bond. It has nothing of its own, and a
/// list of modified groups names it by the GUID of ideVinculo.
class TTarvoESocialCamposideTrabSemVinculo : public TTarvoESocialCamposideVinculo {
public:
    using TTarvoESocialCamposideVinculo::TTarvoESocialCamposideVinculo;
};

} // namespace tarvo::trabalhador
