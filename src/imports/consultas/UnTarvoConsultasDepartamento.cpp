#include "imports/consultas/UnTarvoConsultasDepartamento.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_TIPO_DEPARTAMENTO = R"(SELECT SC00_DEPTO.TIPODEPTO
FROM SC00_DEPTO
WHERE SC00_DEPTO.IDDEPTO = %0:d)";

std::uint8_t TTarvoConsultasDepartamento::BuscarTipoDepartamento(std::int64_t AIDDepto)
{
    return static_cast<std::uint8_t>(TTarvoConsultasGeral::BuscarInteiro(Format(SQL_TIPO_DEPARTAMENTO, AIDDepto)));
}

} // namespace tarvo
