#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasCAT.h"
#include "imports/consultas/UnTarvoConsultasCursosTreinamentos.h"
#include "imports/consultas/UnTarvoConsultasDepartamento.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasEmpregadoSituacoes.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "imports/consultas/UnTarvoConsultasExamesToxicologicos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/consultas/UnTarvoConsultasRescisao.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"

namespace tarvo::testes {
namespace {

class ServicosConsultas : public TTesteComBanco {
protected:
    static void InserirCfg(const char* ATabela, const char* ADono, int AId, int AEspecie, int ATp, TDateTime AInicio,
                           TValorSql AFim, TValorSql AInformacao1, TValorSql AInformacao2 = nullptr)
    {
        Inserir(ATabela, {{ADono, AId},
                          {"ORIGEM", 90},
                          {"ESPECIE", AEspecie},
                          {"TP", ATp},
                          {"DATAINICIO", AInicio},
                          {"DATAFIM", AFim},
                          {"INFORMACAO1", AInformacao1},
                          {"INFORMACAO2", AInformacao2}});
    }
    static void InserirEmpregado(int AId, int AEmpresa, const char* ACpf, TValorSql AAdmissao, TValorSql ADemissao,
                                 int ACategoria = 0)
    {
        Inserir("EMPREGADOS", {{"IDEMPREGADO", AId},
                               {"IDEMPRESA", AEmpresa},
                               {"COD_EMPRESA", AEmpresa * 10},
                               {"COD_EMPREGADO", AId},
                               {"CPF", ACpf},
                               {"DATA_ADMISSAO", AAdmissao},
                               {"DATA_DEMISSAO", ADemissao},
                               {"IDCATEGORIAESOCIAL", ACategoria}});
    }
    static void InserirTransferencia(int AEmpregado, int ACodEmpresa, TDateTime AData,
                                     const char* AMotivo = "TRANSFERENCIA DEFINITIVA")
    {
        Inserir("MOV_TRANSF", {{"IDEMPREGADO", AEmpregado},
                               {"COD_EMPRESA", ACodEmpresa},
                               {"DATAINICIOMOV", AData},
                               {"MOTIVOINICIAL", AMotivo}});
    }
    static void InserirCategoria(int AId, const char* ACodigo)
    {
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", AId}, {"TABELA", 1}, {"CODIGO", ACodigo}});
    }
    static void InserirProcesso(int AId, int AVerba, TValorSql AFilial, TDateTime AAbertura, int ATributos)
    {
        Inserir(
            "ES02_SPPROC",
            {{"IDSPPROC", AId}, {"IDFILIAL", AFilial}, {"DATAABERTURA", AAbertura}, {"INDMATERIATPTRIB", ATributos}});
        Inserir("FP_VERBAPROCESSO", {{"IDVERBA", AVerba}, {"IDSPPROC", AId}});
    }
    static void InserirEvento(int AId, const char* ATpEvento, int AStatus, int ATabelaEvento, TDateTime AData,
                              int AAmbiente, const char* ARecibo, int AStatusDet, int AEmpresa = 1)
    {
        Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", AId},
                                         {"IDEMPRESA", AEmpresa},
                                         {"TPEVENTO", ATpEvento},
                                         {"TPAMB", AAmbiente},
                                         {"INIVALID", D(2021, 3, 1)},
                                         {"DATA", AData},
                                         {"STATUS", AStatus},
                                         {"IDTABELAEVENTO", ATabelaEvento}});
        Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", AId}, {"DESCRICAO", ARecibo}, {"STATUS", AStatusDet}});
    }
};

