#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnPrograma.h"

namespace tarvo::testes {
namespace {

class TTesteComandoLote : public ::testing::Test {
protected:
    static void SetUpTestSuite() { FParametros = CriarBancoDeTeste("lote.fdb", true); }

    static TSaida RodarLote(std::vector<std::string> AMais = {}, TDestinoDosErros ADestino = TDestinoDosErros::Arquivo)
    {
        std::vector<std::string> LArgumentos{"lote",        "S-1200",    "--banco",      FParametros.BancoDeDados,
                                             "--IdEmpresa", "1",         "--DataInicio", "2021-03-01",
                                             "--DataFim",   "2021-03-31"};
        LArgumentos.insert(LArgumentos.end(), AMais.begin(), AMais.end());
        return Rodar(LArgumentos, ADestino);
    }
    static std::vector<std::string> Linhas(const TSaida& ASaida)
    {
        std::vector<std::string> LLinhas;
        for (std::size_t LInicio = 0, LFim; (LFim = ASaida.Padrao.find('\n', LInicio)) != std::string::npos;
             LInicio = LFim + 1)
            LLinhas.push_back(ASaida.Padrao.substr(LInicio, LFim - LInicio));
        return LLinhas;
    }

    static inline TParametrosConexao FParametros;
};

TEST_F(TTesteComandoLote, AsPartesJuntasSaoOTodo)
{
    const auto LTudo = RodarLote();
    EXPECT_EQ(0, LTudo.Codigo) << LTudo.Erros;
    EXPECT_EQ("", LTudo.Erros) << "no bar where there is no terminal";
    const auto LLinhas = Linhas(LTudo);
    ASSERT_GT(LLinhas.size(), 10u);
    EXPECT_TRUE(LLinhas[0].starts_with("{\"chave\":\"101.112.223-54\",\"evento\":{\"IdeTrabalhador\":")) << LLinhas[0];
    for (std::size_t LParte = 1; LParte <= 3; ++LParte) {
        std::vector<std::string> LEsperadas;
        for (auto LIndice = LParte - 1; LIndice < LLinhas.size(); LIndice += 3)
            LEsperadas.push_back(LLinhas[LIndice]);
        EXPECT_EQ(LEsperadas, Linhas(RodarLote({"--parte", std::to_string(LParte) + "/3"})));
    }
    const auto LNenhuma = RodarLote({"--parte", "9999/9999"});
    EXPECT_EQ(0, LNenhuma.Codigo);
    EXPECT_EQ("", LNenhuma.Padrao);
}

TEST_F(TTesteComandoLote, UmaChaveQueFalhaNaoParaAsOutras)
{
    const auto LQuantidade = Linhas(RodarLote()).size();
    {
        TOvraConnection LConexao(FParametros);
        LConexao.Executar("INSERT INTO FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (-1, 1, 'x')");
        LConexao.Executar("INSERT INTO EMPREGADOS (IDEMPREGADO, IDEMPRESA, CPF, IDCATEGORIAESOCIAL) VALUES (-1, 1, "
                          "'000.000.000-00', -1)");
        LConexao.Confirmar();
    }
    const auto LSaida = RodarLote({}, TDestinoDosErros::Terminal);
    EXPECT_EQ(1, LSaida.Codigo);
    const auto LLinhas = Linhas(LSaida);
    ASSERT_EQ(LQuantidade + 1, LLinhas.size());
    EXPECT_TRUE(LLinhas[0].starts_with("{\"chave\":\"000.000.000-00\",\"erro\":\"")) << LLinhas[0];
    EXPECT_TRUE(LLinhas[1].starts_with("{\"chave\":\"101.112.223-54\",\"evento\":{"));
    EXPECT_NE(std::string::npos, LSaida.Erros.find("S-1200 [")) << LSaida.Erros;
    EXPECT_TRUE(LSaida.Erros.ends_with("\r\x1b[K")) << "the bar is wiped off";
    EXPECT_EQ(std::string::npos, LSaida.Erros.find("\x1b[K\r\x1b[K")) << "not for lines that go elsewhere";
}

/// The constructor of the group fills a list, with two items for most places and with none for the others.
TEST_F(TTesteComandoLote, CaminhoQueSoAlgumasChavesTemNaoParaAsOutras)
{
    const auto Lotacoes = [](const std::vector<std::string>& AMais) {
        std::vector<std::string> LArgumentos{"lote",        "S-1020", "--banco", FParametros.BancoDeDados,
                                             "--IdEmpresa", "1",      "--AData", "2021-03-31"};
        LArgumentos.insert(LArgumentos.end(), AMais.begin(), AMais.end());
        return Rodar(LArgumentos);
    };
    const auto LTudo = Linhas(Lotacoes({}));
    const auto LSaida =
        Lotacoes({"--sem-grupo", "InfoLotacao.DadosLotacao.FpasLotacao.InfoProcJudTerceiros.ProcJudTerceiro[1]"});
    EXPECT_EQ(1, LSaida.Codigo) << LSaida.Erros;
    const auto LLinhas = Linhas(LSaida);
    ASSERT_EQ(LTudo.size(), LLinhas.size());
    std::size_t LComErro = 0;
    for (std::size_t i = 0; i < LLinhas.size(); ++i) {
        const bool LTem = LTudo[i].find("\"ProcJudTerceiro\":[{") != std::string::npos;
        LComErro += LTem ? 0 : 1;
        EXPECT_EQ(LTem, LLinhas[i].find("\"erro\":\"'ProcJudTerceiro[1]' está vazio") == std::string::npos)
            << LLinhas[i];
    }
    EXPECT_TRUE(LComErro > 0 && LComErro < LLinhas.size()) << LComErro;
}

TEST_F(TTesteComandoLote, UsoErrado)
{
    for (const auto& [LArgumentos, LTexto] :
         {std::pair<std::vector<std::string>, const char*>{{"--parte", "0/2"}, "--parte é K/N"},
          {{"--parte", "3/2"}, "--parte é K/N"},
          {{"--parte", "1"}, "--parte é K/N"},
          {{"--parte", "a/b"}, "--parte é K/N"},
          {{"--Cpf", "1"}, "Argumento desconhecido: '--Cpf'"},
          {{"--IndApuracao", "2"}, "--IndApuracao"},
          {{"--sem-grupo", "Nada"}, "não existe 'Nada'"}}) {
        const auto LSaida = RodarLote(LArgumentos);
        EXPECT_EQ(2, LSaida.Codigo) << LTexto;
        EXPECT_EQ("", LSaida.Padrao);
        EXPECT_NE(std::string::npos, LSaida.Erros.find(LTexto)) << LSaida.Erros;
        EXPECT_NE(std::string::npos, LSaida.Erros.find("Uso: esocial-campos lote")) << LSaida.Erros;
    }
}

} // namespace
} // namespace tarvo::testes
