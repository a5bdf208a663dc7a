#include "trabalhador/s2250/UnTarvoESocialCamposdetAvPrevio.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposdetAvPrevio::TTarvoESocialCamposdetAvPrevio(std::int64_t AIdAvisoPrevio)
    : TTarvoESocialCamposGrupoBase("{FF49A5FF-F3FB-4C14-BD0D-47DDE7E89216}"), FIdAvisoPrevio(AIdAvisoPrevio)
{}

const TPropriedades& TTarvoESocialCamposdetAvPrevio::Tabela()
{
    using Eu = TTarvoESocialCamposdetAvPrevio;
    static const TPropriedades tabela{
        {"dtAvPrv", &Eu::dtAvPrv, TFieldRelacionado("DATAAVISO")},
        {"dtPrevDeslig", &Eu::dtPrevDeslig, TFieldRelacionado("DATAPROJECAOAFAST")},
        {"tpAvPrevio", &Eu::tpAvPrevio, TFieldRelacionado("TIPOAVISO")},
        {"observacao", &Eu::observacao, TFieldRelacionado("OBSERVACAOAVISO")},
        {"Acordo", &Eu::Acordo, TFieldRelacionado("ACORDO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposdetAvPrevio::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_AVISOPREVIO.DATAAVISO,
  FP_AVISOPREVIO.DATAPROJECAOAFAST,
  FP_AVISOPREVIO.CODIGOESOCIAL AS TIPOAVISO,
  FP_AVISOPREVIO.OBSERVACAOAVISO,
  FP_AVISOPREVIO.ACORDO
FROM FP_AVISOPREVIO
WHERE FP_AVISOPREVIO.IDAVISOPREVIO = %0:d)";
    return Format(SQL, FIdAvisoPrevio);
}

} // namespace tarvo::trabalhador
