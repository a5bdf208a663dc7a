#include "pagamento/s1210/UnTarvoESocialCamposdeps.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/consultas/UnTarvoConsultasIrrf.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::pagamento {

TTarvoESocialCamposdeps::TTarvoESocialCamposdeps(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{8FF80456-706B-40A1-B3C9-C67260592722}"), FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposdeps::Tabela()
{
    static const TPropriedades tabela{{"vrDedDep", &TTarvoESocialCamposdeps::vrDedDep}};
    return tabela;
}

void TTarvoESocialCamposdeps::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CalcularValorDeducao();
}

void TTarvoESocialCamposdeps::CalcularValorDeducao()
{
    const bool LSoPrestador =
        FInfoBind.TipoTrabalhador == TTipoTrabalhador::Prestador && FInfoBind.ListaIdsEmpregado == "0";
    const auto LNumero = LSoPrestador ? BuscarNumeroDependentesPrestServico() : BuscarNumeroDependentesEmpregado();
    vrDedDep = TTarvoConsultasIrrf::BuscarValorDeDeducaoDosDependentes(LNumero, FInfoBind.DataInicio).ParaExtended();
}

// Birth dates are counted, not dependants: a dependant registered under two contracts counts once. Twins do, too, and
// that is meant.
static constexpr std::string_view SQL_DEPENDENTES_EMPREGADO = R"(SELECT COUNT(DATA_NASCIMENTO) AS TOTAL
FROM (
  SELECT DISTINCT DEPENDENTES.DATA_NASCIMENTO
  FROM DEPENDENTES
  JOIN EMPREGADOS ON ( EMPREGADOS.COD_EMPRESA=DEPENDENTES.COD_EMPRESA AND EMPREGADOS.COD_EMPREGADO=DEPENDENTES.COD_EMPREGADO)
  %0:s
    AND DEPENDENTES.DATA_NASCIMENTO <= %1:s
    AND (DEPENDENTES.DATA_FIM_IRRF >= %1:s OR DEPENDENTES.DATA_FIM_IRRF IS NULL) ))";

std::int32_t TTarvoESocialCamposdeps::BuscarNumeroDependentesEmpregado() const
{
    return TTarvoConsultasGeral::BuscarRegistros(
               Format(SQL_DEPENDENTES_EMPREGADO,
                      FormatarListaParaClausulaIN("EMPREGADOS", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " WHERE "),
                      FormatarDataDB(FInfoBind.DataInicio, true)))
        ->FieldByName("TOTAL")
        .AsInteger();
}

// Of several records of the CPF the highest number wins.
static constexpr std::string_view SQL_DEPENDENTES_PRESTADOR =
    R"(SELECT FIRST 1 COALESCE(PREST_SERVICO.DEPENDENTESIR,0) AS TOTAL
FROM PREST_SERVICO
%0:S
ORDER BY PREST_SERVICO.DEPENDENTESIR DESC)";

std::int32_t TTarvoESocialCamposdeps::BuscarNumeroDependentesPrestServico() const
{
    return TTarvoConsultasGeral::BuscarRegistros(
               Format(SQL_DEPENDENTES_PRESTADOR,
                      FormatarListaParaClausulaIN("PREST_SERVICO", "IDPRESTSERVICO", FInfoBind.ListaIdsPrestServico,
                                                  " WHERE ")))
        ->FieldByName("TOTAL")
        .AsInteger();
}

} // namespace tarvo::pagamento
