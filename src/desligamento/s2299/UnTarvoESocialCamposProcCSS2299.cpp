#include "desligamento/s2299/UnTarvoESocialCamposProcCSS2299.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::desligamento {

TTarvoESocialCamposProcCSS2299::TTarvoESocialCamposProcCSS2299(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{1306B918-E56E-414F-BC68-B769B22CF9E3}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposProcCSS2299::Tabela()
{
    static const TPropriedades tabela{
        {"nrProcJud", &TTarvoESocialCamposProcCSS2299::nrProcJud, TFieldRelacionado("NUMERO")}};
    return tabela;
}

std::string TTarvoESocialCamposProcCSS2299::BuscarSQLDados()
{
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    static constexpr std::string_view SQL = R"(SELECT ES02_SPPROC.*
FROM ES02_SPPROC
WHERE ES02_SPPROC.INDMATERIA IN (1,7)
  AND ES02_SPPROC.IDFILIAL = (SELECT ALOC.IDFILIAL FROM SP_BUSCARALOCACAOEMPREGADO(
    (SELECT FIRST 1 EMPREGADOS.DATA_DEMISSAO FROM EMPREGADOS WHERE EMPREGADOS.IDEMPREGADO = %0:d), NULL, %0:d) ALOC)
  AND ES02_SPPROC.IDEMPREGADO IS NULL
ORDER BY ES02_SPPROC.IDSPPROC + 0)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::desligamento
