#include "remuneracao/s1200/UnTarvoESocialCamposS1200.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsGeral.h"
#include "imports/valores/UnTarvoUtilsStrings.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposLotacoesS1200.h"

namespace tarvo::remuneracao {

namespace {

/// A branch of the statement of runs: how its columns are filled, and which rows it takes.
struct TRamoDeFolha {
    int Chave;
    std::string_view DataPagto;
    std::string_view SubTipo;
    std::string_view TipoCalcCompl;
    std::string_view IdAcordo;
    std::string_view IdDetConvocacao;
    std::string Origem;
    std::string Condicao;
};

// For the branches: %0 the contracts, %1 and %2 the month, %3 the employer's code.
std::string SqlDoRamo(const TRamoDeFolha& ARamo)
{
    std::string LSql =
        "SELECT DISTINCT\n  " + IntToStr(ARamo.Chave) + " AS CHAVE,\n  CALCULO.DATA_INICIO,\n  CALCULO.DATA_FIM";
    const auto Coluna = [&](std::string_view AValor, std::string_view ANome) {
        LSql.append(",\n  ").append(AValor).append(" AS ").append(ANome);
    };
    Coluna(ARamo.DataPagto, "DATA_PAGTO");
    Coluna("CALCULO.TIPO", "TIPO");
    Coluna(ARamo.SubTipo, "SUBTIPO");
    Coluna(ARamo.TipoCalcCompl, "TIPOCALCCOMPL");
    Coluna(ARamo.IdAcordo, "IDACORDO");
    Coluna(ARamo.IdDetConvocacao, "IDDETCONVOCACAO");
    LSql.append("\nFROM ").append(ARamo.Origem);
    LSql.append("\nWHERE CALCULO.IDEMPREGADO IN (%0:S)\n  AND ").append(ARamo.Condicao);
    return LSql;
}

constexpr std::string_view SEM_DATA = "CAST('01.01.1900' AS TIMESTAMP)";
// The engine makes a text of a union of TIMESTAMP and DATE, which the column may be.
constexpr std::string_view DATA_DO_PAGTO = "CAST(CALCULO.DATA_PAGTO AS TIMESTAMP)";
constexpr std::string_view DA_EMPRESA_NO_MES = R"(CALCULO.DATA_INICIO BETWEEN %1:s AND %2:s
  AND CALCULO.DATA_FIM BETWEEN %1:s AND %2:s
  AND CALCULO.COD_EMPRESA = %3:d
  AND )";

std::string SqlDasFolhas(tpIndApuracao AIndApuracao)
{
    const auto NoMes = [](std::string_view ACondicao) { return std::string(DA_EMPRESA_NO_MES).append(ACondicao); };
    // A run is told by its columns alone: their order is the whole order.
    const std::string LOrdem = "\nORDER BY 1, 2, 3, 4, 5, 6, 7, 8, 9";
    if (AIndApuracao == tpIndApuracao::Anual)
        return SqlDoRamo({2, SEM_DATA, "CALCULO.SUBTIPO", "0", "0", "0", "CALCULO",
                          NoMes("CALCULO.TIPO IN ('03')\n  AND CALCULO.SUBTIPO = 0")}) +
               LOrdem;

    const auto LComplementar = "CALCULO\n" + std::string(regras::JUNCAO_CALCULO_COMPLEMENTAR);
    const auto LPorAcordo = LComplementar + "\n" + std::string(regras::JUNCAO_ACORDO);
    const TRamoDeFolha LRamos[] = {
        // Normal payroll: all subtypes go together, one row a convocation and one for the work outside any.
        {1, SEM_DATA, "0", "0", "0", "CALCULO.IDDETCONVOCACAO", "CALCULO",
         NoMes("CALCULO.TIPO = '01'\n  AND CALCULO.SUBTIPO NOT IN (2, 4)")},
        // Advance.
        {2, SEM_DATA, "CALCULO.SUBTIPO", "0", "0", "0", "CALCULO",
         NoMes("CALCULO.TIPO IN ('02', '06')\n  AND CALCULO.SUBTIPO = 0")},
        // Profit sharing, by the day of payment.
        {3, DATA_DO_PAGTO, "CALCULO.SUBTIPO", "0", "0", "0", "CALCULO",
         "CALCULO.DATA_PAGTO BETWEEN %1:s AND %2:s\n  AND CALCULO.TIPO = '09'\n  AND CALCULO.COD_EMPRESA = %3:d"},
        // Complementary, not by agreement.
        {4, SEM_DATA, "CALCULO.SUBTIPO", "CALCCOMPL.TIPOCALCULO", "0", "0", LComplementar,
         "CALCULO.DATA_INICIO <= %2:s\n  AND CALCULO.DATA_FIM >= %1:s\n  AND CALCULO.SUBTIPO = 4\n"
         "  AND CALCCOMPL.TIPOCALCULO <> 1\n  AND CALCULO.COD_EMPRESA = %3:d"},
        // Complementary by an agreement of the month, whatever the period of the run.
        {5, DATA_DO_PAGTO, "CALCULO.SUBTIPO", "CALCCOMPL.TIPOCALCULO", "FP_INFOGFIP650660.IDINFOGFIP650660", "0",
         LPorAcordo,
         "FP_INFOGFIP650660.DATAOCORRENCIA BETWEEN %1:s AND %2:s\n  AND CALCULO.SUBTIPO = 4\n"
         "  AND CALCCOMPL.TIPOCALCULO = 1\n  AND CALCULO.COD_EMPRESA = %3:d"},
        // Complementary dismissal by agreement, paid in the month.
        {6, DATA_DO_PAGTO, "CALCULO.SUBTIPO", "0", "RESC_COMPL.IDINFOGFIP650660", "0",
         "CALCULO\nINNER JOIN " + std::string(regras::RESC_COMPL_DO_CALCULO) +
             "\nJOIN TAB_VERBAS ON (CALCULO.COD_VERBA = TAB_VERBAS.CODIGO)",
         "CALCULO.TIPO = '05'\n  AND CALCULO.SUBTIPO = 2\n  AND RESC_COMPL.IDINFOGFIP650660 IS NOT NULL\n"
         "  AND CALCULO.DATA_PAGTO BETWEEN %1:s AND %2:s"},
    };
    std::string LSql;
    for (const auto& LRamo : LRamos)
        LSql += (LSql.empty() ? "" : "\nUNION\n") + SqlDoRamo(LRamo);
    return LSql + LOrdem;
}

} // namespace

