#include "sst/s2210/UnTarvoESocialCamposcatOrigem.h"

#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposcatOrigem::TTarvoESocialCamposcatOrigem(std::int64_t AIdTabCat)
    : TTarvoESocialCamposGrupoBase("{9B50C2F8-D4F1-40FA-AA40-D4E3394DBB1D}"), FIdTabCat(AIdTabCat)
{}

const TPropriedades& TTarvoESocialCamposcatOrigem::Tabela()
{
    using Eu = TTarvoESocialCamposcatOrigem;
    static const TPropriedades tabela{
        {"nrCatOrig", &Eu::nrCatOrig, TFieldRelacionado("DESCRICAO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposcatOrigem::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT SC00_ESOCIALREINFDET.DESCRICAO
FROM SC00_ESOCIALREINFXML
JOIN SC00_ESOCIALREINFDET ON (SC00_ESOCIALREINFDET.IDEVENTO = SC00_ESOCIALREINFXML.IDESOCIALREINFXML)
JOIN TABCAT ON (TABCAT.IDTABCATORIGEM = SC00_ESOCIALREINFXML.IDTABELAEVENTO)
WHERE TABCAT.IDTABCAT = %0:d
  AND SC00_ESOCIALREINFXML.TPEVENTO = 'S-2210'
  AND SC00_ESOCIALREINFDET.STATUS IN (201,202)
  AND SC00_ESOCIALREINFXML.STATUS IN (201,202)
  %1:s
ORDER BY SC00_ESOCIALREINFXML.INIVALID DESC, SC00_ESOCIALREINFXML.IDESOCIALREINFXML, SC00_ESOCIALREINFDET.IDESOCIALREINFDET)";
    return Format(SQL, FIdTabCat,
                  BuscarInstanciaOvraEsocialReinfControleAmbientes().RetornarSqlControleAmbiente("AND"));
}

} // namespace tarvo::sst
