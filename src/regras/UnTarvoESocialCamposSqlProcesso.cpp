#include "regras/UnTarvoESocialCamposSqlProcesso.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

std::string SqlProcessoComDetalhe(std::int64_t AIdProcesso)
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
       %1:s,
       ES02_SPPROCDET.IDSPPROCDET
FROM ES02_SPPROC
LEFT JOIN ES02_SPPROCDET ON (ES02_SPPROC.IDSPPROC = ES02_SPPROCDET.IDSPPROC)
WHERE ES02_SPPROC.IDSPPROC = %0:d
ORDER BY ES02_SPPROCDET.DATA DESC, ES02_SPPROCDET.IDSPPROCDET)";
    return Format(SQL, AIdProcesso, NUMERO_DO_PROCESSO);
}

} // namespace tarvo::regras
