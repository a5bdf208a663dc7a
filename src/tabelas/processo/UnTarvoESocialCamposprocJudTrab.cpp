#include "tabelas/processo/UnTarvoESocialCamposprocJudTrab.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposprocJudTrab::TTarvoESocialCamposprocJudTrab(std::int64_t AIdSpProc, std::string_view AGuid)
    : TTarvoESocialCamposGrupoBase(AGuid), FIdSpProc(AIdSpProc)
{}

const TPropriedades& TTarvoESocialCamposprocJudTrab::Tabela()
{
    using Eu = TTarvoESocialCamposprocJudTrab;
    static const TPropriedades tabela{
        {"tpTrib", &Eu::tpTrib, TFieldRelacionado("INDMATERIA")},
        {"nrProcJud", &Eu::nrProcJud, TFieldRelacionado("NUMERO")},
        {"codSusp", &Eu::codSusp, TFieldRelacionado("IDSPPROCDET")},
        {"DetalhamentoIndMat", &Eu::DetalhamentoIndMat, TFieldRelacionado("INDMATERIATPTRIB")},
    };
    return tabela;
}

std::string TTarvoESocialCamposprocJudTrab::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  ES02_SPPROC.INDMATERIA,
  (SELECT SP_BUSCARSOMENTENUMEROS.RESULT FROM SP_BUSCARSOMENTENUMEROS(ES02_SPPROC.NUMERO)) AS NUMERO,
  (SELECT FIRST 1 ES02_SPPROCDET.IDSPPROCDET
   FROM ES02_SPPROCDET
   WHERE ES02_SPPROCDET.IDSPPROC = ES02_SPPROC.IDSPPROC
   ORDER BY ES02_SPPROCDET.DATA DESC, ES02_SPPROCDET.IDSPPROCDET) AS IDSPPROCDET,
  ES02_SPPROC.INDMATERIATPTRIB
FROM ES02_SPPROC
WHERE ES02_SPPROC.IDSPPROC = %0:d)";
    return Format(SQL, FIdSpProc);
}

} // namespace tarvo::tabelas
