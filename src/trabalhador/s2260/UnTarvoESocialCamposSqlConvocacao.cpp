#include "trabalhador/s2260/UnTarvoESocialCamposSqlConvocacao.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

std::string CondicaoEOrdemDaConvocacao(std::int64_t AIdEmpregado, TDateTime ADataConvocacao)
{
    static constexpr std::string_view SQL =
        R"(FP_CONTRAINTERM.IDEMPREGADO = %0:d AND FP_CONTRAINTERM.DATACONVOCACAO = %1:s
ORDER BY FP_CONTRAINTERM.IDEMPREGADO, FP_CONTRAINTERM.IDCONTRAINTERM)";
    return Format(SQL, AIdEmpregado, FormatarDataDB(ADataConvocacao, true));
}

} // namespace tarvo::trabalhador
