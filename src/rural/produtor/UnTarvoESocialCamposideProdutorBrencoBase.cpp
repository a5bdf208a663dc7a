#include "rural/produtor/UnTarvoESocialCamposideProdutorBrencoBase.h"

namespace tarvo::rural {

void TTarvoESocialCamposideProdutorBrencoBase::RatearRetencao(const TOvraClientDataSet& ARetencao)
{
    // Percent, within the rate that was booked.
    constexpr long double PERCENTUAL_RAT = 0.1L;
    constexpr long double PERCENTUAL_SENAR = 0.2L;
    ZerarRetencao();
    FValorRetencao = ARetencao.FieldByName("VLRRETENCAO").AsFloat();
    if (!(FValorRetencao > 0))
        return;
    if (SoRetemSenar()) {
        vrSenarDesc = FValorRetencao;
    } else {
        const auto LAliquota = ARetencao.FieldByName("ALIQUOTA").AsFloat();
        vrRatDescPR = static_cast<double>(Dividir(FValorRetencao * PERCENTUAL_RAT, LAliquota));
        vrSenarDesc = static_cast<double>(Dividir(FValorRetencao * PERCENTUAL_SENAR, LAliquota));
    }
    // CP takes what is left; wide, so that it is rounded once.
    vrCPDescPR = static_cast<double>(static_cast<long double>(FValorRetencao) - vrRatDescPR - vrSenarDesc);
}

void TTarvoESocialCamposideProdutorBrencoBase::LevarRetencaoAosProcessos(TOvraClientDataSet& AProcessos)
{
    if (AProcessos.IsEmpty())
        return;
    ZerarRetencao();
    vrCPDescPR = FValorRetencao;
    AcrescentarInfoProcJud(AProcessos, false);
}

} // namespace tarvo::rural
