#include "remuneracao/s1200/UnTarvoESocialCamposProcJudTrabS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposProcJudTrabS1200::TTarvoESocialCamposProcJudTrabS1200(std::int64_t AIdSpProc)
    : TTarvoESocialCamposprocJudTrab(AIdSpProc, "{A8820949-9F1A-499A-B26A-55DACF838C8D}")
{}

} // namespace tarvo::remuneracao
