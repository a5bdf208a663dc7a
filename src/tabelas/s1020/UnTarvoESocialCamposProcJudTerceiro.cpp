#include "tabelas/s1020/UnTarvoESocialCamposProcJudTerceiro.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposProcJudTerceiro::TTarvoESocialCamposProcJudTerceiro(std::int64_t AIdProcesso)
    : TTarvoESocialCamposGrupoBase("{65526F29-BF82-44FB-B607-FB5A072EE627}"), FIdProcesso(AIdProcesso)
{}

const TPropriedades& TTarvoESocialCamposProcJudTerceiro::Tabela()
{
    using Eu = TTarvoESocialCamposProcJudTerceiro;
    static const TPropriedades tabela{
        {"codTerc", &Eu::codTerc},
        {"nrProcJud", &Eu::nrProcJud, TFieldRelacionado("NUMERO")},
        {"codSusp", &Eu::codSusp, TFieldRelacionado("IDSPPROCDET")},
    };
    return tabela;
}

std::string TTarvoESocialCamposProcJudTerceiro::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  ES02_SPPROC.NUMERO,
  ES02_SPPROCDET.IDSPPROCDET
FROM ES02_SPPROC
LEFT JOIN ES02_SPPROCDET ON (ES02_SPPROC.IDSPPROC = ES02_SPPROCDET.IDSPPROC)
WHERE ES02_SPPROC.IDSPPROC = %0:d
ORDER BY ES02_SPPROCDET.DATA DESC, ES02_SPPROCDET.IDSPPROCDET)";
    return Format(SQL, FIdProcesso);
}

} // namespace tarvo::tabelas
