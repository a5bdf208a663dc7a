#include "tabelas/s1040/UnTarvoESocialCampoIdeFuncao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeFuncao::TTarvoESocialCamposIdeFuncao(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{04E36CBB-4929-40E7-A9FF-6BF9639E705F}"), FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposIdeFuncao::Tabela()
{
    using Eu = TTarvoESocialCamposIdeFuncao;
    static const TPropriedades tabela{
        {"CodFuncao", &Eu::CodFuncao, TFieldRelacionado("CODIGOESOCIAL")},
        {"iniValid", &Eu::iniValid},
        {"fimValid", &Eu::fimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeFuncao::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FP_CARGOSDESCR.CODIGOESOCIAL
FROM FP_CARGOSDESCR
WHERE FP_CARGOSDESCR.IDCARGOSDESCR = %0:D)";
    return Format(SQL, FIDCargosDescr);
}

} // namespace tarvo::tabelas
