#pragma once

#include "tabelas/processo/UnTarvoESocialCamposprocJudTrab.h"

namespace tarvo::remuneracao {

/// S-1200 procJudTrab: a judicial process of the worker.
class TTarvoESocialCamposProcJudTrabS1200 : public tabelas::TTarvoESocialCamposprocJudTrab {
public:
    explicit TTarvoESocialCamposProcJudTrabS1200(std::int64_t AIdSpProc);
};

} // namespace tarvo::remuneracao