TEST_F(ServicosConsultas, RegistrosValoresEhListas)
{
    Inserir("TAB_VERBAS", {{"IDVERBA", 1}, {"CODIGO", 125}, {"FORMULA", "98A"}});
    Inserir("TAB_VERBAS", {{"IDVERBA", 2}, {"CODIGO", 126}, {"FORMULA", nullptr}});
    Inserir("TAB_VERBAS", {{"IDVERBA", 3}, {"CODIGO", 127}, {"FORMULA", "8J"}});

    EXPECT_EQ(TTarvoConsultasGeral::BuscarValor("TAB_VERBAS", "CODIGO", " WHERE TAB_VERBAS.IDVERBA = 1 "), "125");
    EXPECT_EQ(TTarvoConsultasGeral::BuscarValor("TAB_VERBAS", "CODIGO", " WHERE TAB_VERBAS.IDVERBA = 9 "), "");
    EXPECT_EQ(TTarvoConsultasGeral::BuscarValor("TAB_VERBAS", "FORMULA", " WHERE TAB_VERBAS.IDVERBA = 2 "), "");
    EXPECT_TRUE(TTarvoConsultasGeral::EncontrouRegistros("SELECT 1 FROM TAB_VERBAS WHERE IDVERBA = 3"));
    EXPECT_FALSE(TTarvoConsultasGeral::EncontrouRegistros("SELECT 1 FROM TAB_VERBAS WHERE IDVERBA = 4"));
    EXPECT_THROW(TTarvoConsultasGeral::BuscarRegistros("SELECT NADA FROM TAB_VERBAS"), EDatabaseError);

    TDataset LCds;
    TTarvoConsultasGeral::BuscarRegistrosBD(LCds, "SELECT IDVERBA, FORMULA FROM TAB_VERBAS ORDER BY IDVERBA");
    const auto* LPrimeiro = LCds.get();
    LCds->Next();
    EXPECT_EQ(CriarListaDoClientDataset(*LCds, "idverba"), "1,2,3"); // from the first row, wherever it stood
    EXPECT_EQ(CriarListaDoClientDataset(*LCds, "FORMULA"), "98A,8J");
    EXPECT_EQ(LCds->FieldByName("IDVERBA").AsInteger(), 1);
    EXPECT_THROW(CriarListaDoClientDataset(*LCds, "OUTRA"), EDatabaseError);
    // A failure leaves the caller's dataset as it was.
    EXPECT_THROW(TTarvoConsultasGeral::BuscarRegistrosBD(LCds, "SELECT"), EDatabaseError);
    EXPECT_EQ(LCds->RecordCount(), 3U);
    TTarvoConsultasGeral::BuscarRegistrosBD(LCds, "SELECT IDVERBA FROM TAB_VERBAS WHERE IDVERBA > 3");
    EXPECT_EQ(LCds.get(), LPrimeiro);
    EXPECT_EQ(CriarListaDoClientDataset(*LCds, "IDVERBA"), "");
}

TEST_F(ServicosConsultas, ListaLongaRodaNoBanco)
{
    Inserir("TAB_VERBAS", {{"IDVERBA", 2400}});
    std::string LIds = "1";
    for (int i = 2; i <= 2500; ++i)
        LIds += "," + std::to_string(i);
    const auto LSql =
        "SELECT IDVERBA FROM TAB_VERBAS" + FormatarListaParaClausulaIN("TAB_VERBAS", "IDVERBA", LIds, "WHERE");
    EXPECT_EQ(Consultar(LSql), "2400");
}

TEST_F(ServicosConsultas, DatasetNaConexaoDada)
{
    for (auto LCds : {CriarOvraClientDataset().release(), CriarOvraClientDataset(OvraConnection()).release(),
                      BuscarInstanciaOvraUtilsDbManager().CreateClientDataSetWithConnection().release()}) {
        const std::unique_ptr<TOvraClientDataSetWithConnection> LDono(LCds);
        EXPECT_FALSE(LDono->Active());
        LDono->SetCommandText("SELECT 'a:b' AS X FROM RDB$DATABASE"); // a colon is no parameter
        LDono->Open();
        EXPECT_EQ(LDono->FieldByName("X").AsString(), "a:b");
    }
    EXPECT_TRUE(Consultar("SELECT RDB$GET_CONTEXT('SYSTEM', 'ENGINE_VERSION') FROM RDB$DATABASE")
                    .starts_with(BuscarInstanciaOvraUtilsDbManager().GetInformacoesBancoDeDados().VersaoMaior + "."));
}

