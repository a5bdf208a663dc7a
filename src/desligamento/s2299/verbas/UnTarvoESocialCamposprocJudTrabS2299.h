#pragma once

#include "tabelas/processo/UnTarvoESocialCamposprocJudTrab.h"

namespace tarvo::desligamento {

/// S-2299 procJudTrab: a judicial process of the worker.
class TTarvoESocialCamposprocJudTrabS2299 : public tabelas::TTarvoESocialCamposprocJudTrab {
public:
    explicit TTarvoESocialCamposprocJudTrabS2299(std::int64_t AIdSpProc)
        : TTarvoESocialCamposprocJudTrab(AIdSpProc, "{DD146514-737F-4EEC-9C50-3C53587E53C3}")
    {}
};

} // namespace tarvo::desligamento
