#include "imports/consultas/UnTarvoConsultasExamesToxicologicos.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_EMPREGADO_DO_EXAME = R"(SELECT FP_EXAMETOXICOLOGICO.IDEMPREGADO
FROM FP_EXAMETOXICOLOGICO
WHERE FP_EXAMETOXICOLOGICO.IDEXAMETOXICOLOGICO = %0:d)";

std::int64_t TTarvoConsultasExamesToxicologicos::BuscarIdEmpregadoPeloIdExameToxic(std::int64_t AIdExame)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPREGADO_DO_EXAME, AIdExame));
}

} // namespace tarvo