TEST_F(ServicosConsultas, CalculoPeloTipoDeQuebra)
{
    const auto Escolhido = [](TTipoQuebraGpsGfip ATipo) {
        return TTarvoConsultasGeral::BuscarCalculoEventoESocial(ATipo, "SELECT 'sem' AS X FROM RDB$DATABASE",
                                                                "SELECT 'com' AS X FROM RDB$DATABASE")
            ->FieldByName("X")
            .AsString();
    };
    EXPECT_EQ(Escolhido(TTipoQuebraGpsGfip::Nenhuma), "sem");
    EXPECT_EQ(Escolhido(TTipoQuebraGpsGfip::Empresa), "com");
    EXPECT_EQ(Escolhido(TTipoQuebraGpsGfip::Departamento), "com");

    EXPECT_EQ(TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(1), TTipoQuebraGpsGfip::Nenhuma);
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 19, 1, D(2019, 1, 1), nullptr, "1");
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 19, 1, D(2021, 1, 1), D(2021, 1, 2), "3");
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 2, 19, 1, D(2022, 1, 1), nullptr, "lixo");
    EXPECT_EQ(TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(1), TTipoQuebraGpsGfip::Departamento);
    EXPECT_EQ(TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(2), TTipoQuebraGpsGfip::Nenhuma);
    // Newer settings of another kind, type or origin say nothing of it.
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 18, 1, D(2022, 1, 1), nullptr, "1");
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 19, 2, D(2022, 1, 1), nullptr, "1");
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 19, 1, D(2022, 1, 1), nullptr, "1");
    Executar("UPDATE SC00_EMPRESACFG SET ORIGEM = 91 WHERE IDEMPRESA = 1 AND ESPECIE = 19 AND TP = 1 AND "
             "DATAINICIO = '01.01.2022'");
    EXPECT_EQ(TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(1), TTipoQuebraGpsGfip::Departamento);
}

TEST_F(ServicosConsultas, NaturezaDaVerbaEmVigorDecideBaseOuValor)
{
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 501}, {"TABELA", 3}, {"CODIGO", "1000"}});
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 502}, {"TABELA", 3}, {"CODIGO", "9905"}});
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 503}, {"TABELA", 4}, {"CODIGO", "7777"}});
    const auto Ligar = [](int ATabela, TDateTime AInicio, TValorSql AFim) {
        Inserir("FP_RUBRICARELAC",
                {{"IDVERBA", 7}, {"IDESOCIALTABELA", ATabela}, {"DATAINICIO", AInicio}, {"DATAFIM", AFim}});
    };
    Ligar(501, D(2020, 1, 1), D(2020, 12, 31));
    Ligar(502, D(2020, 7, 1), nullptr);
    Ligar(503, D(2020, 8, 1), nullptr); // of another code table

    const std::pair<TDateTime, int> LCasos[] = {
        {D(2019, 12, 31), 0},  {D(2020, 1, 1), 1000},   {D(2020, 6, 30), 1000},
        {D(2020, 7, 1), 9905}, {D(2020, 12, 31), 9905}, {D(2021, 1, 1) + 0.5, 9905},
    };
    for (const auto& [LData, LNatureza] : LCasos)
        EXPECT_EQ(TTarvoConsultasVerbas::BuscarNatRubrVerba(7, LData), LNatureza) << LData.Valor();

    Inserir("FP_RUBRICARELAC",
            {{"IDVERBA", 8}, {"IDESOCIALTABELA", 501}, {"DATAINICIO", D(2020, 1, 1)}, {"DATAFIM", D(2020, 12, 31)}});
    EXPECT_EQ(TTarvoConsultasVerbas::BuscarNatRubrVerba(8, D(2020, 12, 31) + 0.5), 1000); // the last day still counts
    EXPECT_EQ(TTarvoConsultasVerbas::BuscarNatRubrVerba(8, D(2021, 1, 1)), 0);

    const auto Valor = [](const char* AFormula, TDateTime AData) {
        return TTarvoConsultasGeral::BuscarValorVerbaParaESocial(7, AFormula, R("100"), R("12,34"), AData);
    };
    EXPECT_EQ(Valor("99B", D(2020, 7, 1)), R("100"));
    EXPECT_EQ(Valor("8BN", D(2020, 7, 1)), R("12,34"));
    EXPECT_EQ(Valor("99B", D(2020, 1, 1)), R("12,34"));
    EXPECT_EQ(Valor("99B", D(2019, 1, 1)), R("12,34"));
}

TEST_F(ServicosConsultas, VerbaPelaCaracteristica)
{
    Inserir("TAB_VERBAS", {{"IDVERBA", 30}, {"FORMULA", "99EB"}});
    Inserir("TAB_VERBAS", {{"IDVERBA", 20}, {"FORMULA", "99EB"}});
    Inserir("TAB_VERBAS", {{"IDVERBA", 10}, {"FORMULA", "99E"}});
    EXPECT_EQ(TTarvoConsultasVerbas::BuscarIDVerbaPelaCaracteristica("99EB"), 20);
    EXPECT_EQ(TTarvoConsultasVerbas::BuscarIDVerbaPelaCaracteristica("99"), 0);
}

