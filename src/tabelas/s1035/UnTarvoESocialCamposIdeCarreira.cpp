#include "tabelas/s1035/UnTarvoESocialCamposIdeCarreira.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeCarreira::TTarvoESocialCamposIdeCarreira(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{4F3A44C8-F59A-40D2-9926-667ED5C4B7E2}"), FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposIdeCarreira::Tabela()
{
    using Eu = TTarvoESocialCamposIdeCarreira;
    static const TPropriedades tabela{
        {"CodCarreira", &Eu::CodCarreira, TFieldRelacionado("CODIGO")},
        {"iniValid", &Eu::iniValid},
        {"fimValid", &Eu::fimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeCarreira::BuscarSQLDados()
{
    static constexpr std::string_view SQL =
        R"(SELECT COALESCE(FP_CARGOSDESCR.CODIGOESOCIAL,FP_CARGOSDESCR.CODIGO) AS CODIGO
FROM FP_CARGOSDESCR
WHERE FP_CARGOSDESCR.IDCARGOSDESCR = %0:D)";
    return Format(SQL, FIDCargosDescr);
}

} // namespace tarvo::tabelas
