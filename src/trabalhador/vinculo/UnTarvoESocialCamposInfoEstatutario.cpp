#include "trabalhador/vinculo/UnTarvoESocialCamposInfoEstatutario.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoEstatutario::TTarvoESocialCamposInfoEstatutario(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{193EA3E0-DD15-4C7B-A608-3415CE88CE6B}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoEstatutario::Tabela()
{
    using Eu = TTarvoESocialCamposInfoEstatutario;
    static const TPropriedades tabela{
        {"IndProvimento", &Eu::IndProvimento, TFieldRelacionado("INDPROVIM")},
        {"TipoProvimento", &Eu::TipoProvimento, TFieldRelacionado("TPPROV")},
        {"DataNomeacao", &Eu::DataNomeacao, TFieldRelacionado("DTNOMEACAO")},
        {"DataPosse", &Eu::DataPosse, TFieldRelacionado("DTPOSSE")},
        {"DataExercicio", &Eu::DataExercicio, TFieldRelacionado("DTEXERCICIO")},
        {"tpPlanRP", &Eu::tpPlanRP, TFieldRelacionado("TPPLANRP")},
        {"nrProcJud", &Eu::nrProcJud, TFieldRelacionado("NRPROCJUD")},
        {"IdEmpregado", &Eu::IdEmpregado},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoEstatutario::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  SC00_EMPREGADOCFG.INFORMACAO1 AS INDPROVIM,
  SC00_EMPREGADOCFG.INFORMACAO2 AS NRPROCJUD,
  SC00_EMPREGADOCFG.INFORMACAO3 AS TPPROV,
  SC00_EMPREGADOCFG.INFORMACAO4 AS DTNOMEACAO,
  SC00_EMPREGADOCFG.INFORMACAO5 AS DTPOSSE,
  SC00_EMPREGADOCFG.INFORMACAO6 AS DTEXERCICIO,
  SC00_EMPREGADOCFG.INFORMACAO7 AS TPPLANRP
FROM SC00_EMPREGADOCFG
WHERE %0:s
  AND %1:s
ORDER BY SC00_EMPREGADOCFG.DATAINICIO DESC, SC00_EMPREGADOCFG.IDEMPREGADOCFG)";
    return Format(SQL, regras::CondicaoDaChave(regras::SC00_EMPREGADOCFG, FIDEmpregado, {90, 38, 10}),
                  regras::CondicaoDaValidade(regras::SC00_EMPREGADOCFG, FDataGeracao));
}

} // namespace tarvo::trabalhador
