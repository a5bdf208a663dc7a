#pragma once

#include "rural/produtor/UnTarvoESocialCamposinfoProcBase.h"

namespace tarvo::rural {

/// S-1250 infoProcJud: a process of the producer.
class TTarvoESocialCamposinfoProcJud : public TTarvoESocialCamposinfoProcBase {
public:
    using TTarvoESocialCamposinfoProcBase::TTarvoESocialCamposinfoProcBase;
};

} // namespace tarvo::rural
