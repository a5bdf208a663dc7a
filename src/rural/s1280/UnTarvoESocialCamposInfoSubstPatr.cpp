#include "rural/s1280/UnTarvoESocialCamposInfoSubstPatr.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::rural {

TTarvoESocialCamposInfoSubstPatr::TTarvoESocialCamposInfoSubstPatr(std::int64_t AIdEmpresa, TDateTime ACompt)
    : TTarvoESocialCamposGrupoBase("{AFDEB5B0-872B-48B5-8205-B1121186200E}"), FIdEmpresa(AIdEmpresa), FCompt(ACompt)
{}

const TPropriedades& TTarvoESocialCamposInfoSubstPatr::Tabela()
{
    using Eu = TTarvoESocialCamposInfoSubstPatr;
    static const TPropriedades tabela{
        {"indSubstPatr", &Eu::indSubstPatr, TFieldRelacionado("VALORRECEITANB")},
        {"percRedContrib", &Eu::percRedContrib, TFieldRelacionado("EXPURGO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoSubstPatr::BuscarSQLDados()
{
    // The comma is what the binding's text-to-number step expects.
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    static constexpr std::string_view SQL = R"(SELECT
  FP_RECEITACPRB.VALORRECEITANB,
  REPLACE(IIF (FP_RECEITACPRB.VALORRECEITANB <> 0, CAST(((100 - (FP_RECEITACPRB.VALORRECEITANB * 100) / FP_RECEITACPRB.VALORRECEITATOTAL))AS NUMERIC (3,2)) , 100),'.',',') AS EXPURGO
FROM FP_RECEITACPRB
WHERE FP_RECEITACPRB.IDEMPRESA = %0:d
  AND FP_RECEITACPRB.COMPETENCIA = '%1:s'
  AND FP_RECEITACPRB.VALORRECEITANB > 0
ORDER BY FP_RECEITACPRB.IDRECEITACPRB + 0)";
    // Month and year in plain decimal: "3/2021".
    return Format(SQL, FIdEmpresa, FormatDateTime("m/yyyy", FCompt));
}

void TTarvoESocialCamposInfoSubstPatr::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    if (indSubstPatr != 1)
        percRedContrib = 0;
}

} // namespace tarvo::rural