TEST_F(ServicosConsultas, ProcessoMaisNovoDeCadaTributo)
{
    constexpr int IRRF = 1, INSS = 2, FGTS = 4, CS = 8;
    Inserir("SC00_FILIAL", {{"IDFILIAL", 11}, {"IDEMPRESA", 1}});
    Inserir("SC00_FILIAL", {{"IDFILIAL", 22}, {"IDEMPRESA", 2}});
    InserirProcesso(1, 7, 11, D(2019, 1, 1), INSS | IRRF);
    InserirProcesso(2, 7, nullptr, D(2020, 1, 1), INSS);          // of no establishment: every company's
    InserirProcesso(3, 7, 22, D(2020, 6, 1), INSS | FGTS | CS);   // another company's
    InserirProcesso(4, 7, 11, D(2021, 3, 1) + 0.5, FGTS);         // opened in the afternoon of the date
    InserirProcesso(5, 7, 11, D(2021, 3, 2), INSS | IRRF | FGTS); // not opened yet
    InserirProcesso(6, 8, 11, D(2019, 1, 1), CS);                 // another rubric's

    const auto LTributos =
        TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(7, 1, D(2021, 3, 1));
    EXPECT_TRUE(LTributos.INSS);
    EXPECT_EQ(LTributos.IDProcessoINSS, 2);
    EXPECT_TRUE(LTributos.IRRF);
    EXPECT_EQ(LTributos.IDProcessoIRRF, 1);
    EXPECT_TRUE(LTributos.FGTS);
    EXPECT_EQ(LTributos.IDProcessoFGTS, 4);
    EXPECT_FALSE(LTributos.CS);
    EXPECT_EQ(LTributos.IDProcessoCS, 0);

    const auto LOutra = TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(7, 2, D(2021, 3, 1));
    EXPECT_EQ(LOutra.IDProcessoINSS, 3);
    EXPECT_EQ(LOutra.IDProcessoCS, 3);
    EXPECT_FALSE(LOutra.IRRF);
    // With a time of day, as a generation date has it, nothing changes.
    EXPECT_EQ(TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(7, 1, D(2021, 3, 1) + 0.25)
                  .IDProcessoFGTS,
              4);
    EXPECT_FALSE(TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(0, 1, D(2021, 3, 1)).INSS);
}

TEST_F(ServicosConsultas, InicioDoContratoPorAdmissaoOuTransferencia)
{
    InserirEmpregado(1, 1, "1", D(2015, 5, 4), nullptr);
    InserirEmpregado(2, 1, "2", D(2015, 5, 4), nullptr);
    InserirTransferencia(2, 10, D(2019, 2, 1) + 0.4);
    InserirTransferencia(2, 10, D(2018, 1, 1), "TRANSFERENCIA TEMPORARIA");
    InserirTransferencia(2, 10, D(2020, 1, 1));
    InserirTransferencia(2, 20, D(2017, 1, 1)); // into another company
    InserirTransferencia(1, 20, D(2016, 1, 1));
    EXPECT_EQ(TTarvoConsultasEmpregado::BuscarAdmissaoOuTransfDefinitivaInicial(1), D(2015, 5, 4));
    EXPECT_EQ(TTarvoConsultasEmpregado::BuscarAdmissaoOuTransfDefinitivaInicial(2), D(2019, 2, 1));
    EXPECT_TRUE(TTarvoConsultasEmpregado::BuscarAdmissaoOuTransfDefinitivaInicial(9).Vazia());
}