TTarvoESocialCamposS1200::TTarvoESocialCamposS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{3AB8DCE4-2A97-48DC-802C-A44BBBD1F388}"), IdeTrabalhador(AinfoBind1200),
      FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposS1200::Tabela()
{
    using Eu = TTarvoESocialCamposS1200;
    static const TPropriedades tabela{
        {"IdeTrabalhador", &Eu::IdeTrabalhador},
        {"dmDev", &Eu::dmDev},
    };
    return tabela;
}

void TTarvoESocialCamposS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FListaCamposModificados = AListaCamposModificados;
    IdeTrabalhador.CarregarDados(AListaCamposModificados);
    BuscarCategoriasEmpregado();
    for (const auto LCategoria : FCategorias) {
        BuscarListaIdTrabalhadorPorCategoria(static_cast<std::int32_t>(LCategoria));
        CarregarItensdmDev(static_cast<std::int32_t>(LCategoria));
    }
}

void TTarvoESocialCamposS1200::BuscarCategoriasEmpregado()
{
    static constexpr std::string_view SQL_EMPREGADOS = R"(SELECT DISTINCT FP_ESOCIALTABELA.CODIGO
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON ( EMPREGADOS.IDCATEGORIAESOCIAL = FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE EMPREGADOS.CPF = '%0:s'
  AND EMPREGADOS.IDEMPRESA = %1:d
ORDER BY FP_ESOCIALTABELA.CODIGO;)";
    static constexpr std::string_view SQL_PRESTADORES = R"(SELECT DISTINCT FP_ESOCIALTABELA.CODIGO
FROM PREST_SERVICO
JOIN FP_ESOCIALTABELA ON ( PREST_SERVICO.IDCATEGORIAESOCIAL=FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE PREST_SERVICO.CPF = '%0:s'
ORDER BY FP_ESOCIALTABELA.CODIGO;)";
    for (const auto& LSql :
         {Format(SQL_EMPREGADOS, FInfoBind.Cpf(), FInfoBind.IdEmpresa()),
          Format(SQL_PRESTADORES, TTarvoUtilsStrings::RemoverCaracteresEspeciais(FInfoBind.Cpf()))}) {
        const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(LSql);
        for (; !LCds->Eof(); LCds->Next())
            AdicionarSemRepetir(FCategorias, StrToInt64(LCds->FieldByName("CODIGO").AsString().substr(0, 3)));
    }
}

