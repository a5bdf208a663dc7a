#pragma once

#include "rural/produtor/UnTarvoESocialCamposideProdutorBase.h"

namespace tarvo::rural {

/// What the two producers of the sibling system share: the retention is the one that was booked, and is apportioned
/// among the contributions. EZeroDivide for a retention booked at the rate 0.
class TTarvoESocialCamposideProdutorBrencoBase : public TTarvoESocialCamposideProdutorBase {
protected:
    using TTarvoESocialCamposideProdutorBase::TTarvoESocialCamposideProdutorBase;

    /// Takes VLRRETENCAO and ALIQUOTA of the current row.
    void RatearRetencao(const TOvraClientDataSet& ARetencao);
    /// With processes, the whole retention is put into CP before they read it.
    void LevarRetencaoAosProcessos(TOvraClientDataSet& AProcessos);

private:
    double FValorRetencao = 0;
};

} // namespace tarvo::rural
