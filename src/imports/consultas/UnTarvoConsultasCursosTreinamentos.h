#pragma once

#include <cstdint>

namespace tarvo {

/// What the look-up of a course tells of its worker.
struct TDadosEmpregadoCurso {
    std::int64_t IDEmpregado = 0;
};

/// Look-ups of training courses (FP_CURSOEMPREGADO).
class TTarvoConsultasCursosTreinamentos {
public:
    /// The worker of a course; id 0 when there is none.
    static TDadosEmpregadoCurso BuscarDadosEmpregadoPeloIdCurso(std::int64_t AIdCurso);
};

} // namespace tarvo