TEST_F(ServicosConsultas, FimDoContratoPorDemissaoOuTransferencia)
{
    InserirEmpregado(1, 1, "1", D(2015, 5, 4), D(2021, 3, 10)); // dismissed, after a transfer
    InserirTransferencia(1, 20, D(2020, 1, 1));
    InserirEmpregado(2, 1, "2", D(2015, 5, 4), nullptr); // gone to another company twice
    InserirTransferencia(2, 20, D(2019, 1, 1));
    InserirTransferencia(2, 30, D(2020, 6, 15) + 0.75);
    InserirTransferencia(2, 10, D(2021, 1, 1)); // and within its own
    InserirEmpregado(3, 1, "3", D(2015, 5, 4), nullptr);
    InserirTransferencia(3, 20, D(2020, 6, 15), "PROMOCAO");

    using TConsultas = TTarvoConsultasEmpregado;
    EXPECT_EQ(TConsultas::BuscarDataDemissao(1), D(2021, 3, 10));
    EXPECT_TRUE(TConsultas::BuscarDataDemissao(2).Vazia());
    EXPECT_EQ(TConsultas::BuscarDataDemissaoOuTransfDefinitiva(1), D(2021, 3, 10));
    EXPECT_EQ(TConsultas::BuscarDataDemissaoOuTransfDefinitiva(1, true), D(2020, 1, 1));
    EXPECT_EQ(TConsultas::BuscarDataDemissaoOuTransfDefinitiva(2), D(2020, 6, 15));
    EXPECT_TRUE(TConsultas::BuscarDataDemissaoOuTransfDefinitiva(3).Vazia());

    const auto Encontrou = TConsultas::EncontrouMovimPorTransfDefinitivaParaOhEmpregado;
    EXPECT_TRUE(Encontrou("2", D(2020, 6, 15), D(2020, 6, 15))); // the day counts, not the hour
    EXPECT_TRUE(Encontrou("2", D(2020, 6, 15) + 0.9, D(2020, 6, 15) + 0.9));
    EXPECT_TRUE(Encontrou("3,2", D(2018, 12, 31), D(2019, 1, 1)));
    EXPECT_FALSE(Encontrou("2", D(2020, 6, 16), D(2021, 12, 31)));
    EXPECT_FALSE(Encontrou("3", D(2000, 1, 1), D(2030, 1, 1)));
    EXPECT_FALSE(Encontrou("", D(2000, 1, 1), D(2030, 1, 1)));
}

TEST_F(ServicosConsultas, VinculosAtivosDeCategoriasDiferentes)
{
    InserirCategoria(601, "101");
    InserirCategoria(602, "105");
    InserirCategoria(603, "101");
    InserirEmpregado(1, 1, "123.456.789-09", D(2020, 1, 1), nullptr, 601);
    InserirEmpregado(2, 1, "12345678909", D(2021, 1, 1), D(2021, 6, 30), 602);
    InserirEmpregado(3, 1, "12345678909", D(2019, 1, 1), nullptr, 603); // another row of the same code
    InserirEmpregado(4, 2, "12345678909", D(2019, 1, 1), nullptr, 602); // another company
    InserirEmpregado(5, 1, "", D(2019, 1, 1), nullptr, 601);
    InserirEmpregado(6, 1, "", D(2019, 1, 1), nullptr, 602);

    const std::pair<TDateTime, bool> LCasos[] = {{D(2020, 12, 31), false},
                                                 {D(2021, 1, 1), true},
                                                 {D(2021, 6, 30), true},
                                                 {D(2021, 6, 30) + 0.5, true},
                                                 {D(2021, 7, 1), false}};
    for (const auto& [LData, LEsperado] : LCasos) {
        using TConsultas = TTarvoConsultasEmpregado;
        for (const char* LCpf : {"12345678909", "123.456.789-09", " 123456789/09"})
            EXPECT_EQ(TConsultas::ExistemVariosVinculosAtivosComCategDiferentes(1, LCpf, LData), LEsperado) << LCpf;
        EXPECT_EQ(TConsultas::ExistemVariosVinculosAtivosComCategDiferentes(1, LData), LEsperado);
        EXPECT_FALSE(TConsultas::ExistemVariosVinculosAtivosComCategDiferentes(2, "12345678909", LData));
        // Workers without a CPF are not one person.
        EXPECT_FALSE(TConsultas::ExistemVariosVinculosAtivosComCategDiferentes(1, "", LData));
        EXPECT_FALSE(TConsultas::ExistemVariosVinculosAtivosComCategDiferentes(5, LData));
    }
}

TEST_F(ServicosConsultas, DadosDoTrabalhador)
{
    InserirCategoria(601, "101");
    InserirEmpregado(1, 3, "123.456.789-09", D(2020, 1, 1), nullptr, 601);
    InserirEmpregado(2, 3, "12345678909", D(2021, 1, 1), nullptr);
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 1}, {"CPF", "98765432100"}});
    Executar("UPDATE EMPREGADOS SET INDICADORDESCINSS = IDEMPREGADO");

    using TConsultas = TTarvoConsultasEmpregado;
    EXPECT_EQ(TConsultas::BuscarIDEmpresaDoEmpregado(1), 3);
    EXPECT_EQ(TConsultas::BuscarIDEmpresaDoEmpregado(9), 0);
    EXPECT_EQ(TConsultas::BuscarCodCategoriaEmpregado(1), "101");
    EXPECT_EQ(TConsultas::BuscarCodCategoriaEmpregado(2), "");
    EXPECT_EQ(TConsultas::BuscarCpfTrabalhador(1), "123.456.789-09");
    EXPECT_EQ(TConsultas::BuscarCpfTrabalhador(1, TTipoTrabalhador::Prestador), "98765432100");
    EXPECT_EQ(TConsultas::BuscarDadosEmpregado(1)->FieldByName("DATA_ADMISSAO").AsDateTime(), D(2020, 1, 1));
    EXPECT_EQ(TConsultas::BuscarIndicadorDescontoINSS(3, "12345678909"), 2);
    EXPECT_EQ(TConsultas::BuscarIndicadorDescontoINSS(1, "12345678909"), 0);
    EXPECT_EQ(TConsultas::BuscarIndicadorDescontoINSS(3, "11111111111"), 0);
}

