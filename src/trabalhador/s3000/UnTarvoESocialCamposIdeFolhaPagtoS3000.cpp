#include "trabalhador/s3000/UnTarvoESocialCamposIdeFolhaPagtoS3000.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposIdeFolhaPagtoS3000::TTarvoESocialCamposIdeFolhaPagtoS3000(std::int64_t AIdEvento)
    : TTarvoESocialCamposGrupoBase("{EF5DFA59-4ED4-4C77-9D34-F688B3CB8E7D}"), FIdEvento(AIdEvento)
{}

const TPropriedades& TTarvoESocialCamposIdeFolhaPagtoS3000::Tabela()
{
    using Eu = TTarvoESocialCamposIdeFolhaPagtoS3000;
    static const TPropriedades tabela{
        {"indApuracao", &Eu::indApuracao, TFieldRelacionado("INDAPUR")},
        {"perApur", &Eu::perApur, TFieldRelacionado("PERAPUR")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeFolhaPagtoS3000::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  IIF(SC00_ESOCIALREINFXML.TPIDTABELAEVENTO = 13,2,1) INDAPUR,
  SC00_ESOCIALREINFXML.INIVALID PERAPUR
FROM SC00_ESOCIALREINFXML
WHERE SC00_ESOCIALREINFXML.IDESOCIALREINFXML = %0:D)";
    return Format(SQL, FIdEvento);
}

} // namespace tarvo::trabalhador
