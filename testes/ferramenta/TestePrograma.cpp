#include <rapidjson/document.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnPrograma.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"
#include "tabelas/s1000/UnTarvoESocialCamposS1000.h"

// The real program, run as a person would.

namespace tarvo::testes {
namespace {

std::string LerArquivo(const std::string& ANome)
{
    std::ifstream LArquivo(ANome);
    std::stringstream LTexto;
    LTexto << LArquivo.rdbuf();
    return LTexto.str();
}

/// The sample company's database of these tests, made by the program itself.
const std::string& Banco()
{
    static const std::string LBanco = [] {
        const auto LLigacao = ParametrosDoBanco("programa.fdb").BancoDeDados;
        const auto LSaida = Rodar({"criar-banco", "--banco", LLigacao, "--exemplo"});
        EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros;
        EXPECT_EQ("", LSaida.Padrao);
        return LLigacao;
    }();
    return LBanco;
}

std::vector<std::string> S1000(std::vector<std::string> AMais = {}, const char* AComando = "carregar")
{
    std::vector<std::string> LArgumentos{AComando,       "S-1000", "--banco", Banco(),
                                         "--AIDEmpresa", "1",      "--AData", "2021-03-01"};
    LArgumentos.insert(LArgumentos.end(), AMais.begin(), AMais.end());
    return LArgumentos;
}

TEST(TTestePrograma, UsoErradoDizOQueEstaErradoESaiComDois)
{
    const auto& B = Banco();
    const std::pair<std::vector<std::string>, const char*> LCasos[] = {
        {{}, "Falta informar o comando"},
        {{"nada"}, "Comando desconhecido: 'nada'"},
        {{"carregar"}, "Falta informar o evento"},
        {{"carregar", "S-9999", "--banco", B}, "desconhecido: 'S-9999'"},
        {{"carregar", "S-1000", "S-2200", "--banco", B}, "um só evento"},
        {{"carregar", "S-1000", "--AIDEmpresa", "1", "--AData", "2021-03-01"}, "Falta informar --banco"},
        {{"carregar", "S-1000", "--banco", B}, "Falta informar --AIDEmpresa, --AData"},
        {{"carregar", "S-1000", "--banco", B, "--AIDEmpresa"}, "--AIDEmpresa precisa de exatamente um valor"},
        {{"carregar", "S-1000", "--banco", B, "--AIDEmpresa", "1x", "--AData", "2021-03-01"},
         "'1x' não é um número inteiro"},
        {{"carregar", "S-1000", "--banco", B, "--AIDEmpresa", "99999999999999999999", "--AData", "2021-03-01"},
         "não é um número"},
        {S1000({"--AIDEmpresa", "2"}), "--AIDEmpresa precisa de exatamente um valor"},
        {{"carregar", "S-1000", "--banco", B, "--AIDEmpresa", "1", "--AData", "01/03/2021"},
         "não é uma data AAAA-MM-DD"},
        {{"carregar", "S-1000", "--banco", B, "--AIDEmpresa", "1", "--AData", "2021-02-30"},
         "não é uma data AAAA-MM-DD"},
        {S1000({"--xis", "1"}), "Argumento desconhecido: '--xis'"},
        {S1000({"sobra"}), "desconhecido: 'sobra'"},
        {S1000({"--sem-grupo", "InfoEmpregador.nada"}), "não existe 'nada'"},
        {S1000({"--sem-grupo", "InfoEmpregador.infoCadastro.NmRazao"}), "não é um grupo"},
        {S1000({"--ambiente", "3"}), "--ambiente é 1"},
        {S1000({"--rastrear", "/nao/existe/rastro"}), "Não foi possível criar o arquivo de rastro"},
        {S1000({"--compacto=nao"}), "--compacto não leva valor"},
        {S1000({"--executar=false"}, "reverter"), "--executar não leva valor"},
        {{"criar-banco", "--banco", "/nao/existe.fdb", "eventos"}, "Informe um só comando: criar-banco ou eventos"},
        {{"eventos", "S-1000", "carregar", "S-1000"}, "Informe um só comando: eventos ou carregar"},
        {{"carregar", "S-1000", "S-1005", "--banco", "x", "--AIDEmpresa", "1"},
         "Informe um só evento: S-1000 ou S-1005"},
        {{"criar-banco", "--banco", "/nao/existe.fdb", "criar-banco"},
         "Informe um só comando: criar-banco ou criar-banco"},
        {{"criar-banco", "--banco", "--exemplo"}, "--banco precisa de exatamente um valor"},
        {S1000({"--grupos", "--compacto"}), "--grupos precisa de exatamente um valor"},
        {S1000({"--rastrear", ""}), "--rastrear precisa de exatamente um valor"},
        {S1000({"--brenco", ""}), "--brenco precisa de exatamente um valor"},
        {{"lote", "S-1200", "--banco", B, "--parte", ""}, "--parte precisa de exatamente um valor"},
        {{"carregar", "S-1200", "--banco", B, "--IdEmpresa", "1", "--Cpf", "-.-", "--DataInicio", "2021-03-01",
          "--DataFim", "2021-03-31"},
         "'-.-' não é um CPF"},
        {S1000({"--executar"}), "Argumento desconhecido: '--executar'"},
        {S1000({"--definir", "InfoEmpregador"}, "reverter"), "CAMINHO=VALOR"},
        {S1000({"--definir", "Nada.x=1"}, "reverter"), "não existe 'Nada'"},
        {S1000({"--definir", "InfoEmpregador.infoCadastro.DadosIsencao.DtDou=31/02/2021"}, "reverter"),
         "não é uma data"},
        {{"reverter", "S-2200", "--banco", B}, "desconhecido: 'S-2200'"},
        {{"eventos", "S-0"}, "Evento desconhecido"},
        {{"eventos", "--esquema"}, "Falta informar o evento"},
        {{"eventos", "S-1000", "--esquema", "--markdown"}, "só uma das opções"},
        {{"criar-banco"}, "Falta informar --banco"},
    };
    for (const auto& [LArgumentos, LTexto] : LCasos) {
        const auto LSaida = Rodar(LArgumentos);
        EXPECT_EQ(2, LSaida.Codigo) << LTexto;
        EXPECT_EQ("", LSaida.Padrao) << LTexto;
        EXPECT_NE(std::string::npos, LSaida.Erros.find(LTexto)) << LTexto << "\n" << LSaida.Erros;
        EXPECT_NE(std::string::npos, LSaida.Erros.find("Uso: esocial-campos")) << LSaida.Erros;
    }
}

TEST(TTestePrograma, FalhaDaCargaSaiComUmENadaNaSaidaPadrao)
{
    const auto LFalta = ParametrosDoBanco("nao-existe.fdb").BancoDeDados;
    const std::pair<std::vector<std::string>, const char*> LCasos[] = {
        {{"carregar", "S-1000", "--banco", LFalta, "--AIDEmpresa", "1", "--AData", "2021-03-01"}, "nao-existe.fdb"},
        {S1000({"--brenco", LFalta}), "nao-existe.fdb"},
        {{"criar-banco", "--banco", Banco()}, "programa.fdb"},
    };
    for (const auto& [LArgumentos, LTexto] : LCasos) {
        const auto LSaida = Rodar(LArgumentos);
        EXPECT_EQ(1, LSaida.Codigo);
        EXPECT_EQ("", LSaida.Padrao);
        EXPECT_NE(std::string::npos, LSaida.Erros.find(LTexto)) << LSaida.Erros;
    }
    EXPECT_EQ(0, Rodar(S1000()).Codigo); // the refused criar-banco left the database as it was
}

TEST(TTestePrograma, OSistemaIrmaoVemDeOutroBancoOuDoMesmo)
{
    const auto Compras = [](const char* ATipoConexao, const std::vector<std::string>& AMais = {}) {
        std::vector<std::string> LArgumentos{
            "carregar",      "S-1250",     "--banco",    Banco(),      "--AIDEstabelecimento", "8101",
            "--ADataInicio", "2021-03-01", "--ADataFim", "2021-03-31", "--ATipoConexao",       ATipoConexao};
        LArgumentos.insert(LArgumentos.end(), AMais.begin(), AMais.end());
        return Rodar(LArgumentos);
    };
    const auto Golden = [](const std::string& ANome) {
        return LerArquivo(std::string(PASTA_DOS_GOLDENS) + "/S-1250/" + ANome + ".json");
    };
    const auto LIrmao = CriarBancoDeTeste("programa-brenco.fdb", true).BancoDeDados;
    EXPECT_EQ(Golden("folha"), Compras("1").Padrao);
    EXPECT_EQ(Golden("brenco"), Compras("2", {"--brenco", Banco()}).Padrao);
    EXPECT_EQ(Golden("externo"), Compras("2", {"--brenco", LIrmao}).Padrao);
    const auto LSemIrmao = Compras("2");
    EXPECT_EQ(1, LSemIrmao.Codigo);
    EXPECT_EQ("", LSemIrmao.Padrao);
    EXPECT_NE(std::string::npos, LSemIrmao.Erros.find("ideEstabAdquir")) << LSemIrmao.Erros;
}

/// The sibling system refuses every transaction that is no snapshot.
TEST(TTestePrograma, OSistemaIrmaoTambemEhLidoEmUmSoInstante)
{
    const auto LIrmao = CriarBancoDeTeste("programa-instante.fdb", true);
    {
        TOvraConnection LConexao(LIrmao);
        LConexao.Executar("CREATE EXCEPTION EX_SEM_INSTANTE 'sem instante'");
        LConexao.Confirmar();
        LConexao.Executar("CREATE TRIGGER SO_INSTANTE ON TRANSACTION START AS BEGIN "
                          "IF (RDB$GET_CONTEXT('SYSTEM', 'ISOLATION_LEVEL') <> 'SNAPSHOT') THEN "
                          "EXCEPTION EX_SEM_INSTANTE; END");
        LConexao.Confirmar();
        EXPECT_THROW(LConexao.Consultar("SELECT 1 FROM RDB$DATABASE"), EDatabaseError);
    }
    const std::vector<std::string> LComuns{"--banco",        Banco(),      "--brenco",   LIrmao.BancoDeDados,
                                           "--ADataInicio",  "2021-03-01", "--ADataFim", "2021-03-31",
                                           "--ATipoConexao", "2"};
    for (auto LLinha : {std::vector<std::string>{"carregar", "S-1250", "--AIDEstabelecimento", "8101"},
                        {"lote", "S-1250", "--IdEmpresa", "81"}}) {
        LLinha.insert(LLinha.end(), LComuns.begin(), LComuns.end());
        const auto LSaida = Rodar(LLinha);
        EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros << LSaida.Padrao;
        EXPECT_NE("", LSaida.Padrao);
    }
}

TEST(TTestePrograma, CarregaEMostraOJson)
{
    const auto LSaida = Rodar(S1000());
    ASSERT_EQ(0, LSaida.Codigo) << LSaida.Erros;
    EXPECT_EQ("", LSaida.Erros);
    EXPECT_EQ(LerArquivo(std::string(PASTA_DOS_GOLDENS) + "/S-1000/empresa1.json"), LSaida.Padrao);

    // Options match without regard to case, before the event or after it.
    const auto LCompacto =
        Rodar({"carregar", "--COMPACTO", "--Banco", Banco(), "s-1000", "--aidempresa", "1", "--ADATA", "2021-03-01"});
    ASSERT_EQ(0, LCompacto.Codigo) << LCompacto.Erros;
    EXPECT_EQ(1, std::count(LCompacto.Padrao.begin(), LCompacto.Padrao.end(), '\n'));
    rapidjson::Document LUm;
    rapidjson::Document LOutro;
    EXPECT_TRUE(LUm.Parse(LSaida.Padrao.c_str()) == LOutro.Parse(LCompacto.Padrao.c_str()));
}

TEST(TTestePrograma, GruposEscolhidosERastro)
{
    const auto Nome = [](const std::vector<std::string>& AMais) {
        const auto LSaida = Rodar(S1000(AMais));
        EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros;
        rapidjson::Document LJson;
        LJson.Parse(LSaida.Padrao.c_str());
        return std::string(LJson["InfoEmpregador"]["infoCadastro"]["NmRazao"].GetString()) + "|" +
               LJson["IdeEmpregador"]["Inscricao"].GetString();
    };
    const std::string LEmpresa = "Agroindústria Ipê Amarelo Ltda.";
    EXPECT_EQ(LEmpresa + "|45987321000160", Nome({"--grupos", ""}));
    EXPECT_EQ("|", Nome({"--grupos", "{00000000-0000-0000-0000-000000000000}"}));
    EXPECT_EQ(LEmpresa + "|", Nome({"--grupos", "{B4A45915-8AFD-4584-A8F7-489D7ED7A40B},{X}"}));
    EXPECT_EQ("|45987321000160",
              Nome({"--sem-grupo", "infoempregador.infocadastro", "--sem-grupo", "InfoEmpregador.idePeriodo"}));

    const auto LSaida = Rodar(S1000({"--rastrear", "-"}));
    std::istringstream LLinhas(LSaida.Erros);
    std::vector<std::string> LComandos;
    for (std::string LLinha; std::getline(LLinhas, LLinha);) {
        rapidjson::Document LJson;
        ASSERT_FALSE(LJson.Parse(LLinha.c_str()).HasParseError()) << LLinha;
        EXPECT_TRUE(LJson["linhas"].IsInt64() && LJson["us"].IsInt64());
        LComandos.emplace_back(LJson["sql"].GetString());
    }
    ASSERT_EQ(8U, LComandos.size());
    EXPECT_EQ("SELECT SC00_EMPRESA.TPINSCRICAO, SC00_EMPRESA.CNPJ\nFROM SC00_EMPRESA\nWHERE SC00_EMPRESA.IDEMPRESA = 1",
              LComandos.front());
}

TEST(TTestePrograma, ORastroNaoApagaBancoNemOutroArquivo)
{
    namespace fs = std::filesystem;
    // The file itself, where a server on this machine holds it.
    const fs::path LArquivo = Banco().substr(Banco().find(":/") + 1);
    const auto LPasta = LArquivo.parent_path();
    const auto LTamanho = fs::file_size(LArquivo);
    fs::create_symlink(LArquivo, LPasta / "atalho");
    fs::create_hard_link(LArquivo, LPasta / "outro-nome.fdb");
    std::ofstream(LPasta / "folha.txt") << "{\"sq: salários\n";
    const auto LNovo = ParametrosDoBanco("novo.fdb").BancoDeDados;
    const std::pair<std::vector<std::string>, fs::path> LCasos[] = {
        {{}, LArquivo},
        {{}, LPasta / ".." / LPasta.filename() / "programa.fdb"},
        {{}, fs::relative(LArquivo)},
        {{}, LPasta / "atalho"},
        {{}, LPasta / "outro-nome.fdb"},
        {{"--brenco", Banco()}, LArquivo},
        {{}, LPasta / "folha.txt"},
    };
    for (const auto& [LMais, LRastro] : LCasos) {
        auto LArgumentos = S1000({"--rastrear", LRastro});
        LArgumentos.insert(LArgumentos.end(), LMais.begin(), LMais.end());
        const auto LSaida = Rodar(LArgumentos);
        EXPECT_EQ(2, LSaida.Codigo) << LRastro;
        EXPECT_EQ("", LSaida.Padrao) << LRastro;
        EXPECT_NE(std::string::npos, LSaida.Erros.find("O rastro apagaria o ")) << LRastro << LSaida.Erros;
        EXPECT_EQ(LTamanho, fs::file_size(LArquivo)) << LRastro;
    }
    EXPECT_EQ("{\"sq: salários\n", LerArquivo(LPasta / "folha.txt"));
    // A database that isn't there yet is none to write a trace to either.
    if (LNovo.find(":/") == std::string::npos) {
        EXPECT_EQ(2, Rodar({"carregar", "S-1000", "--banco", LNovo, "--rastrear", LPasta / "." / "novo.fdb",
                            "--AIDEmpresa", "1", "--AData", "2021-03-01"})
                         .Codigo);
        EXPECT_FALSE(fs::exists(LNovo));
    }
    // A former trace is written anew, and so is an empty file.
    std::ofstream(LPasta / "rastro").flush();
    for (int i = 0; i < 2; ++i) {
        const auto LSaida = Rodar(S1000({"--rastrear", LPasta / "rastro"}));
        EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros;
        const auto LTexto = LerArquivo(LPasta / "rastro");
        EXPECT_EQ(8, std::count(LTexto.begin(), LTexto.end(), '\n'));
    }
}

TEST(TTestePrograma, ReverteEmTudoOuNada)
{
    const std::vector<std::string> LNome{"--definir", "InfoEmpregador.infoCadastro.NmRazao=Ipê = Roxo"};
    const auto LSaida = Rodar(S1000(LNome, "reverter"));
    ASSERT_EQ(0, LSaida.Codigo) << LSaida.Erros;
    EXPECT_EQ(10, std::count(LSaida.Padrao.begin(), LSaida.Padrao.end(), '\n'));
    EXPECT_NE(std::string::npos, LSaida.Padrao.find("SET SC00_EMPRESA.NOME = 'Ipê = Roxo' WHERE"));

    // Two of the ten are refused by design: the others must not stay either.
    auto LMais = LNome;
    LMais.emplace_back("--executar");
    const auto LExecutado = Rodar(S1000(LMais, "reverter"));
    EXPECT_EQ(1, LExecutado.Codigo);
    EXPECT_EQ(LSaida.Padrao, LExecutado.Padrao);
    EXPECT_NE(std::string::npos, LExecutado.Erros.find("2 de 10 comandos recusados")) << LExecutado.Erros;
    EXPECT_EQ(std::string::npos, Rodar(S1000()).Padrao.find("Roxo"));
}

TEST(TTestePrograma, ReverteOCargoEGravaNoBanco)
{
    const auto S1030 = [](const char* AComando, const char* ACargo, std::vector<std::string> AMais) {
        AMais.insert(AMais.begin(), {AComando, "S-1030", "--banco", Banco(), "--AIDCargosDescr", ACargo});
        return Rodar(AMais);
    };
    // A position, a public one by law without a date, a public one.
    for (const auto& [LCargo, LComandos] : {std::pair{"1", 1}, {"7201", 2}, {"8", 3}}) {
        const auto LSaida = S1030("reverter", LCargo, {});
        EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros;
        EXPECT_EQ(LComandos, std::count(LSaida.Padrao.begin(), LSaida.Padrao.end(), '\n')) << LSaida.Padrao;
    }
    const auto LAntes = S1030("carregar", "8", {}).Padrao;
    const std::vector<std::string> LCorrecoes{"--definir", "InfoCargo.DadosCargo.nmCargo=Analista pleno", "--definir",
                                              "InfoCargo.DadosCargo.cargoPublico.leicargo.dtLei=1/6/2011"};
    const std::string LEsperado =
        "UPDATE FP_CARGOSDESCR SET FP_CARGOSDESCR.DESCRICAO = 'Analista pleno', FP_CARGOSDESCR.IDCBO2002 = 8 WHERE "
        "FP_CARGOSDESCR.IDCARGOSDESCR = 8\n"
        "UPDATE FP_CARGOSPUBLICO SET FP_CARGOSPUBLICO.ACUMULOCARGOS = 1, FP_CARGOSPUBLICO.CONTAGEMTEMPO = 1, "
        "FP_CARGOSPUBLICO.DEDICACAOEXCL = 0 WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = 8\n"
        "UPDATE FP_CARGOSPUBLICO SET FP_CARGOSPUBLICO.NUMEROLEI = 1234, FP_CARGOSPUBLICO.DATALEI = '01.06.2011', "
        "FP_CARGOSPUBLICO.SITUACAOLEI = 1 WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = 8\n";
    EXPECT_EQ(LEsperado, S1030("reverter", "8", LCorrecoes).Padrao);
    EXPECT_EQ(LAntes, S1030("carregar", "8", {}).Padrao);

    // A quote breaks the first of the three, and none of them stays.
    auto LQuebradas = LCorrecoes;
    LQuebradas[1] += " d'água";
    LQuebradas.emplace_back("--executar");
    const auto LRecusado = S1030("reverter", "8", LQuebradas);
    EXPECT_EQ(1, LRecusado.Codigo);
    EXPECT_NE(std::string::npos, LRecusado.Erros.find("1 de 3 comandos recusados")) << LRecusado.Erros;
    EXPECT_EQ(LAntes, S1030("carregar", "8", {}).Padrao);

    auto LBoas = LCorrecoes;
    LBoas.emplace_back("--executar");
    const auto LGravado = S1030("reverter", "8", LBoas);
    EXPECT_EQ(0, LGravado.Codigo) << LGravado.Erros;
    EXPECT_EQ(LEsperado, LGravado.Padrao);
    const auto LDepois = S1030("carregar", "8", {}).Padrao;
    EXPECT_NE(std::string::npos, LDepois.find("\"nmCargo\": \"Analista pleno\"")) << LDepois;
    EXPECT_NE(std::string::npos, LDepois.find("\"dtLei\": \"01/06/2011\""));

    const auto LFixa = S1030("reverter", "8", {"--definir", "InfoCargo.NovaValidade.IniValid=2021-01"});
    EXPECT_EQ(2, LFixa.Codigo);
    EXPECT_NE(std::string::npos, LFixa.Erros.find("não pode ser alterada")) << LFixa.Erros;
}

TEST(TTestePrograma, OArgumentoDoS1035AtendePelosDoisNomes)
{
    for (const char* LNome : {"--AIdCargoDescr", "--AIDCargosDescr"}) {
        const auto LSaida = Rodar({"carregar", "S-1035", "--banco", Banco(), LNome, "9"});
        EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros;
        EXPECT_NE(std::string::npos, LSaida.Padrao.find("Assessor público em comissão"));
    }
}

TEST(TTestePrograma, AjudaEEventosEmPortugues)
{
    for (const auto& LArgumentos : {std::vector<std::string>{"--ajuda"},
                                    {"carregar", "-h"},
                                    {"lote", "--AJUDA"},
                                    {"carregar", "S-1000", "--HELP"},
                                    {"reverter", "--ajuda"},
                                    {"eventos", "--ajuda"},
                                    {"criar-banco", "--ajuda"}}) {
        const auto LSaida = Rodar(LArgumentos);
        EXPECT_EQ(0, LSaida.Codigo);
        EXPECT_NE(std::string::npos, LSaida.Padrao.find("Uso: esocial-campos"));
        for (const char* LIngles : {"Usage", "Options", "Subcommand", "Positional", "REQUIRED", "TEXT"})
            EXPECT_EQ(std::string::npos, LSaida.Padrao.find(LIngles)) << LIngles << "\n" << LSaida.Padrao;
    }
    const auto LTodos = Rodar({"eventos"});
    EXPECT_EQ(0, LTodos.Codigo);
    EXPECT_NE(std::string::npos,
              LTodos.Padrao.find("S-1000  Informações do empregador\n        --AIDEmpresa ID --AData AAAA-MM-DD\n"));
    EXPECT_NE(std::string::npos, Rodar({"eventos", "s-1000"}).Padrao.find("data de referência"));
}

TEST(TTestePrograma, SenhaErradaFalhaComOTextoDoServidor)
{
    const auto LSaida = Rodar(S1000({"--senha", "errada"}));
    // The embedded engine trusts whoever may read the file.
    if (std::getenv("TESTES_LIGACAO") == nullptr) {
        EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros;
        return;
    }
    EXPECT_EQ(1, LSaida.Codigo);
    EXPECT_EQ("", LSaida.Padrao);
    EXPECT_NE(std::string::npos, LSaida.Erros.find("user name and password are not defined")) << LSaida.Erros;
}

/// The engine itself ends the connection in the middle of a load.
// The program has an engine of its own only for a file.
TEST(TTestePrograma, SemMotorOuDeOutraVersaoOErroDizOQueFazer)
{
    if (std::getenv("TESTES_LIGACAO") != nullptr)
        GTEST_SKIP() << "TESTES_LIGACAO";
    // A Firebird whose engines are nowhere.
    const auto LSemMotor = ParametrosDoBanco("sem-motor").BancoDeDados;
    std::filesystem::create_directory(LSemMotor);
    std::ofstream LConfiguracao(LSemMotor + "/firebird.conf");
    LConfiguracao.close();
    std::ofstream LPlugins(LSemMotor + "/plugins.conf");
    for (const char* LMotor : {"Engine12", "Engine13"})
        LPlugins << "Plugin = " << LMotor << " {\n  Module = " << LSemMotor << "/nenhum\n}\n";
    LPlugins.close();
    setenv("FIREBIRD", LSemMotor.c_str(), 1);
    const auto LSaida = Rodar(S1000());
    unsetenv("FIREBIRD");
    EXPECT_EQ(LSaida.Codigo, 1);
    EXPECT_EQ(LSaida.Padrao, "");
    EXPECT_NE(LSaida.Erros.find("instale o pacote firebird"), std::string::npos) << LSaida.Erros;

    // The version of the on-disk structure stands in the header page.
    constexpr std::streamoff ONDE = 18;
    const auto LOutraVersao = ParametrosDoBanco("outra-versao.fdb").BancoDeDados;
    std::filesystem::copy_file(Banco(), LOutraVersao);
    std::fstream LArquivo(LOutraVersao, std::ios::in | std::ios::out | std::ios::binary);
    LArquivo.seekp(ONDE).put(99);
    LArquivo.close();
    const auto LRecusada =
        Rodar({"carregar", "S-1000", "--banco", LOutraVersao, "--AIDEmpresa", "1", "--AData", "2021-03-01"});
    EXPECT_EQ(LRecusada.Codigo, 1);
    EXPECT_NE(LRecusada.Erros.find("gbak -b"), std::string::npos) << LRecusada.Erros;
    EXPECT_NE(LRecusada.Erros.find("unsupported on-disk structure"), std::string::npos) << LRecusada.Erros;
}

TEST(TTesteConexaoPerdida, CargaFalhaComOTextoDoMotorEOProcessoSegue)
{
    const auto LParametros = CriarBancoDeTeste("perdida.fdb", true);
    TOvraConnection LOutra(LParametros);
    {
        TOvraConnection LConexao(LParametros);
        DefinirOvraConnection(&LConexao);
        const auto LId = Consultar("SELECT CURRENT_CONNECTION FROM RDB$DATABASE");
        tabelas::TTarvoESocialCamposS1000 LEvento(1, D(2021, 3, 1));
        // After the first statement of the event; the engine takes a moment to end it.
        LConexao.DefinirObservador([&, LFeito = false](const TExecucaoSql&) mutable {
            if (!LFeito) {
                EXPECT_TRUE(
                    LOutra.ExecutouSQL({"DELETE FROM MON$ATTACHMENTS WHERE MON$ATTACHMENT_ID = " + LId}, true).Sucesso);
            }
            LFeito = true;
        });
        try {
            for (int i = 0; i < 1000; ++i)
                LEvento.CarregarDados();
            ADD_FAILURE() << "a conexão continua";
        } catch (const EDatabaseError& LErro) {
            EXPECT_NE(0, LErro.Codigo());
            EXPECT_NE(std::string::npos, Minusculas(LErro.what()).find("connection")) << LErro.what();
        }
        // What was read stays, and the tree fails in the same way as often as it is asked.
        EXPECT_EQ("45987321000160", LEvento.IdeEmpregador.Inscricao);
        EXPECT_THROW(LEvento.CarregarDados(), EDatabaseError);
    }
    TOvraConnection LNova(LParametros);
    DefinirOvraConnection(&LNova);
    tabelas::TTarvoESocialCamposS1000 LEvento(1, D(2021, 3, 1));
    LEvento.CarregarDados();
    EXPECT_EQ("Agroindústria Ipê Amarelo Ltda.", LEvento.InfoEmpregador.infoCadastro.NmRazao);
    DefinirOvraConnection(nullptr);
}

} // namespace
} // namespace tarvo::testes
