#include "imports/consultas/UnTarvoConsultasCursosTreinamentos.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_EMPREGADO_DO_CURSO = R"(SELECT FP_CURSOEMPREGADO.IDEMPREGADO
FROM FP_CURSOEMPREGADO
WHERE FP_CURSOEMPREGADO.IDCURSOEMPREGADO = %0:d)";

TDadosEmpregadoCurso TTarvoConsultasCursosTreinamentos::BuscarDadosEmpregadoPeloIdCurso(std::int64_t AIdCurso)
{
    return {TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPREGADO_DO_CURSO, AIdCurso))};
}

} // namespace tarvo
