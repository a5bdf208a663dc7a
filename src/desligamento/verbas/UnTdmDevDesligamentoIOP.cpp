#include "desligamento/verbas/UnTdmDevDesligamentoIOP.h"

#include "imports/valores/UnTarvoUtilsDatas.h"

namespace tarvo::desligamento {

TDateTime TdmDevDesligamentoIOP::GetPrimeiroDiaMesRescisao() const
{
    return TransformarData(DataDemissao, 0, TDiasTransformarData::PrimeiroDiaDoMes);
}

TDateTime TdmDevDesligamentoIOP::GetUltimoDiaMesRescisao() const
{
    return TransformarData(DataDemissao, 0, TDiasTransformarData::UltimoDiaDoMes);
}

} // namespace tarvo::desligamento
