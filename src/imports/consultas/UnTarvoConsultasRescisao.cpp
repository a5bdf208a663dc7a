#include "imports/consultas/UnTarvoConsultasRescisao.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_EMPREGADO_DO_AVISO = R"(SELECT FP_AVISOPREVIO.IDEMPREGADO
FROM FP_AVISOPREVIO
WHERE FP_AVISOPREVIO.IDAVISOPREVIO = %0:d)";

std::int64_t TTarvoConsultasRescisao::BuscarIDEmpregadoPeloIDAvisoPrevio(std::int64_t AIdAviso)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPREGADO_DO_AVISO, AIdAviso));
}

} // namespace tarvo
