#include <sstream>

#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraUtilsDialogs.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"
#include "regras/UnTarvoESocialCamposCodRubr.h"

namespace tarvo::testes {
namespace {

using regras::TIncidVerba;
using TBusca = regras::TTarvoESocialCamposBuscaIncidVerbas;
using enum regras::TTipoRetornoIncidVerbas;

/// A rubric by what its incidences depend on; flags are S, N or - for null.
struct TVerba {
    const char* Formula;
    /// INSS_NORMAL, IRRF_NORMAL, FGTS, BC_CSIND, REMUN_13, DED_IRRF.
    const char* Marcas = "NNNNNN";
    const char* Tipo = "1";
    const char* Nome = "Verba";
};

void InserirVerba(int AIdVerba, const TVerba& AVerba)
{
    const auto Marca = [&](std::size_t AIndice) -> TValorSql {
        const char LMarca = AVerba.Marcas[AIndice];
        return LMarca == 'S' ? TValorSql("Sim") : LMarca == 'N' ? TValorSql("Nao") : TValorSql(nullptr);
    };
    Inserir("TAB_VERBAS", {{"IDVERBA", AIdVerba},
                           {"CODIGO", AIdVerba + 1000},
                           {"NOME", AVerba.Nome},
                           {"TIPO", AVerba.Tipo},
                           {"FORMULA", AVerba.Formula == nullptr ? TValorSql(nullptr) : TValorSql(AVerba.Formula)},
                           {"INSS_NORMAL", Marca(0)},
                           {"IRRF_NORMAL", Marca(1)},
                           {"FGTS", Marca(2)},
                           {"BC_CSIND", Marca(3)},
                           {"REMUN_13", Marca(4)},
                           {"DED_IRRF", Marca(5)}});
}

std::string Texto(const std::vector<std::int32_t>& ALista)
{
    std::string LTexto;
    for (const auto LCodigo : ALista)
        LTexto += (LTexto.empty() ? "" : ",") + std::to_string(LCodigo);
    return LTexto;
}

std::string Texto(const regras::TIncidVerba& AIncid)
{
    return Texto(AIncid.FListInss) + "|" + Texto(AIncid.FListIrrf) + "|" + Texto(AIncid.FListFgts) + "|" +
           Texto(AIncid.FListCs);
}

int GAlertas = 0;

class TTesteBuscaIncidVerbas : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        GAlertas = 0;
        GOvraUtilsDialogs.DefinirReacao([](const std::string& AMensagem) {
            EXPECT_EQ("A busca de incidências das verbas está retornando mais de um valor para cada tipo de retorno :/",
                      AMensagem);
            ++GAlertas;
        });
    }
    void TearDown() override
    {
        GOvraUtilsDialogs.DefinirReacao(nullptr);
        TTesteComBanco::TearDown();
    }
};

