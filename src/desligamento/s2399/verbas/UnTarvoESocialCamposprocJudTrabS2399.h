#pragma once

#include "tabelas/processo/UnTarvoESocialCamposprocJudTrab.h"

namespace tarvo::desligamento {

/// S-2399 procJudTrab: a judicial process of the worker.
class TTarvoESocialCamposprocJudTrabS2399 : public tabelas::TTarvoESocialCamposprocJudTrab {
public:
    explicit TTarvoESocialCamposprocJudTrabS2399(std::int64_t AIdSpProc)
        : TTarvoESocialCamposprocJudTrab(AIdSpProc, "{7BF923D3-1792-4E80-8A25-7DE8A686FAD5}")
    {}
};

} // namespace tarvo::desligamento
