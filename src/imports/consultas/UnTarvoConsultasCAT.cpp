#include "imports/consultas/UnTarvoConsultasCAT.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_EMPREGADO_DA_CAT = R"(SELECT FIRST 1 EMPREGADOS.IDEMPREGADO
FROM TABCAT
JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = TABCAT.COD_EMPRESA AND EMPREGADOS.COD_EMPREGADO = TABCAT.COD_EMPREGADO)
WHERE TABCAT.IDTABCAT = %0:d
ORDER BY EMPREGADOS.IDEMPREGADO + 0)";

std::int64_t TTarvoConsultasCAT::BuscarIdEmpregadoPeloIdTabCat(std::int64_t AIdCat)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPREGADO_DA_CAT, AIdCat));
}

} // namespace tarvo
