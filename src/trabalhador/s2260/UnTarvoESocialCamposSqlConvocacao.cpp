#include "trabalhador/s2260/UnTarvoESocialCamposSqlConvocacao.h"

#include "imports/UnOvraFormat.h"
#include "imports/UnTarvoUtilsDb.h"

namespace tarvo::trabalhador {

std::string CondicaoDaConvocacao(std::int64_t AIdEmpregado, TDateTime ADataConvocacao)
{
    return Format("FP_CONTRAINTERM.IDEMPREGADO = %0:d AND FP_CONTRAINTERM.DATACONVOCACAO = %1:s", AIdEmpregado,
                  FormatarDataDB(ADataConvocacao, true));
}

} // namespace tarvo::trabalhador
