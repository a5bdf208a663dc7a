#include "imports/valores/UnTarvoUtilsDatas.h"

namespace tarvo {

TDateTime TransformarData(TDateTime AData, std::int32_t ADias, TDiasTransformarData ATipoDia, TSomaTransformarData)
{
    const TDateTime LData = DateOf(AData) + ADias;
    const TDateTime LPrimeiro = LData - (DayOf(LData) - 1);
    return ATipoDia == TDiasTransformarData::PrimeiroDiaDoMes ? LPrimeiro : LPrimeiro + (DaysInMonth(LData) - 1);
}

TDateTime PrimeiroDiaDoMes(TDateTime AData)
{
    return TransformarData(AData, 0, TDiasTransformarData::PrimeiroDiaDoMes);
}

TDateTime UltimoDiaDoMes(TDateTime AData) { return TransformarData(AData, 0, TDiasTransformarData::UltimoDiaDoMes); }

} // namespace tarvo
