#include "trabalhador/s2230/UnTarvoESocialCamposinfoRetif.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoRetif::TTarvoESocialCamposinfoRetif(std::int64_t AIDSituacao)
    : TTarvoESocialCamposGrupoBase("{67A72D5A-6912-4C58-8BF7-04742722E828}"), FIDSituacao(AIDSituacao)
{}

const TPropriedades& TTarvoESocialCamposinfoRetif::Tabela()
{
    using Eu = TTarvoESocialCamposinfoRetif;
    static const TPropriedades tabela{
        {"origRetif", &Eu::origRetif, TFieldRelacionado("INFORMACAO2")},
        {"tpProc", &Eu::tpProc, TFieldRelacionado("INFORMACAO3")},
        {"nrProc", &Eu::nrProc, TFieldRelacionado("NUMERO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoRetif::BuscarSQLDados()
{
    // The id is compared as a text here, unlike that of the details of the situation; meant.
    // The kind stands before the key: by the key alone the engine would walk the details of every worker.
    static constexpr std::string_view SQL = R"(SELECT
  FP_EMPREGADOSDET.INFORMACAO1,
  FP_EMPREGADOSDET.INFORMACAO2,
  FP_EMPREGADOSDET.INFORMACAO3,
  FP_EMPREGADOSDET.INFORMACAO4,
  ES02_SPPROC.NUMERO
FROM FP_EMPREGADOSDET
LEFT JOIN ES02_SPPROC ON (ES02_SPPROC.IDSPPROC = FP_EMPREGADOSDET.INFORMACAO4)
WHERE FP_EMPREGADOSDET.ESPECIE = 5 AND FP_EMPREGADOSDET.TP = 1 AND FP_EMPREGADOSDET.INFORMACAO1 = '%0:d'
ORDER BY FP_EMPREGADOSDET.ESPECIE, FP_EMPREGADOSDET.IDEMPREGADOSDET)";
    return Format(SQL, FIDSituacao);
}

} // namespace tarvo::trabalhador
