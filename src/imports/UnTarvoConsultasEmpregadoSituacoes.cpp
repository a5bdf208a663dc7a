#include "imports/UnTarvoConsultasEmpregadoSituacoes.h"

#include "imports/UnOvraFormat.h"
#include "imports/UnTarvoConsultasGeral.h"

namespace tarvo {

static constexpr std::string_view SQL_EMPREGADO_DA_SITUACAO = R"(SELECT SITUACOES.IDEMPREGADO
FROM SITUACOES
WHERE SITUACOES.IDSITUACAO = %0:d)";

std::int64_t TTarvoConsultasEmpregadoSituacoes::BuscarIdEmpregadoPeloIDSituacao(std::int64_t AIdSituacao)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPREGADO_DA_SITUACAO, AIdSituacao));
}

} // namespace tarvo
