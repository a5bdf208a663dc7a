#include "tabelas/s1030/UnTarvoESocialCamposleiCargo.h"

#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposleiCargo::TTarvoESocialCamposleiCargo(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{64AC2C9C-3CA9-4815-B082-E2E9C4770A5C}"), IdCargosDescr(AIDCargosDescr),
      FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposleiCargo::Tabela()
{
    using Eu = TTarvoESocialCamposleiCargo;
    static const TPropriedades tabela{
        {"nrLei", &Eu::nrLei, TFieldRelacionado("NUMEROLEI")},
        {"dtLei", &Eu::dtLei, TFieldRelacionado("DATALEI")},
        {"sitCargo", &Eu::sitCargo, TFieldRelacionado("SITUACAOLEI")},
        {"IdCargosDescr", &Eu::IdCargosDescr},
    };
    return tabela;
}

std::string TTarvoESocialCamposleiCargo::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CARGOSPUBLICO.NUMEROLEI,
  FP_CARGOSPUBLICO.DATALEI,
  FP_CARGOSPUBLICO.SITUACAOLEI
FROM FP_CARGOSPUBLICO
WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = %0:d
ORDER BY FP_CARGOSPUBLICO.IDCARGOSPUBLICO + 0)";
    return Format(SQL, FIDCargosDescr);
}

void TTarvoESocialCamposleiCargo::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    // The number of the law goes without quotes; meant.
    static constexpr std::string_view SQL =
        "UPDATE FP_CARGOSPUBLICO SET FP_CARGOSPUBLICO.NUMEROLEI = %1:s, FP_CARGOSPUBLICO.DATALEI = %2:s, "
        "FP_CARGOSPUBLICO.SITUACAOLEI = %3:s WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = %0:d";
    if (!dtLei.empty())
        BuscarInstanciaListaSql().Lista.push_back(
            Format(SQL, FIDCargosDescr, nrLei, FormatarDataDB(StrToDateTimeDef(dtLei, {}), true), sitCargo));
}

} // namespace tarvo::tabelas
