#include "imports/consultas/UnTarvoConsultasEmpregadoSituacoes.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_EMPREGADO_DA_SITUACAO = R"(SELECT SITUACOES.IDEMPREGADO
FROM SITUACOES
WHERE SITUACOES.IDSITUACAO = %0:d)";

std::int64_t TTarvoConsultasEmpregadoSituacoes::BuscarIdEmpregadoPeloIDSituacao(std::int64_t AIdSituacao)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPREGADO_DA_SITUACAO, AIdSituacao));
}

} // namespace tarvo
