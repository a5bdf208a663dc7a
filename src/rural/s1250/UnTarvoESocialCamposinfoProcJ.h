#pragma once

#include "rural/produtor/UnTarvoESocialCamposinfoProcBase.h"

namespace tarvo::rural {

/// S-1250 infoProcJ: a process of the acquirer.
class TTarvoESocialCamposinfoProcJ : public TTarvoESocialCamposinfoProcBase {
public:
    using TTarvoESocialCamposinfoProcBase::TTarvoESocialCamposinfoProcBase;
};

} // namespace tarvo::rural