TEST_F(ServicosConsultas, DadosDoEmpregadoNaoLeemAsOutrasColunasDoCadastro)
{
    // No value of an array can be read.
    TOvraConnection LConexao(CriarBancoDeTeste("empregados.fdb", false, [](std::string_view AEsquema) {
        constexpr std::string_view TABELA = "CREATE TABLE EMPREGADOS (";
        std::string LTexto(AEsquema);
        if (const auto LOnde = LTexto.find(TABELA); LOnde != std::string::npos)
            LTexto.insert(LOnde + TABELA.size(), "PONTOS INTEGER[3],");
        return LTexto;
    }));
    DefinirOvraConnection(&LConexao);
    EXPECT_NE("", Consultar("SELECT RDB$FIELD_NAME FROM RDB$RELATION_FIELDS WHERE RDB$FIELD_NAME = 'PONTOS'"));
    InserirEmpregado(1, 3, "12345678909", D(2020, 1, 1), nullptr);
    EXPECT_NO_THROW({
        const auto LCds = TTarvoConsultasEmpregado::BuscarDadosEmpregado(1);
        EXPECT_EQ(LCds->FieldByName("DATA_ADMISSAO").AsDateTime(), D(2020, 1, 1));
        EXPECT_EQ(LCds->FieldByName("IDEMPRESA").AsLargeInt(), 3);
    });
    LConexao.Desfazer();
    DefinirOvraConnection(&Conexao());
}

TEST_F(ServicosConsultas, ProcessosDoContratoOuDoCpf)
{
    InserirEmpregado(1, 1, "123.456.789-09", D(2020, 1, 1), nullptr);
    InserirEmpregado(2, 1, "12345678909", D(2021, 1, 1), nullptr);
    InserirEmpregado(3, 2, "12345678909", D(2021, 1, 1), nullptr);
    InserirEmpregado(4, 1, "", D(2021, 1, 1), nullptr);
    const auto Processo = [](int AId, int AEmpregado, TDateTime AAbertura) {
        Inserir("ES02_SPPROC", {{"IDSPPROC", AId}, {"IDEMPREGADO", AEmpregado}, {"DATAABERTURA", AAbertura}});
    };
    Processo(50, 1, D(2021, 3, 1) + 0.5);
    Processo(40, 2, D(2020, 1, 1));
    Processo(60, 2, D(2021, 3, 2));
    Processo(70, 3, D(2020, 1, 1));
    Processo(80, 4, D(2020, 1, 1));

    using TConsultas = TTarvoConsultasEmpregado;
    using TLista = std::vector<std::string>;
    EXPECT_EQ(TConsultas::BuscarProcessosDoEmpregado(1, 0, "12345678909", D(2021, 3, 1)), (TLista{"40", "50"}));
    EXPECT_EQ(TConsultas::BuscarProcessosDoEmpregado(1, 2, "", D(2021, 3, 2)), (TLista{"40", "60"}));
    EXPECT_EQ(TConsultas::BuscarProcessosDoEmpregado(1, 0, "", D(2021, 3, 2)), TLista{});
    EXPECT_EQ(TConsultas::BuscarDadosProcessosDoEmpregado(2, 0, "123.456.789-09", D(2021, 3, 1))
                  ->FieldByName("IDSPPROC")
                  .AsLargeInt(),
              70);
}

