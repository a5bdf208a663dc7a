#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnPrograma.h"

namespace tarvo::testes {
namespace {

class TTesteComandoIncidencias : public ::testing::Test {
protected:
    static void SetUpTestSuite() { FParametros = CriarBancoDeTeste("comandoincidencias.fdb", true); }

    static TSaida RodarIncidencias(std::vector<std::string> AArgumentos,
                                   TDestinoDosErros ADestino = TDestinoDosErros::Arquivo)
    {
        AArgumentos.insert(AArgumentos.begin(), {"incidencias", "--banco", FParametros.BancoDeDados});
        return Rodar(AArgumentos, ADestino);
    }
    /// Runs a statement and confirms it.
    static void Alterar(const std::string& ASql)
    {
        TOvraConnection LConexao(FParametros);
        LConexao.Executar(ASql);
        LConexao.Confirmar();
    }
    static std::int64_t Contar(const std::string& ATabelaECondicao)
    {
        return TOvraConnection(FParametros).Consultar("SELECT COUNT(*) FROM " + ATabelaECondicao).Inteiro(0, 0);
    }

    static inline TParametrosConexao FParametros;
};

TEST_F(TTesteComandoIncidencias, MostraOsCodigosEmUmaLinha)
{
    auto LSaida = RodarIncidencias({"--verba", "100"});
    EXPECT_EQ("{\"FCodVerba\":1,\"FListInss\":[11,91],\"FListIrrf\":[11,15,91,95],\"FListFgts\":[11,91],"
              "\"FListCs\":[11,91]}\n",
              LSaida.Padrao);
    EXPECT_EQ("", LSaida.Erros);
    EXPECT_EQ(0, LSaida.Codigo);
    LSaida = RodarIncidencias({"--VERBA", "100", "--inss", "3", "--fgts", "1", "--cs", "2"});
    EXPECT_EQ("{\"FCodVerba\":1,\"FListInss\":[91],\"FListIrrf\":[11,91,95],\"FListFgts\":[11],\"FListCs\":[]}\n",
              LSaida.Padrao);
    LSaida = RodarIncidencias({"--verba", "160"});
    EXPECT_EQ("{\"FCodVerba\":0,\"FListInss\":[],\"FListIrrf\":[],\"FListFgts\":[],\"FListCs\":[]}\n", LSaida.Padrao);
    EXPECT_EQ(0, LSaida.Codigo);
}

TEST_F(TTesteComandoIncidencias, OAlertaVaiParaASaidaDeErros)
{
    const auto LSaida = RodarIncidencias({"--verba", "100", "--irrf", "2"});
    EXPECT_NE(std::string::npos, LSaida.Padrao.find("\"FListIrrf\":[15,95]"));
    EXPECT_EQ("A busca de incidências das verbas está retornando mais de um valor para cada tipo de retorno :/\n",
              LSaida.Erros);
    EXPECT_EQ(0, LSaida.Codigo);
}

TEST_F(TTesteComandoIncidencias, UsoErrado)
{
    for (const auto& LArgumentos : {std::vector<std::string>{},
                                    {"--verba", "x"},
                                    {"--verba", "1", "--inss", "4"},
                                    {"--verba", "1", "--inss", "-1"},
                                    {"--verba", "1", "--carga-inicial"},
                                    {"--atualizar", "100", "--cs", "1"},
                                    {"--atualizar", "1,5"}}) {
        const auto LSaida = RodarIncidencias(LArgumentos);
        EXPECT_EQ(2, LSaida.Codigo) << ::testing::PrintToString(LArgumentos);
        EXPECT_EQ("", LSaida.Padrao);
        EXPECT_NE(std::string::npos, LSaida.Erros.find("Uso: esocial-campos incidencias")) << LSaida.Erros;
    }
}

TEST_F(TTesteComandoIncidencias, AtualizaUmaVerbaQueExista)
{
    Alterar("DELETE FROM FP_ESOCIALINCIDIRRF WHERE IDVERBA = 100");
    auto LSaida = RodarIncidencias({"--atualizar", "100"});
    EXPECT_EQ(0, LSaida.Codigo) << LSaida.Erros;
    EXPECT_EQ("", LSaida.Padrao);
    EXPECT_EQ(4, Contar("FP_ESOCIALINCIDIRRF WHERE IDVERBA = 100"));
    // The library would store code 0 for a rubric that isn't there.
    LSaida = RodarIncidencias({"--atualizar", "99999"});
    EXPECT_EQ(1, LSaida.Codigo);
    EXPECT_NE(std::string::npos, LSaida.Erros.find("99999 não existe"));
    EXPECT_EQ(0, Contar("FP_ESOCIALINCIDCP WHERE IDVERBA = 99999"));
}

TEST_F(TTesteComandoIncidencias, CargaInicialMostraABarraSoNoTerminalENomeiaAsQueFalham)
{
    Alterar("DELETE FROM FP_ESOCIALINCIDCP");
    auto LSaida = RodarIncidencias({"--carga-inicial"});
    EXPECT_EQ(0, LSaida.Codigo);
    EXPECT_EQ("", LSaida.Padrao + LSaida.Erros);
    EXPECT_GT(Contar("FP_ESOCIALINCIDCP"), Contar("TAB_VERBAS"));

    const auto LTotal = "/" + std::to_string(Contar("TAB_VERBAS")) + " ";
    LSaida = RodarIncidencias({"--carga-inicial"}, TDestinoDosErros::Terminal);
    EXPECT_EQ(0, LSaida.Codigo);
    EXPECT_EQ("", LSaida.Padrao);
    EXPECT_NE(std::string::npos, LSaida.Erros.find("Incidências [")) << LSaida.Erros;
    EXPECT_NE(std::string::npos, LSaida.Erros.find(" 1" + LTotal)) << LSaida.Erros;
    EXPECT_TRUE(LSaida.Erros.ends_with("\r\x1b[K")) << "the bar is wiped off";

    Alterar("ALTER TABLE FP_ESOCIALINCIDFGTS ADD CONSTRAINT SEM_21 CHECK (IDESOCIALTABELA <> 999600021)");
    LSaida = RodarIncidencias({"--carga-inicial"});
    EXPECT_EQ(1, LSaida.Codigo);
    EXPECT_TRUE(LSaida.Erros.starts_with("Verba 150: ")) << LSaida.Erros;
    EXPECT_NE(std::string::npos, LSaida.Erros.find("SEM_21"));
    EXPECT_EQ(0, Contar("FP_ESOCIALINCIDCSIND WHERE IDVERBA = 150"));
    EXPECT_EQ(2, Contar("FP_ESOCIALINCIDCSIND WHERE IDVERBA = 172"));
}

} // namespace
} // namespace tarvo::testes