// Contracts match the code by its beginning and belong to the employer; providers match it whole and belong to nobody.
// The difference is meant.
void TTarvoESocialCamposS1200::BuscarListaIdTrabalhadorPorCategoria(std::int32_t ACategoria)
{
    static constexpr std::string_view SQL_EMPREGADOS = R"(SELECT DISTINCT EMPREGADOS.IDEMPREGADO
FROM EMPREGADOS
JOIN FP_ESOCIALTABELA ON ( EMPREGADOS.IDCATEGORIAESOCIAL=FP_ESOCIALTABELA.IDESOCIALTABELA
                       AND FP_ESOCIALTABELA.TABELA = 1)
WHERE EMPREGADOS.CPF = '%0:s'
  AND FP_ESOCIALTABELA.CODIGO STARTING WITH '%1:D'
  AND EMPREGADOS.IDEMPRESA = %2:d
ORDER BY EMPREGADOS.IDEMPREGADO)";
    static constexpr std::string_view SQL_PRESTADORES = R"(SELECT DISTINCT PREST_SERVICO.IDPRESTSERVICO
FROM PREST_SERVICO
JOIN FP_ESOCIALTABELA ON ( PREST_SERVICO.IDCATEGORIAESOCIAL=FP_ESOCIALTABELA.IDESOCIALTABELA
                       AND FP_ESOCIALTABELA.TABELA = 1)
WHERE PREST_SERVICO.CPF = '%0:s'
  AND FP_ESOCIALTABELA.CODIGO = '%1:D'
ORDER BY PREST_SERVICO.IDPRESTSERVICO)";
    FInfoBind.SetListaIdsEmpregado(TTarvoConsultasGeral::BuscarListaDeIds(
        Format(SQL_EMPREGADOS, FInfoBind.Cpf(), ACategoria, FInfoBind.IdEmpresa())));
    FInfoBind.SetListaIdsPrestServico(TTarvoConsultasGeral::BuscarListaDeIds(
        Format(SQL_PRESTADORES, TTarvoUtilsStrings::RemoverCaracteresEspeciais(FInfoBind.Cpf()), ACategoria)));
}

void TTarvoESocialCamposS1200::CarregarItensdmDev(std::int32_t ACategoria)
{
    const auto LDataInicio = FInfoBind.DataInicio();
    const auto LDataFim = FInfoBind.DataFim();
    CarregarFolhas(ACategoria);
    FInfoBind.SetDataInicio(LDataInicio);
    FInfoBind.SetDataFim(LDataFim);
    CarregarRecibos(ACategoria);
}