TEST_F(TTesteBuscaIncidVerbas, CodigoBasePorFormulaMarcasTipoENome)
{
    struct {
        /// Formulas of the case, between blanks.
        const char* Formulas;
        const char* Marcas;
        const char* Tipo;
        const char* Nome;
        const char* Esperado;
    } const LCasos[] = {
        {"ZZ", "NNNNNN", "1", "", "0|0|0|0"},
        {"ZZ", "------", "1", "", "0|9|0|0"},
        {"ZZ", "SSSSNN", "1", "", "11|11|11|11"},
        {"ZZ", "SSSSSN", "1", "", "12|12|12|11"},
        {"ZZ", "SSSS-N", "1", "", "11|11|0|11"},
        // Social security: whoever stands first wins over the flags.
        {"3F 3FA 3O 5U", "SNNNSN", "1", "", "51|0|0|0"},
        {"99CF", "SNNNSN", "1", "", "35|0|0|0"},
        {"99CE", "SNNNSN", "1", "", "34|0|0|0"},
        {"99D", "SSNNSN", "2", "", "32|42|0|0"},
        {"99C 99CA 99CD", "SSNNSN", "2", "", "31|41|0|0"},
        {"99E 99EA", "NNNNNN", "2", "", "31|43|0|0"},
        {"98B", "NNNNNN", "5", "", "31|9|0|0"},
        {"6BC 8BPL 8BMA 6BPM 8BMM 8BML", "SNNNSN", "1", "", "26|9|0|0"},
        {"6BC 8BML", "SNNNSN", "3", "", "26|0|0|0"},
        {"6BC 8BML", "SNNNNN", "1", "", "11|9|0|0"},
        {"6BC 8BML", "NNNNSN", "1", "", "0|9|0|0"},
        {"3HA 4CAA 4CAK", "SNNNNN", "1", "", "25|9|0|0"},
        {"1F 1P", "SNNNNN", "1", "", "25|9|0|11"},
        {"3HA 4CAK", "SNNNSN", "1", "", "12|9|0|0"},
        {"4U 8BOL 6BOV 8BLL", "SNNNSN", "1", "", "22|0|0|0"},
        {"3H 4U 4VA 4CBK", "SNNNNN", "1", "", "21|0|0|0"},
        {"1FA 1PA", "SNNNNN", "1", "", "21|0|0|11"},
        {"3H 4CBK", "SNNNSN", "1", "", "12|0|0|0"},
        {"900G", "NNNNNN", "3", "", "12|0|0|0"},
        {"900F", "NNNNNN", "3", "", "11|0|0|0"},
        {"6CA", "NNNNNN", "3", "", "11|11|12|0"},
        {"2 2A 2ZZ", "NNNNNN", "2", "", "11|11|11|0"},
        {"2A", "NNNNSN", "3", "", "11|11|11|0"},
        // Income tax.
        {"7B 7BH 7BQ", "NNNNNN", "1", "", "0|75|0|0"},
        {"7B 7BH 7BQ", "NSNNNN", "1", "", "0|13|0|0"},
        {"7B 7BH 7BQ", "NSNNSN", "1", "", "0|12|0|0"},
        {"8AA 8DN 8HB 8BNM", "NNNNNN", "1", "", "0|74|0|0"},
        {"8AA 8HAC", "NSNNNN", "1", "", "0|13|0|0"},
        {"8DLA 8BNM", "NSNNNN", "1", "", "0|11|0|0"},
        {"4R", "NNNNNN", "1", "Ajuda p/ custo", "0|73|0|0"},
        {"4R", "NNNNNN", "1", "DIARIA OU AJUDA DE CUSTO", "0|73|0|0"},
        {"4R", "NNNNNN", "1", "Ajuda", "0|0|0|0"},
        {"4R", "NNNNNN", "2", "Meia diaria", "0|72|0|0"},
        {"4R", "NNNNNN", "2", "Meia diária", "0|9|0|0"},
        {"4R", "NSNNNN", "1", "DIARIA", "0|11|0|0"},
        {"4RA", "NNNNNN", "1", "DIARIA", "0|0|0|0"},
        {"5Q", "NNNNSS", "2", "Fapi", "0|62|0|0"},
        {"5Q", "NNNNNS", "2", "FAPI", "0|61|0|0"},
        {"5Q", "NNNNSS", "2", "FAPI PREVIDENCIA PRIVADA", "0|62|0|0"},
        {"5Q", "NNNNNS", "2", "Previdência privada FAPI", "0|61|0|0"},
        {"5Q", "NNNNSS", "2", "Previdência privada", "0|47|0|0"},
        {"5Q", "NNNNNS", "2", "Previdência privada", "0|46|0|0"},
        {"5Q", "NNNNNS", "2", "Previdência", "0|9|0|0"},
        {"5Q", "NNNNNN", "2", "FAPI", "0|9|0|0"},
        {"5Q", "NSNNNS", "2", "FAPI", "0|9|0|0"},
        {"5Q", "NNNN-S", "2", "FAPI", "0|9|0|0"},
        {"5EA", "NNNNNN", "2", "", "0|53|0|0"},
        {"5EB", "NNNNNN", "2", "", "0|52|0|0"},
        {"5E 5EC", "NNNNNN", "2", "", "0|51|0|0"},
        {"5ED", "NNNNNN", "2", "", "0|9|0|0"},
        {"99M", "NNNNNN", "2", "", "0|35|0|0"},
        {"99K", "NNNNNN", "2", "", "0|34|0|0"},
        {"99H 99HA 99I", "NNNNNN", "2", "", "0|33|0|0"},
        {"99G 99GA", "NNNNNN", "2", "", "0|32|0|0"},
        {"99F", "NNNNNN", "2", "", "0|31|0|0"},
        {"3T", "NSNNSN", "1", "", "0|14|0|0"},
        {"3T", "NNNNNN", "1", "", "0|0|0|0"},
        {"7CA 7AP 7EQ 7AS 8DO 8HZ 8AZ 8DNZ", "NSNNNN", "2", "", "0|13|0|0"},
        {"7A 7E", "NSNNNN", "1", "", "0|13|0|11"},
        {"7CA 8DO 8HZ", "NSNN-N", "2", "", "0|9|0|0"},
        {"900I", "NNNNNN", "3", "", "0|12|0|0"},
        {"8BPL 4CAK 1EAA 4CDK 6BSL", "NSNNNN", "1", "", "0|9|0|0"},
        {"8BPL 4CAK 1EAA 4CDK 6BSL", "NSNNSN", "1", "", "0|12|0|0"},
        {"1EAA 6BSL", "NNNNNN", "3", "", "0|0|0|0"},
        {"ZZ", "NSNNNN", "2", "", "0|9|0|0"},
        {"ZZ", "NSNNNN", "3", "", "0|9|0|0"},
        {"ZZ", "NNNNNN", "3", "", "0|0|0|0"},
        {"ZZ", "NNNNNN", "2", "", "0|9|0|0"},
        {"ZZ", "NNNNNN", "5", "", "0|9|0|0"},
        {"900H", "NNNNNN", "3", "", "0|11|0|0"},
        // FGTS.
        {"8DLZ 8DMZ 8DNZ", "NNSNSN", "1", "", "0|0|21|0"},
        {"8DO", "NNSNNN", "1", "", "0|74|21|0"},
        {"8DMZ 8DLZ", "NNNNSN", "1", "", "0|0|0|0"},
        {"2A", "NNSNSN", "2", "", "11|11|12|0"},
        {"2A 2", "NN-N-N", "2", "", "11|11|11|0"},
        {"6CA", "NNSNNN", "2", "", "11|11|12|0"},
        // Union contribution.
        {"5C", "NNNSNN", "2", "", "0|9|0|31"},
        {"1A 1N 1Y 3J 7EE 8C", "NNNNNN", "2", "", "0|9|0|11"},
        {"1A", "NNN-NN", "2", "", "0|9|0|11"},
        {"ZZ", "NNN-NN", "2", "", "0|9|0|0"},
    };
    int LIdVerba = 0;
    for (const auto& LCaso : LCasos) {
        std::istringstream LFormulas(LCaso.Formulas);
        for (std::string LFormula; LFormulas >> LFormula;) {
            InserirVerba(++LIdVerba, {LFormula.c_str(), LCaso.Marcas, LCaso.Tipo, LCaso.Nome});
            const auto LIncid = TBusca::BuscarIncidencias(LIdVerba, trNormal, trNormal, trNormal, trNormal);
            EXPECT_EQ(LCaso.Esperado, Texto(LIncid))
                << LFormula << " " << LCaso.Marcas << " " << LCaso.Tipo << " " << LCaso.Nome;
            EXPECT_EQ(LIdVerba + 1000, LIncid.FCodVerba);
        }
    }
    EXPECT_EQ(0, GAlertas);
}