TEST_F(ServicosConsultas, TrabalhadorDoEventoGuardado)
{
    InserirEmpregado(5, 1, "1", D(2020, 1, 1), nullptr);
    Inserir("SITUACOES", {{"IDSITUACAO", 100}, {"IDEMPREGADO", 5}});
    Inserir("FP_AVISOPREVIO", {{"IDAVISOPREVIO", 101}, {"IDEMPREGADO", 5}});
    Inserir("TABCAT", {{"IDTABCAT", 102}, {"COD_EMPRESA", 10}, {"COD_EMPREGADO", 5}});
    Inserir("FP_EXAMETOXICOLOGICO", {{"IDEXAMETOXICOLOGICO", 103}, {"IDEMPREGADO", 5}});
    Inserir("FP_CURSOEMPREGADO", {{"IDCURSOEMPREGADO", 104}, {"IDEMPREGADO", 5}});

    const std::pair<const char*, int> LLigados[] = {
        {"S-2230", 100}, {"S-2250", 101}, {"S-2210", 102}, {"S-2221", 103}, {"S-2245", 104}};
    int LEvento = 1;
    for (const auto& [LTpEvento, LId] : LLigados) {
        InserirEvento(LEvento, LTpEvento, 201, LId, D(2021, 3, 1), 1, "", 201);
        EXPECT_EQ(TTarvoConsultasEmpregado::BuscarIdTrabalhadorPeloIdEvento(LEvento), 5) << LTpEvento;
        ++LEvento;
    }
    for (const char* LTpEvento : {"S-2200", "S-2299", "S-2399", "S-1200"}) {
        InserirEvento(LEvento, LTpEvento, 201, 77, D(2021, 3, 1), 1, "", 201);
        EXPECT_EQ(TTarvoConsultasEmpregado::BuscarIdTrabalhadorPeloIdEvento(LEvento), 77) << LTpEvento;
        ++LEvento;
    }
    EXPECT_EQ(TTarvoConsultasEmpregado::BuscarIdTrabalhadorPeloIdEvento(999), 0);
    EXPECT_EQ(TTarvoConsultasRescisao::BuscarIDEmpregadoPeloIDAvisoPrevio(999), 0);

    Inserir("FP_SITUACAOATESTADO", {{"IDSITUACAOATESTADO", 105}, {"IDSITUACAO", 100}, {"IDPRESTSERVICO", 66}});
    EXPECT_EQ(TTarvoConsultasGeral::BuscarIdPrestadorPeloIDSituacaoAtestado(105), 66);
}

TEST_F(ServicosConsultas, EmpresaEhDepartamento)
{
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 1}, {"EMPRESA", 500}});
    Inserir("SC00_FILIAL", {{"IDFILIAL", 11}, {"IDEMPRESA", 1}});
    Inserir("SC00_DEPTO", {{"IDDEPTO", 21}, {"IDFILIAL", 11}, {"TIPODEPTO", 3}});
    EXPECT_EQ(TTarvoConsultasEmpresa::BuscarIDEmpresaPeloIDEstab(11), 1);
    EXPECT_EQ(TTarvoConsultasEmpresa::BuscarCampoPeloIdEmpresa("EMPRESA", 1), "500");
    EXPECT_EQ(TTarvoConsultasDepartamento::BuscarTipoDepartamento(21), 3);
    EXPECT_EQ(TTarvoConsultasDepartamento::BuscarTipoDepartamento(22), 0);
}

TEST_F(ServicosConsultas, DatasDeInicioDaEmpresa)
{
    const auto Buscar = TTarvoConsultasESocial::BuscarDataInicioEmpresaEsocial;
    EXPECT_TRUE(Buscar(1).DataInicio.Vazia());
    EXPECT_TRUE(Buscar(1).DataInicioEmpregador.Vazia());
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 38, 10, D(2018, 1, 1), nullptr, "01/01/2018", "");
    EXPECT_EQ(Buscar(1).DataInicio, D(2018, 1, 1));
    EXPECT_EQ(Buscar(1).DataInicioEmpregador, D(2018, 1, 1));
    // The newest row counts, even one that ended.
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 38, 10, D(2019, 1, 1), D(2019, 1, 2), " 10/01/2019 ", "01/03/2019");
    EXPECT_EQ(Buscar(1).DataInicio, D(2019, 1, 10));
    EXPECT_EQ(Buscar(1).DataInicioEmpregador, D(2019, 3, 1));
    // Nor do newer settings of another kind, type or origin.
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 37, 10, D(2022, 1, 1), nullptr, "01/01/2022");
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 38, 11, D(2022, 1, 1), nullptr, "01/01/2022");
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 1, 38, 10, D(2022, 1, 1), nullptr, "01/01/2022");
    Executar("UPDATE SC00_EMPRESACFG SET ORIGEM = 91 WHERE ESPECIE = 38 AND TP = 10 AND DATAINICIO = '01.01.2022'");
    EXPECT_EQ(Buscar(1).DataInicio, D(2019, 1, 10));
    InserirCfg("SC00_EMPRESACFG", "IDEMPRESA", 2, 38, 10, D(2019, 1, 1), nullptr, "31/02/2019");
    EXPECT_THROW(Buscar(2), EConvertError);
    EXPECT_EQ(TTarvoConsultasESocial::BuscarDataInicioAmbienteTeste(), D(2017, 8, 1));
}

