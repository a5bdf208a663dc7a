#include "pagamento/s1210/UnTarvoESocialCamposdetPgtoFer.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"

namespace tarvo::pagamento {

TTarvoESocialCamposdetPgtoFer::TTarvoESocialCamposdetPgtoFer(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{02BF63D3-B164-47BB-967E-2E53BF5B2634}"), FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposdetPgtoFer::Tabela()
{
    using Eu = TTarvoESocialCamposdetPgtoFer;
    static const TPropriedades tabela{
        {"codCateg", &Eu::codCateg, TFieldRelacionado("CODIGO")},
        {"matricula", &Eu::matricula},
        {"dtIniGoz", &Eu::dtIniGoz},
        {"qtDias", &Eu::qtDias},
        {"vrLiq", &Eu::vrLiq},
        {"detRubrFer", &Eu::detRubrFer},
    };
    return tabela;
}

std::string TTarvoESocialCamposdetPgtoFer::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1 FP_ESOCIALTABELA.CODIGO
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON ( FP_ESOCIALTABELA.IDESOCIALTABELA=EMPREGADOS.IDCATEGORIAESOCIAL AND FP_ESOCIALTABELA.TABELA = 1)
%0:s
%1:s)";
    return Format(SQL, FormatarListaParaClausulaIN("EMPREGADOS", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " WHERE "),
                  OrdemDaChave("EMPREGADOS.IDEMPREGADO"));
}

void TTarvoESocialCamposdetPgtoFer::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    vrLiq = BuscarValorLiquido();
    matricula = BuscarMatricula();
    BuscarListaDetRubrFer(AListaCamposModificados);
}

long double TTarvoESocialCamposdetPgtoFer::BuscarValorLiquido() const
{
    static constexpr std::string_view SQL = R"(SELECT CALCULO.VALOR
FROM CALCULO
JOIN TAB_VERBAS ON (TAB_VERBAS.CODIGO=CALCULO.COD_VERBA)
WHERE TAB_VERBAS.FORMULA LIKE '7L'
  AND CALCULO.TIPO = '04'
  %0:s
  AND CALCULO.DATA_PAGTO = %1:s
  AND CALCULO.DATA_INICIO = %2:s)";
    return BuscarSomaDoSql(
        Format(SQL, FormatarListaParaClausulaIN("CALCULO", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " AND "),
               FormatarDataDB(FInfoBind.DataPagto, true), FormatarDataDB(FInfoBind.DataInicio, true)),
        "CALCULO.IDCALCULO");
}

std::string TTarvoESocialCamposdetPgtoFer::BuscarMatricula() const
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.CODIGOESOCIAL
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:D)";
    return TTarvoConsultasGeral::BuscarTexto(Format(SQL, FInfoBind.IdEmpregado));
}

void TTarvoESocialCamposdetPgtoFer::BuscarListaDetRubrFer(const TListaCamposModificados* AListaCamposModificados)
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT TAB_VERBAS.IDVERBA, TAB_VERBAS.FORMULA
FROM CALCULO
JOIN TAB_VERBAS ON (CALCULO.COD_VERBA = TAB_VERBAS.CODIGO)
JOIN FP_ESOCIALINCIDIRRF ON (TAB_VERBAS.IDVERBA = FP_ESOCIALINCIDIRRF.IDVERBA)
JOIN FP_ESOCIALTABELA ON (FP_ESOCIALINCIDIRRF.IDESOCIALTABELA = FP_ESOCIALTABELA.IDESOCIALTABELA)
%0:S
  AND CALCULO.DATA_PAGTO = %1:s
  AND CALCULO.TIPO = '04'
  AND CALCULO.DATA_INICIO = %2:s
  AND CALCULO.VALOR > 0
  AND FP_ESOCIALTABELA.CODIGO IN ('00', '01', '09', '13', '33', '43', '46', '53', '63', '75', '93')
  AND TAB_VERBAS.FORMULA <> '7L'
ORDER BY TAB_VERBAS.IDVERBA)";
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(
        Format(SQL, FormatarListaParaClausulaIN("CALCULO", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " WHERE "),
               FormatarDataDB(FInfoBind.DataPagto, true), FormatarDataDB(FInfoBind.DataInicio, true)));
    for (; !LCds->Eof(); LCds->Next()) {
        auto LVerba = std::make_unique<TTarvoESocialCamposdetRubrFer>(FInfoBind);
        LVerba->IdVerba = LCds->FieldByName("IDVERBA").AsLargeInt();
        LVerba->CaracteristicaVerba = LCds->FieldByName("FORMULA").AsString();
        LVerba->CarregarDados(AListaCamposModificados);
        if (!LVerba->codRubr.empty())
            detRubrFer.push_back(std::move(LVerba));
    }
}

} // namespace tarvo::pagamento
