#include "rural/fechamento/UnTarvoESocialCamposideRespInf.h"

namespace tarvo::rural {

TTarvoESocialCamposideRespInf::TTarvoESocialCamposideRespInf()
    : TTarvoESocialCamposGrupoBase("{D41512F9-4174-471F-AFE1-54BF10A1EEDF}")
{}

const TPropriedades& TTarvoESocialCamposideRespInf::Tabela()
{
    using Eu = TTarvoESocialCamposideRespInf;
    static const TPropriedades tabela{
        {"nmResp", &Eu::nmResp, TFieldRelacionado("NOME")},
        {"cpfResp", &Eu::cpfResp, TFieldRelacionado("CPF")},
        {"telefone", &Eu::telefone, TFieldRelacionado("TELEFONE")},
        {"email", &Eu::email, TFieldRelacionado("EMAIL")},
    };
    return tabela;
}

std::string TTarvoESocialCamposideRespInf::BuscarSQLDados()
{
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    return R"(SELECT
  CA06_CFG.INFORMACAO1 NOME,
  CA06_CFG.INFORMACAO2 CPF,
  CA06_CFG.INFORMACAO4 TELEFONE,
  CA06_CFG.INFORMACAO5 EMAIL
FROM CA06_CFG
WHERE CA06_CFG.ORIGEM = 97
  AND CA06_CFG.TP = 2
ORDER BY CA06_CFG.IDCFG + 0)";
}

} // namespace tarvo::rural
