#include "trabalhador/semvinculo/UnTarvoESocialCamposSqlEstagio.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

std::string SqlIdDoEstagio(std::string_view AColuna, std::int64_t AIDEmpregado)
{
    // No blank after the number; the engine takes it so, and it is meant.
    static constexpr std::string_view SQL = R"((SELECT FIRST 1FP_EMPREGADOSDET.%0:s
  FROM FP_EMPREGADOSDET
  WHERE FP_EMPREGADOSDET.ESPECIE = 1 AND FP_EMPREGADOSDET.TP = 4 AND FP_EMPREGADOSDET.IDEMPREGADO = %1:d
  ORDER BY FP_EMPREGADOSDET.IDEMPREGADO, FP_EMPREGADOSDET.IDEMPREGADOSDET))";
    return Format(SQL, AColuna, AIDEmpregado);
}

} // namespace tarvo::trabalhador
