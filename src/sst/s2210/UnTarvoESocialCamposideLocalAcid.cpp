#include "sst/s2210/UnTarvoESocialCamposideLocalAcid.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposideLocalAcid::TTarvoESocialCamposideLocalAcid(std::int64_t AIdTabCat)
    : TTarvoESocialCamposGrupoBase("{2D5A86DD-592C-4FDF-B9E2-7FF54E2040B9}"), FIdTabCat(AIdTabCat)
{}

const TPropriedades& TTarvoESocialCamposideLocalAcid::Tabela()
{
    using Eu = TTarvoESocialCamposideLocalAcid;
    static const TPropriedades tabela{
        {"tpInsc", &Eu::tpInsc, TFieldRelacionado("TPINSCLOCALACIDENTE")},
        {"nrInsc", &Eu::nrInsc, TFieldRelacionado("CNPJ")},
    };
    return tabela;
}

std::string TTarvoESocialCamposideLocalAcid::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT TABCAT.TPINSCLOCALACIDENTE, TABCAT.CNPJ
FROM TABCAT
WHERE TABCAT.IDTABCAT = %0:d)";
    return Format(SQL, FIdTabCat);
}

} // namespace tarvo::sst
