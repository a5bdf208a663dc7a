#include "tabelas/s1030/UnTarvoESocialCamposIdeCargo.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeCargo::TTarvoESocialCamposIdeCargo(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{BA7A68F2-8515-44DA-916B-99CCF3266294}"), FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposIdeCargo::Tabela()
{
    using Eu = TTarvoESocialCamposIdeCargo;
    static const TPropriedades tabela{
        {"CodCargo", &Eu::CodCargo, TFieldRelacionado("CODIGOESOCIAL")},
        {"iniValid", &Eu::iniValid},
        {"fimValid", &Eu::fimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeCargo::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FP_CARGOSDESCR.CODIGOESOCIAL
FROM FP_CARGOSDESCR
WHERE FP_CARGOSDESCR.IDCARGOSDESCR = %0:D)";
    return Format(SQL, FIDCargosDescr);
}

} // namespace tarvo::tabelas
