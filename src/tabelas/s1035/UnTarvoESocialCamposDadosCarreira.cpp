#include "tabelas/s1035/UnTarvoESocialCamposDadosCarreira.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosCarreira::TTarvoESocialCamposDadosCarreira(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{C4684A89-88A7-40C1-8CAC-106918F3A3F2}"), FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposDadosCarreira::Tabela()
{
    using Eu = TTarvoESocialCamposDadosCarreira;
    static const TPropriedades tabela{
        {"dscCarreira", &Eu::dscCarreira, TFieldRelacionado("DESCRICAO")},
        {"leiCarr", &Eu::leiCarr, TFieldRelacionado("NUMEROLEI")},
        {"dtleiCarr", &Eu::dtleiCarr, TFieldRelacionado("DATALEI")},
        {"sitCarr", &Eu::sitCarr, TFieldRelacionado("SITUACAOLEI")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosCarreira::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CARGOSDESCR.DESCRICAO,
  FP_CARGOSPUBLICO.NUMEROLEI,
  FP_CARGOSPUBLICO.DATALEI,
  FP_CARGOSPUBLICO.SITUACAOLEI
FROM FP_CARGOSDESCR
LEFT JOIN FP_CARGOSPUBLICO ON (FP_CARGOSDESCR.IDCARGOSDESCR = FP_CARGOSPUBLICO.IDCARGOSDESCR)
WHERE FP_CARGOSDESCR.IDCARGOSDESCR = %0:d
ORDER BY FP_CARGOSPUBLICO.IDCARGOSPUBLICO + 0)";
    return Format(SQL, FIDCargosDescr);
}

} // namespace tarvo::tabelas
