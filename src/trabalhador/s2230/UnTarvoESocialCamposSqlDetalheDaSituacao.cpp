#include "trabalhador/s2230/UnTarvoESocialCamposSqlDetalheDaSituacao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

std::string SqlDetalheDaSituacao(std::int64_t AIdSituacao, int ATp)
{
    // The kind stands before the key: by the key alone the engine would walk the details of every worker.
    static constexpr std::string_view SQL = R"(SELECT
  FP_EMPREGADOSDET.INFORMACAO2 AS CNPJ,
  FP_EMPREGADOSDET.INFORMACAO3 AS INFOONUS
FROM FP_EMPREGADOSDET
WHERE FP_EMPREGADOSDET.ESPECIE = 3 AND FP_EMPREGADOSDET.TP = %1:d
  AND (SELECT SP_CONVERTERPARA.SINTEGER FROM SP_CONVERTERPARA(FP_EMPREGADOSDET.INFORMACAO1, 'INTEGER', '0') ) = %0:d
ORDER BY FP_EMPREGADOSDET.ESPECIE, FP_EMPREGADOSDET.IDEMPREGADOSDET)";
    return Format(SQL, AIdSituacao, ATp);
}

} // namespace tarvo::trabalhador
