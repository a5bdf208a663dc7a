#include "trabalhador/contrato/UnTarvoESocialCamposSqlSalarios.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

std::string SqlSalarios(std::int64_t AIDEmpregado, TDateTime AData)
{
    // The procedure gives its rows by the salary's key and keeps the key to itself.
    static constexpr std::string_view SQL = R"((SELECT SALARIOS.*, ROW_NUMBER() OVER () AS ORDEM
  FROM SP_BUSCARSALARIOEMPREGADO(%1:s, NULL, %0:d) SALARIOS))";
    return Format(SQL, AIDEmpregado, FormatarDataDB(AData, true));
}

} // namespace tarvo::trabalhador