TEST_F(TTesteBuscaIncidVerbas, TotaisDoCalculoNaoTemIncidencia)
{
    int LIdVerba = 0;
    for (const char* LFormula : {"700A", "900A", "98A", "99B", "99BA", "99BB", "99BC", "8J", "7D", "99CB", "96", "96X",
                                 "97A", "99J", "99JA", static_cast<const char*>(nullptr)}) {
        InserirVerba(++LIdVerba, {LFormula, "SSSSNN"});
        const auto LIncid = TBusca::BuscarIncidencias(LIdVerba);
        EXPECT_EQ("|||", Texto(LIncid)) << LIdVerba;
        EXPECT_EQ(0, LIncid.FCodVerba);
    }
    EXPECT_EQ("|||", Texto(TBusca::BuscarIncidencias(LIdVerba + 1)));
    // Not the whole text of a filter, or not its beginning.
    for (const char* LFormula : {"8JA", "7DA", "98", "196", "9"}) {
        InserirVerba(++LIdVerba, {LFormula, "SSSSNN"});
        EXPECT_NE(0, TBusca::BuscarIncidencias(LIdVerba).FCodVerba) << LFormula;
    }
}

TEST_F(TTesteBuscaIncidVerbas, VariantesPeloTipoPedido)
{
    struct {
        TVerba Verba;
        regras::TTipoRetornoIncidVerbas Inss, Irrf, Fgts, Cs;
        const char* Esperado;
        int Alertas = 0;
    } const LCasos[] = {
        {{"ZZ", "SSSSNN"}, trTodos, trTodos, trTodos, trTodos, "11,91|11,15,91,95|11,91|11,91"},
        {{"ZZ", "SSSSNN"}, trNormal, trNormal, trNormal, trNormal, "11|11|11|11"},
        {{"ZZ", "SSSSNN"}, trProcesso, trProcesso, trProcesso, trProcesso, "91|91|91|91"},
        {{"ZZ", "SSSSNN"}, trRRA, trRRA, trRRA, trRRA, "|15||"},
        {{"ZZ", "SSSSNN"}, trProcesso, trTodos, trNormal, trNormal, "91|11,91,95|11|11"},
        {{"ZZ", "SSSSNN"}, trNormal, trTodos, trNormal, trNormal, "11|11,15,91|11|11"},
        {{"ZZ", "SSSSNN"}, trRRA, trTodos, trNormal, trNormal, "|11,15,91|11|11"},
        {{"ZZ", "SSSSNN"}, trTodos, trProcesso, trNormal, trNormal, "11,91|91|11|11"},
        {{"ZZ", "SSSSNN"}, trNormal, trProcesso, trTodos, trProcesso, "11|91|11,91|91"},
        {{"ZZ", "SSSSNN"}, trNormal, trRRA, trNormal, trTodos, "11|15|11|11,91"},
        {{"ZZ", "SSSSNN"}, trTodos, trRRA, trNormal, trNormal, "11,91|15,95|11|11", 1},
        {{"ZZ", "SSSSNN"}, trProcesso, trRRA, trNormal, trNormal, "91|95|11|11"},
        {{"ZZ", "SSSSSN"}, trTodos, trTodos, trTodos, trTodos, "12,92|12,15,92,95|12,91|11,91"},
        {{"3H", "SSSNNN"}, trTodos, trTodos, trTodos, trTodos, "21,93|11,15,91,95|11,91|0"},
        {{"6BA", "SSSNSN"}, trProcesso, trProcesso, trProcesso, trProcesso, "94|92|91|"},
        {{"6BC", "SNNNSN"}, trTodos, trTodos, trTodos, trTodos, "26,94|9|0|0"},
        {{"3HA", "SNNNNN"}, trProcesso, trProcesso, trProcesso, trProcesso, "93|||"},
        {{"8DO", "NSSNNN"}, trTodos, trTodos, trTodos, trTodos, "0|13,15,93,95|21,91|0"},
        {{"3T", "NSNNNN"}, trTodos, trTodos, trTodos, trTodos, "0|14,94|0|0"},
        {{"99C"}, trTodos, trTodos, trTodos, trTodos, "31|41,44|0|0"},
        {{"99D"}, trTodos, trTodos, trTodos, trTodos, "32|42,44|0|0"},
        {{"99E"}, trProcesso, trRRA, trTodos, trTodos, "|44|0|0"},
        {{"5E"}, trTodos, trTodos, trTodos, trTodos, "0|51,55|0|0"},
        {{"5EB"}, trTodos, trRRA, trTodos, trTodos, "0|55|0|0"},
        {{"5EA"}, trTodos, trProcesso, trTodos, trTodos, "0||0|0"},
        {{"5C"}, trTodos, trTodos, trTodos, trTodos, "0|0|0|31"},
    };
    int LIdVerba = 0;
    for (const auto& LCaso : LCasos) {
        GAlertas = 0;
        InserirVerba(++LIdVerba, LCaso.Verba);
        EXPECT_EQ(LCaso.Esperado,
                  Texto(TBusca::BuscarIncidencias(LIdVerba, LCaso.Inss, LCaso.Irrf, LCaso.Fgts, LCaso.Cs)))
            << LIdVerba;
        EXPECT_EQ(LCaso.Alertas, GAlertas) << LIdVerba;
    }
    TTributosComProcesso LProcessos;
    LProcessos.INSS = LProcessos.CS = true;
    EXPECT_EQ("91|11|11|91", Texto(TBusca::BuscarIncidencias(1, LProcessos)));
    EXPECT_EQ("11,91|11,15,91,95|11,91|11,91", Texto(TBusca::BuscarIncidencias(1)));
}

