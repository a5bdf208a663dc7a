#include "trabalhador/s2250/UnTarvoESocialCamposcancAvPrevio.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposcancAvPrevio::TTarvoESocialCamposcancAvPrevio(std::int64_t AIdAvisoPrevio)
    : TTarvoESocialCamposGrupoBase("{95482CA8-54DB-4824-A7CF-8AA4AE1276B5}"), FIdAvisoPrevio(AIdAvisoPrevio)
{}

const TPropriedades& TTarvoESocialCamposcancAvPrevio::Tabela()
{
    using Eu = TTarvoESocialCamposcancAvPrevio;
    static const TPropriedades tabela{
        {"dtCancAvPrv", &Eu::dtCancAvPrv, TFieldRelacionado("DATACANCELAMENTO")},
        {"observacao", &Eu::observacao, TFieldRelacionado("OBSERVACAOCANCEL")},
        {"mtvCancAvPrevio", &Eu::mtvCancAvPrevio, TFieldRelacionado("MOTIVOCANCELAMENTO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposcancAvPrevio::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_AVISOPREVIO.DATACANCELAMENTO,
  FP_AVISOPREVIO.OBSERVACAOCANCEL,
  FP_AVISOPREVIO.MOTIVOCANCELAMENTO
FROM FP_AVISOPREVIO
WHERE FP_AVISOPREVIO.IDAVISOPREVIO = %0:d)";
    return Format(SQL, FIdAvisoPrevio);
}

} // namespace tarvo::trabalhador
