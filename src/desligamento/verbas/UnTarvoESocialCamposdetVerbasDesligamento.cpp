#include "desligamento/verbas/UnTarvoESocialCamposdetVerbasDesligamento.h"

#include "imports/consultas/UnTarvoConsultasVerbas.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"
#include "regras/UnTarvoESocialCamposCodRubr.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"
#include "regras/UnTarvoESocialCamposSqlTabelaDeRubricas.h"

namespace tarvo::desligamento {

TTarvoESocialCamposdetVerbasDesligamento::TTarvoESocialCamposdetVerbasDesligamento(std::string_view AGuid,
                                                                                   const TDadosCalculo& ADadosCalculo,
                                                                                   std::int64_t AIdEmpresa,
                                                                                   TDate ADataDemissao)
    : TTarvoESocialCamposGrupoBase(AGuid), FDadosCalculo(ADadosCalculo), FIdEmpresa(AIdEmpresa),
      FDataDemissao(ADataDemissao)
{}

const TPropriedades& TTarvoESocialCamposdetVerbasDesligamento::Tabela()
{
    using Eu = TTarvoESocialCamposdetVerbasDesligamento;
    static const TPropriedades tabela{
        {"codRubr", &Eu::codRubr, TFieldRelacionado("CODIGO")},
        {"ideTabRubr", &Eu::ideTabRubr, TFieldRelacionado("IDETABRUBR")},
        {"qtdRubr", &Eu::qtdRubr},
        {"fatorRubr", &Eu::fatorRubr, TFieldRelacionado("FATOR_VERBA")},
        {"vrUnit", &Eu::vrUnit},
        {"vrRubr", &Eu::vrRubr},
        {"CodNaturezaRubricaRelac", &Eu::CodNaturezaRubricaRelac, TFieldRelacionado("COD_NAT_RUBRICA_RELAC")},
    };
    return tabela;
}

std::string TTarvoESocialCamposdetVerbasDesligamento::BuscarSQLDados()
{
    // Neither the table nor the nature is tested for its validity, which only orders them; that is meant.
    static constexpr std::string_view SQL = R"(WITH
SQL_DADOSVERBA AS (
  SELECT FIRST 1
    TAB_VERBAS.CODIGO,
    IIF((TAB_VERBAS.HORAS = 'Sim') OR (TAB_VERBAS.FORMULA LIKE ('4T%%')), 'SIM', 'NAO') AS QTDRUBR,
    IIF(TAB_VERBAS.FORMULA LIKE ('9%%'), 'SIM', 'NAO') AS FATOR_CALCULO,
    IIF((TAB_VERBAS.FORMULA IN ('1Z', '3G', '3C') OR TAB_VERBAS.FORMULA LIKE '1C%%'), TAB_VERBAS.VLR_CALC, 0) AS FATOR_VERBA
  FROM TAB_VERBAS
  WHERE TAB_VERBAS.IDVERBA = %0:d),
SQL_IDETAB_RUBR AS (
%1:s),
SQL_COD_NAT_RUBRICA_RELAC AS (
  SELECT FIRST 1 FP_ESOCIALTABELA.CODIGO
  FROM FP_RUBRICARELAC
  JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_RUBRICARELAC.IDESOCIALTABELA)
  WHERE FP_RUBRICARELAC.IDVERBA = %0:d
  ORDER BY %2:s, FP_RUBRICARELAC.IDRUBRICARELAC)
SELECT
  SQL_DADOSVERBA.QTDRUBR,
  SQL_DADOSVERBA.FATOR_CALCULO,
  COALESCE(SQL_DADOSVERBA.FATOR_VERBA,0) FATOR_VERBA,
  COALESCE(SQL_IDETAB_RUBR.IDETABRUBR, 0) IDETABRUBR,
  SQL_DADOSVERBA.CODIGO,
  COALESCE(SQL_COD_NAT_RUBRICA_RELAC.CODIGO, 0) AS COD_NAT_RUBRICA_RELAC
FROM SQL_DADOSVERBA
FULL JOIN SQL_IDETAB_RUBR ON (1=1)
FULL JOIN SQL_COD_NAT_RUBRICA_RELAC ON (1=1))";
    return Format(SQL, FDadosCalculo.IDVerba,
                  regras::SqlTabelaDeRubricasDoEmpregado(FDadosCalculo.IDEmpregado, FDataDemissao),
                  regras::OrdemDaValidade({"FP_RUBRICARELAC", "IDVERBA"}, FDataDemissao));
}

void TTarvoESocialCamposdetVerbasDesligamento::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    AtribuirCodRubr();
    const auto Marcado = [&](std::string_view AColuna) { return CdsDados().FieldByName(AColuna).AsString() == "SIM"; };
    if (Marcado("QTDRUBR"))
        qtdRubr = FDadosCalculo.Referencia;
    if (Marcado("FATOR_CALCULO"))
        fatorRubr += FDadosCalculo.Referencia;
    vrRubr = FDadosCalculo.Valor;
}

void TTarvoESocialCamposdetVerbasDesligamento::AtribuirCodRubr()
{
    const auto LIncid = regras::TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(
        FDadosCalculo.IDVerba, TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(
                                   FDadosCalculo.IDVerba, FIdEmpresa, FDataDemissao));
    if (LIncid.FCodVerba == 0)
        codRubr.clear();
    else
        codRubr = regras::ComporCodRubr(StrToInt64Def(codRubr, 0), regras::PrimeirosCodigos(LIncid));
}

} // namespace tarvo::desligamento