TEST(TTesteCodRubr, CompoeComOPrimeiroCodigoDeCadaTributo)
{
    const regras::TIncidVerba LIncid{125, {11, 91}, {12}, {11}, {}};
    EXPECT_EQ("00125P011I012F011C000", regras::ComporCodRubr(LIncid.FCodVerba, regras::PrimeirosCodigos(LIncid)));
    EXPECT_EQ("00007P031I041F000C000RPA", regras::ComporCodRubrRpa(7, {31, 41, 0, 0}));
    EXPECT_EQ("123456P000I000F000C000", regras::ComporCodRubr(123456, {}));
}

/// Rewriting confirms what it writes: these tests have a database of their own.
class TTesteAtualizarIncid : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        FParametros = CriarBancoDeTeste("incidencias.fdb", false);
        FConexao = std::make_unique<TOvraConnection>(FParametros);
        DefinirOvraConnection(FConexao.get());
        for (const int LTabela : {9995, 9996, 9997, 9998})
            for (const char* LCodigo : {"00", "09", "11", "15", "91", "95"})
                if (!(LTabela == 9998 && std::string(LCodigo) == "15"))
                    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", LTabela * 100 + std::stoi(LCodigo)},
                                                 {"TABELA", LTabela},
                                                 {"CODIGO", LCodigo}});
        // A code table of letters doesn't get into the way of the comparison with a number.
        Inserir("FP_ESOCIALTABELA", {{"TABELA", 20}, {"CODIGO", "AV"}});
        InserirVerba(1, {"ZZ", "SSSSNN"});
        InserirVerba(2, {"8J"});
        FConexao->Confirmar();
    }
    static void TearDownTestSuite() { FConexao.reset(); }
    void SetUp() override { DefinirOvraConnection(FConexao.get()); }
    void TearDown() override
    {
        FConexao->DefinirObservador({});
        DefinirOvraConnection(nullptr);
    }

    /// A change of the schema, confirmed.
    static void Alterar(const char* ASql)
    {
        Executar(ASql);
        FConexao->Confirmar();
    }

    /// The codes stored for a rubric, in the order in which they were written.
    static std::string Gravados(int AIdVerba)
    {
        // Another connection sees only what was confirmed.
        TOvraConnection LOutra(FParametros);
        std::string LTexto;
        for (const std::string LTributo : {"CP", "IRRF", "FGTS", "CSIND"}) {
            const auto LLinhas =
                LOutra.Consultar(Format("SELECT LIST(CODIGO) FROM (SELECT FP_ESOCIALTABELA.CODIGO FROM "
                                        "FP_ESOCIALINCID%0:s JOIN FP_ESOCIALTABELA ON "
                                        "(FP_ESOCIALTABELA.IDESOCIALTABELA = FP_ESOCIALINCID%0:s.IDESOCIALTABELA) "
                                        "WHERE IDVERBA = %1:d ORDER BY "
                                        "IDESOCIALINCID%0:s)",
                                        LTributo, AIdVerba));
            LTexto += (LTributo == "CP" ? "" : "|") + LLinhas.Texto(0, 0);
        }
        return LTexto;
    }

    static inline TParametrosConexao FParametros;
    static inline std::unique_ptr<TOvraConnection> FConexao;
};

