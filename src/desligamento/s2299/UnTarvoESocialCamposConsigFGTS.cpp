#include "desligamento/s2299/UnTarvoESocialCamposConsigFGTS.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::desligamento {

TTarvoESocialCamposConsigFGTS::TTarvoESocialCamposConsigFGTS(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{39240FDC-2704-4AB4-BC12-15EB2AE54959}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposConsigFGTS::Tabela()
{
    using Eu = TTarvoESocialCamposConsigFGTS;
    static const TPropriedades tabela{
        {"insConsig", &Eu::insConsig, TFieldRelacionado("insConsig")},
        {"nrContr", &Eu::nrContr, TFieldRelacionado("nrContr")},
    };
    return tabela;
}

std::string TTarvoESocialCamposConsigFGTS::BuscarSQLDados()
{
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    static constexpr std::string_view SQL = R"(SELECT
  FP_EMPREGADOSDET.INFORMACAO5 AS INSCONSIG,
  FP_EMPREGADOSDET.INFORMACAO6 AS NRCONTR
FROM FP_EMPREGADOSDET
WHERE FP_EMPREGADOSDET.ESPECIE = 4
  AND FP_EMPREGADOSDET.TP = 1
  AND FP_EMPREGADOSDET.IDEMPREGADO = %d
ORDER BY FP_EMPREGADOSDET.IDEMPREGADOSDET + 0)";
    return Format(SQL, FIdEmpregado);
}

} // namespace tarvo::desligamento