TEST_F(ServicosConsultas, IndSimplesDoDepartamentoOuDoEstabelecimento)
{
    Inserir("SC00_DEPTO", {{"IDDEPTO", 21}, {"IDFILIAL", 11}});
    Inserir("SC00_DEPTO", {{"IDDEPTO", 22}, {"IDFILIAL", 11}});
    InserirCfg("SC00_FILIALCFG", "IDFILIAL", 11, 60, 1, D(2020, 1, 1), D(2020, 12, 31), "1");
    InserirCfg("SC00_FILIALCFG", "IDFILIAL", 11, 60, 1, D(2021, 1, 1), nullptr, "2");
    InserirCfg("SC00_DEPARTAMENTOCFG", "IDDEPARTAMENTO", 21, 60, 1, D(2021, 1, 1), D(2021, 6, 30), "3");

    struct TCaso {
        int Estab;
        int Depto;
        TDateTime Data;
        int Esperado;
    };
    const TCaso LCasos[] = {
        {11, 0, D(2019, 12, 31), 0}, {11, 0, D(2020, 1, 1), 1},    {11, 0, D(2020, 12, 31), 1},
        {11, 0, D(2021, 1, 1), 2},   {11, 21, D(2020, 12, 31), 1}, {11, 21, D(2021, 1, 1), 3},
        {11, 21, D(2021, 6, 30), 3}, {11, 21, D(2021, 7, 1), 2},   {0, 21, D(2021, 7, 1), 2},
        {0, 22, D(2021, 1, 1), 2},   {0, 23, D(2021, 1, 1), 0},    {12, 22, D(2021, 1, 1), 0},
    };
    for (const auto& LCaso : LCasos)
        EXPECT_EQ(TTarvoConsultasESocial::BuscarIndSimples(LCaso.Estab, LCaso.Depto, LCaso.Data), LCaso.Esperado)
            << LCaso.Estab << " " << LCaso.Depto << " " << LCaso.Data.Valor();
}

TEST_F(ServicosConsultas, ReciboDoEventoMaisNovoAceito)
{
    const auto Recibo = [](TTipoEventoFolha ATipo, int AAmbiente, std::int64_t AEvento = 0, TDateTime AData = {}) {
        return TTarvoConsultasESocial::BuscarNumeroDeRecibo(1, ATipo, 5, AEvento, AAmbiente, AData);
    };
    constexpr auto S2299 = TTipoEventoFolha::tefS2299;
    EXPECT_EQ(Recibo(S2299, 1), "");
    InserirEvento(1, "S-2299", 201, 5, D(2021, 3, 1), 1, "1.1", 201);
    InserirEvento(2, "S-2299", 202, 5, D(2021, 3, 2), 1, "1.2", 202);
    InserirEvento(3, "S-2299", 301, 5, D(2021, 3, 3), 1, "recusado", 201);
    InserirEvento(4, "S-2299", 201, 5, D(2021, 3, 4), 1, "detalhe recusado", 301);
    InserirEvento(5, "S-2299", 201, 5, D(2021, 3, 5), 2, "1.5", 201);
    InserirEvento(6, "S-2299", 201, 6, D(2021, 3, 6), 1, "outro trabalhador", 201);
    InserirEvento(7, "S-2299", 201, 5, D(2021, 3, 7), 1, "outra empresa", 201, 2);
    InserirEvento(8, "S-2399", 201, 5, D(2021, 3, 8), 1, "1.8", 201);
    EXPECT_EQ(Recibo(S2299, 1), "1.2");
    EXPECT_EQ(Recibo(S2299, 2), "1.5");
    EXPECT_EQ(Recibo(TTipoEventoFolha::tefS2399, 1), "1.8");
    EXPECT_EQ(Recibo(S2299, 1, 1), "1.1");
    EXPECT_EQ(Recibo(S2299, 1, 0, D(2021, 3, 1)), "1.2");
    EXPECT_EQ(Recibo(S2299, 1, 0, D(2021, 4, 1)), "");
}

} // namespace
} // namespace tarvo::testes