TEST_F(TTesteAtualizarIncid, RegravaAsListasDeTodosOsTributos)
{
    // Income tax 15 has no row in its code table and is left out without a word.
    const std::string LEsperado = "11,91|11,91,95|11,91|11,91";
    TBusca::AtualizarIncidencias(1);
    EXPECT_EQ(LEsperado, Gravados(1));
    TBusca::AtualizarIncidencias(1);
    EXPECT_EQ(LEsperado, Gravados(1));
    // A rubric without incidence is stored with code 0, one that isn't there too.
    for (const int LIdVerba : {2, 3}) {
        TBusca::AtualizarIncidencias(LIdVerba);
        EXPECT_EQ("00|00|00|00", Gravados(LIdVerba));
    }
    Executar("UPDATE TAB_VERBAS SET INSS_NORMAL = 'Nao', FORMULA = '5C' WHERE IDVERBA = 1");
    TBusca::AtualizarIncidencias(1);
    EXPECT_EQ("00|11,91,95|11,91|", Gravados(1)); // nor has union contribution 31
    Alterar("UPDATE TAB_VERBAS SET INSS_NORMAL = 'Sim', FORMULA = 'ZZ' WHERE IDVERBA = 1");
}

TEST_F(TTesteAtualizarIncid, ApagaEInsereNaOrdemCadaComandoPorSi)
{
    std::vector<std::string> LComandos;
    FConexao->DefinirObservador([&](const TExecucaoSql& AExecucao) {
        if (!AExecucao.Sql.starts_with("SELECT") && AExecucao.Sql.find("SAVEPOINT") == std::string_view::npos)
            LComandos.emplace_back(AExecucao.Sql);
    });
    TBusca::AtualizarIncidencias(2);
    const auto Insercao = [](const std::string& ATributo, const std::string& ATabela) {
        return "INSERT INTO FP_ESOCIALINCID" + ATributo + "( FP_ESOCIALINCID" + ATributo + ".IDESOCIALINCID" +
               ATributo + ", FP_ESOCIALINCID" + ATributo + ".IDVERBA, FP_ESOCIALINCID" + ATributo +
               ".IDESOCIALTABELA) SELECT GEN_ID(GN_FP_ESOCIALINCID" + ATributo +
               ",1), 2, FP_ESOCIALTABELA.IDESOCIALTABELA FROM FP_ESOCIALTABELA WHERE FP_ESOCIALTABELA.TABELA = " +
               ATabela + " AND FP_ESOCIALTABELA.CODIGO = 0";
    };
    EXPECT_EQ((std::vector<std::string>{"DELETE FROM FP_ESOCIALINCIDCP WHERE IDVERBA =  2;",
                                        "DELETE FROM FP_ESOCIALINCIDCSIND WHERE IDVERBA =  2;",
                                        "DELETE FROM FP_ESOCIALINCIDFGTS WHERE IDVERBA =  2;",
                                        "DELETE FROM FP_ESOCIALINCIDIRRF WHERE IDVERBA =  2;", Insercao("CP", "9997"),
                                        Insercao("IRRF", "9998"), Insercao("FGTS", "9996"), Insercao("CSIND", "9995")}),
              LComandos);
}

