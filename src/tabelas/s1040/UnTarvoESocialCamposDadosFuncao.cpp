#include "tabelas/s1040/UnTarvoESocialCamposDadosFuncao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosFuncao::TTarvoESocialCamposDadosFuncao(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{C8851FD6-3524-4A64-91AC-51E0BFAEB482}"), FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposDadosFuncao::Tabela()
{
    using Eu = TTarvoESocialCamposDadosFuncao;
    static const TPropriedades tabela{
        {"dscFuncao", &Eu::dscFuncao, TFieldRelacionado("DESCRICAO")},
        {"codCBO", &Eu::codCBO, TFieldRelacionado("CBO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosFuncao::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  REPLACE(FP_CBO2002.CBO,'-','') AS CBO,
  FP_CARGOSDESCR.DESCRICAO
FROM FP_CARGOSDESCR
LEFT JOIN FP_CBO2002 ON (FP_CARGOSDESCR.IDCBO2002 = FP_CBO2002.IDCBO2002)
WHERE FP_CARGOSDESCR.IDCARGOSDESCR = %0:d)";
    return Format(SQL, FIDCargosDescr);
}

} // namespace tarvo::tabelas