void TTarvoESocialCamposS1200::CarregarFolhas(std::int32_t ACategoria)
{
    const auto LDataInicio = FInfoBind.DataInicio();
    const auto LDataFim = FInfoBind.DataFim();
    const auto LCodEmpresa =
        StrToInt64(TTarvoConsultasEmpresa::BuscarCampoPeloIdEmpresa("EMPRESA", FInfoBind.IdEmpresa()));
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SqlDasFolhas(FInfoBind.IndApuracao()),
               TTarvoUtilsGeral::ConverterTListParaMultisselecao(FInfoBind.ListaIdsEmpregado()),
               FormatarDataDB(LDataInicio, true), FormatarDataDB(LDataFim, true), LCodEmpresa));
    for (; !LCds->Eof(); LCds->Next()) {
        FInfoBind.SetTipoEmpregado(TTipoTrabalhador::Empregado);
        FInfoBind.SetDataInicio(LCds->FieldByName("DATA_INICIO").AsDateTime());
        FInfoBind.SetDataFim(LCds->FieldByName("DATA_FIM").AsDateTime());
        FInfoBind.SetDataPagto(LCds->FieldByName("DATA_PAGTO").AsDateTime());
        FInfoBind.SetTipoFolha(LCds->FieldByName("TIPO").AsInteger());
        FInfoBind.SetSubTipoFolha(LCds->FieldByName("SUBTIPO").AsInteger());
        FInfoBind.SetTipoFolhaCompl(LCds->FieldByName("TIPOCALCCOMPL").AsInteger());
        FInfoBind.Chave = LCds->FieldByName("CHAVE").AsInteger();
        FInfoBind.IdAcordo = LCds->FieldByName("IDACORDO").AsLargeInt();
        FInfoBind.IdDetConvocacao = LCds->FieldByName("IDDETCONVOCACAO").AsLargeInt();

        auto LDmDev = std::make_unique<TTarvoESocialCamposDmDevS1200>(FInfoBind, ACategoria);
        LDmDev->DataInicioOriginal = LDataInicio;
        LDmDev->DataFimOriginal = LDataFim;
        GuardarSePossuiInformacao(std::move(LDmDev));
    }
}

// Chave, IdAcordo and IdDetConvocacao keep what the last run left, and the demonstrative has no month: a receipt that
// follows a run by agreement goes into an earlier period as that run did. That is meant.
void TTarvoESocialCamposS1200::CarregarRecibos(std::int32_t ACategoria)
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT RPA.NRRPA, RPA.DATAPAGTO
FROM RPA
JOIN SC00_FILIAL ON (RPA.IDFILIAL = SC00_FILIAL.IDFILIAL)
LEFT JOIN SC00_DEPTO ON (RPA.IDDEPARTAMENTO = SC00_DEPTO.IDDEPTO AND RPA.IDFILIAL = SC00_FILIAL.IDFILIAL)
WHERE RPA.IDPRESTSERVICO IN (%0:S)
  AND RPA.DATAPAGTO BETWEEN %1:S AND %2:S
  AND SC00_FILIAL.IDEMPRESA = %3:d
ORDER BY RPA.NRRPA, RPA.DATAPAGTO)";
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL, TTarvoUtilsGeral::ConverterTListParaMultisselecao(FInfoBind.ListaIdsPrestServico()),
               FormatarDataDB(FInfoBind.DataInicio(), true), FormatarDataDB(FInfoBind.DataFim(), true),
               FInfoBind.IdEmpresa()));
    for (; !LCds->Eof(); LCds->Next()) {
        FInfoBind.SetTipoFolha(97);
        FInfoBind.SetSubTipoFolha(0);
        FInfoBind.SetTipoFolhaCompl(0);
        FInfoBind.SetTipoEmpregado(TTipoTrabalhador::Prestador);
        FInfoBind.SetDataPagto(LCds->FieldByName("DATAPAGTO").AsDateTime());
        FInfoBind.NrReciboRpa = LCds->FieldByName("NRRPA").AsLargeInt();
        GuardarSePossuiInformacao(std::make_unique<TTarvoESocialCamposDmDevS1200>(FInfoBind, ACategoria));
    }
}

void TTarvoESocialCamposS1200::GuardarSePossuiInformacao(std::unique_ptr<TTarvoESocialCamposDmDevS1200> ADmDev)
{
    ADmDev->CarregarDados(FListaCamposModificados);
    if (!ADmDev->infoPerApur.ideEstabLot.empty() || ADmDev->infoPerAnt.possuiInformacao)
        dmDev.push_back(std::move(ADmDev));
}

} // namespace tarvo::remuneracao