TEST_F(TTesteAtualizarIncid, DepoisDeUmaFalhaOQueFoiConfirmadoFicaEORestoEhPulado)
{
    TBusca::AtualizarIncidencias(1);
    Alterar("ALTER TABLE FP_ESOCIALINCIDIRRF ADD CONSTRAINT SEM_95 CHECK (IDESOCIALTABELA <> 999895)");
    TBusca LBusca(1);
    LBusca.AtualizarIncidVerba();
    EXPECT_FALSE(LBusca.ResultStatus().Sucesso);
    EXPECT_NE(std::string::npos, LBusca.ResultStatus().Mensagem.find("SEM_95")) << LBusca.ResultStatus().Mensagem;
    EXPECT_EQ("11,91|11,91||", Gravados(1));
    EXPECT_NO_THROW(TBusca::AtualizarIncidencias(1));
    Alterar("ALTER TABLE FP_ESOCIALINCIDIRRF DROP CONSTRAINT SEM_95");

    // A delete that fails: nothing after it runs, neither the other deletes nor the inserts.
    TBusca::AtualizarIncidencias(1);
    Alterar("CREATE TABLE DEPENDE (ID BIGINT REFERENCES FP_ESOCIALINCIDFGTS (IDESOCIALINCIDFGTS))");
    Alterar("INSERT INTO DEPENDE SELECT IDESOCIALINCIDFGTS FROM FP_ESOCIALINCIDFGTS WHERE IDVERBA = 1");
    TBusca::AtualizarIncidencias(1);
    EXPECT_EQ("|11,91,95|11,91|", Gravados(1));
    Alterar("DROP TABLE DEPENDE");
}

TEST_F(TTesteAtualizarIncid, CargaInicialPassaPorTodasEDevolveSucessoSempre)
{
    Alterar("ALTER TABLE FP_ESOCIALINCIDFGTS ADD CONSTRAINT SEM_11 CHECK (IDESOCIALTABELA <> 999611)");
    std::string LAcompanhado;
    const auto LStatus = TBusca::EfetuarCargaInicialIncidencias(
        [&](std::int64_t AIdVerba, const TResultStatus& AStatus, std::size_t AFeitas, std::size_t ATotal) {
            LAcompanhado += Format("%0:d %1:s %2:d/%3:d; ", AIdVerba, AStatus.Sucesso ? "sim" : "não", AFeitas, ATotal);
        });
    EXPECT_TRUE(LStatus.Sucesso);
    EXPECT_EQ("1 não 1/2; 2 sim 2/2; ", LAcompanhado);
    EXPECT_EQ("11,91|11,91,95||", Gravados(1));
    EXPECT_EQ("00|00|00|00", Gravados(2));
    Alterar("ALTER TABLE FP_ESOCIALINCIDFGTS DROP CONSTRAINT SEM_11");
    EXPECT_TRUE(TBusca::EfetuarCargaInicialIncidencias().Sucesso);
    EXPECT_EQ("11,91|11,91,95|11,91|11,91", Gravados(1));
}

} // namespace
} // namespace tarvo::testes
