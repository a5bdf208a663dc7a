#include <chrono>
#include <cstdio>
#include <random>
#include <sstream>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnEventosDoCatalogo.h"
#include "apoio/UnPrograma.h"
#include "apoio/UnTestesLongos.h"
#include "imports/valores/UnOvraConversoes.h"

// Every command of the program with every argument missing, given twice or malformed. The database doesn't exist: what
// is wrong with the line is told before anybody looks for it.

namespace tarvo::testes {
namespace {

constexpr char BANCO[] = "/nao/existe/banco.fdb";
constexpr char USO[] = "Uso: esocial-campos";

std::size_t LRodadas = 0;

/// A sanitized program takes a tenth of a second to start and end: a short run tries one command of each event there.
#ifdef __SANITIZE_ADDRESS__
const bool SO_CARREGAR = !TestesLongos();
#else
const bool SO_CARREGAR = false;
#endif

std::string NaLinha(const std::vector<std::string>& AArgumentos)
{
    std::string LTexto;
    for (const auto& LArgumento : AArgumentos)
        LTexto += " '" + LArgumento + "'";
    return LTexto;
}

void ConferirUsoErrado(const std::vector<std::string>& AArgumentos, const std::string& AQual)
{
    const auto LSaida = Rodar(AArgumentos);
    ++LRodadas;
    EXPECT_EQ(2, LSaida.Codigo) << NaLinha(AArgumentos) << "\n" << LSaida.Erros;
    EXPECT_EQ("", LSaida.Padrao) << NaLinha(AArgumentos);
    EXPECT_NE(std::string::npos, Maiusculas(LSaida.Erros).find(Maiusculas(AQual)))
        << NaLinha(AArgumentos) << " não diz " << AQual << "\n"
        << LSaida.Erros;
    EXPECT_NE(std::string::npos, LSaida.Erros.find(USO)) << NaLinha(AArgumentos) << "\n" << LSaida.Erros;
}

std::vector<std::string> ValoresMalformados(const TArgumentoDeEvento& AArgumento)
{
    switch (AArgumento.Tipo) {
    case TTipoArgumento::taId:
        return {"", " ", "abc", "1.5", "1,5", "1 2", "0x1", "1e3", "9223372036854775808", "１"};
    case TTipoArgumento::taInteiro:
        return {"",
                "um",
                "0,5",
                "2147483648",
                AArgumento.UltimoOrdinal >= 0 ? "99" : "x",
                "1-",
                AArgumento.UltimoOrdinal >= 0 ? std::to_string(AArgumento.PrimeiroOrdinal - 1) : "-"};
    case TTipoArgumento::taData:
        return {"",           "2021-02-30",  "01/03/2021", "2021-3-1", "2021-13-01",
                "0000-00-00", "2021-03-01x", "20210301",   "hoje",     "2021-03-01 10:00"};
    case TTipoArgumento::taCpf:
        return {"", "abc", ".-", "111' OR '1'='1", "111;222", "１１１"};
    case TTipoArgumento::taTexto:
        break;
    }
    return {};
}

/// The line of an event with each argument good but for what AMudar makes of the pair at APosicao.
std::vector<std::string> Linha(const std::string& AComando, const TEventoDoCatalogo& AEvento,
                               const std::vector<TArgumentoDeEvento>& AArgumentos, std::size_t APosicao,
                               const std::vector<std::string>& AEmVezDele)
{
    std::vector<std::string> LLinha{AComando, AEvento.Codigo, "--banco", BANCO};
    for (std::size_t i = 0; i < AArgumentos.size(); ++i)
        if (i != APosicao)
            LLinha.insert(LLinha.end(), {std::string("--") + AArgumentos[i].Nome, ArgumentoBom(AArgumentos[i])});
    LLinha.insert(LLinha.end(), AEmVezDele.begin(), AEmVezDele.end());
    return LLinha;
}

class TTesteUsoErrado : public ::testing::TestWithParam<std::string> {
protected:
    static void TearDownTestSuite()
    {
        std::printf("Uso errado: %zu linhas de comando%s\n", LRodadas, SO_CARREGAR ? ", só de carregar" : "");
    }

    static void Provar(const std::string& AComando, const TEventoDoCatalogo& AEvento,
                       const std::vector<TArgumentoDeEvento>& AArgumentos)
    {
        // The good line fails for want of the database alone.
        EXPECT_EQ(1, Rodar(Linha(AComando, AEvento, AArgumentos, AArgumentos.size(), {})).Codigo) << AEvento.Codigo;
        ConferirUsoErrado(Linha(AComando, AEvento, AArgumentos, AArgumentos.size(), {"--xis", "1"}), "--xis");
        for (std::size_t i = 0; i < AArgumentos.size(); ++i) {
            const auto LNome = std::string("--") + AArgumentos[i].Nome;
            const auto LBom = ArgumentoBom(AArgumentos[i]);
            const auto Com = [&](const std::vector<std::string>& AEmVezDele) {
                return Linha(AComando, AEvento, AArgumentos, i, AEmVezDele);
            };
            if (AArgumentos[i].Obrigatorio)
                ConferirUsoErrado(Com({}), LNome);
            ConferirUsoErrado(Com({LNome}), LNome);
            ConferirUsoErrado(Com({LNome, LBom, LNome, LBom}), LNome);
            const auto LRuins = ValoresMalformados(AArgumentos[i]);
            // A short run takes some of them, others for the next argument.
            const auto LSalto = Intervalo(LRuins.size(), 3);
            for (auto j = i % LSalto; j < LRuins.size(); j += LSalto)
                ConferirUsoErrado(Com({LNome, LRuins[j]}), LNome);
        }
    }
};

TEST_P(TTesteUsoErrado, CadaArgumentoQueFaltaSeRepeteOuNaoServe)
{
    const auto& LEvento = BuscarEventoDoCatalogo(GetParam());
    Provar("carregar", LEvento, LEvento.Argumentos);
    if (SO_CARREGAR)
        return;
    if (LEvento.Lote)
        Provar("lote", LEvento, LEvento.Lote->Argumentos);
    if (LEvento.Construir.TemReversao())
        Provar("reverter", LEvento, LEvento.Argumentos);
}

INSTANTIATE_TEST_SUITE_P(Eventos, TTesteUsoErrado, ::testing::ValuesIn(EventosDoCatalogo()), NomeDoEvento);

/// The options of a command as its help tells them: the name, and whether it takes a value.
std::vector<std::pair<std::string, bool>> OpcoesDaAjuda(const std::string& AComando)
{
    std::istringstream LAjuda(Rodar({AComando, "--ajuda"}).Padrao);
    std::vector<std::pair<std::string, bool>> LOpcoes;
    for (std::string LLinha; std::getline(LAjuda, LLinha);) {
        const auto LInicio = LLinha.find_first_not_of(' ');
        if (LInicio == std::string::npos || LInicio == 0 || LLinha.compare(LInicio, 2, "--") != 0)
            continue;
        const auto LFim = LLinha.find(' ', LInicio);
        LOpcoes.emplace_back(LLinha.substr(LInicio, LFim - LInicio),
                             LFim + 1 < LLinha.size() && LLinha[LFim + 1] != ' ');
    }
    return LOpcoes;
}

/// A line of each command that is good up to its database.
const std::vector<std::vector<std::string>>& LinhasBoas()
{
    static const std::vector<std::vector<std::string>> LLinhas{
        {"criar-banco", "--banco", BANCO},
        {"carregar", "S-1000", "--banco", BANCO, "--AIDEmpresa", "1", "--AData", "2021-03-01"},
        {"reverter", "S-1030", "--banco", BANCO, "--AIDCargosDescr", "1"},
        {"lote", "S-1005", "--banco", BANCO, "--IdEmpresa", "1", "--AData", "2021-03-01"},
        {"incidencias", "--banco", BANCO},
    };
    return LLinhas;
}

TEST(TTesteOpcoesDoPrograma, CadaOpcaoSemValorOuRepetida)
{
    std::size_t LOpcoes = 0;
    for (const auto& LBoa : LinhasBoas()) {
        const auto Com = [&](std::vector<std::string> AMais) {
            AMais.insert(AMais.begin(), LBoa.begin(), LBoa.end());
            return AMais;
        };
        for (const auto& [LOpcao, LComValor] : OpcoesDaAjuda(LBoa.front())) {
            ++LOpcoes;
            const auto& LNome = LOpcao;
            if (!LComValor) {
                ConferirUsoErrado(Com({LNome + "=sim"}), LNome);
                continue;
            }
            ConferirUsoErrado(Com({LNome}), LNome);
            // These two may be repeated; a value that is none is told with the load.
            if (LNome != "--definir" && LNome != "--sem-grupo")
                ConferirUsoErrado(Com({LNome, "1", LNome, "1"}), LNome);
        }
    }
    EXPECT_GT(LOpcoes, 30U) << "the help's form has changed";
    ConferirUsoErrado({"incidencias", "--banco", BANCO}, "--verba");
}

/// Lines put together at random end, with one of the three exits, and nothing on standard output but a result.
TEST(TTesteOpcoesDoPrograma, LinhasAoAcaso)
{
    std::vector<std::string> LPecas{"",        " ",          "-",       "--",       "---",    "=",
                                    "--=",     "-h",         "--ajuda", "S-1000",   "s-9999", "1",
                                    "-1",      "ç",          "\xFF",    "--banco=", "@x",     "[a]",
                                    "--xis=1", "2021-03-01", "A.b=1",   "1/2",      "0/0",    "9999999999999999999/1"};
    for (const auto& LBoa : LinhasBoas()) {
        LPecas.insert(LPecas.end(), LBoa.begin(), LBoa.end());
        for (const auto& LOpcao : OpcoesDaAjuda(LBoa.front()))
            LPecas.push_back(LOpcao.first);
    }
    // What would be written into the folder of the tests.
    std::erase_if(LPecas, [](const std::string& APeca) { return APeca == "--rastrear"; });
    std::mt19937 LSorteio(14);
    const auto Ate = [&](std::size_t AMaximo) {
        return std::uniform_int_distribution<std::size_t>(0, AMaximo)(LSorteio);
    };
    const auto LFim = std::chrono::steady_clock::now() + std::chrono::seconds(TestesLongos() ? 120 : 4);
    int LFeitas = 0;
    for (; LFeitas < (TestesLongos() ? 20'000 : 300) && std::chrono::steady_clock::now() < LFim; ++LFeitas) {
        auto LLinha = Ate(1) == 0 ? LinhasBoas()[Ate(LinhasBoas().size() - 1)] : std::vector<std::string>();
        if (LLinha.empty() && Ate(3) > 0)
            LLinha.push_back(LinhasBoas()[Ate(LinhasBoas().size() - 1)].front());
        for (auto LMais = Ate(4); LMais > 0; --LMais) {
            const auto LOnde = static_cast<std::ptrdiff_t>(Ate(LLinha.size()));
            LLinha.insert(LLinha.begin() + LOnde, LPecas[Ate(LPecas.size() - 1)]);
        }
        // The only place where a database of that name could be made.
        if (!LLinha.empty() && LLinha.front() == "criar-banco" &&
            NaLinha(LLinha).find(std::string("'--banco' '") + BANCO) == std::string::npos)
            continue;
        const auto LSaida = Rodar(LLinha);
        SCOPED_TRACE(NaLinha(LLinha));
        EXPECT_TRUE(LSaida.Codigo >= 0 && LSaida.Codigo <= 2) << LSaida.Codigo;
        EXPECT_EQ(LSaida.Codigo == 0, !LSaida.Padrao.empty()) << LSaida.Padrao;
        EXPECT_EQ(LSaida.Codigo != 0, !LSaida.Erros.empty()) << LSaida.Erros;
        EXPECT_EQ(LSaida.Codigo == 2, LSaida.Erros.find(USO) != std::string::npos) << LSaida.Erros;
        if (::testing::Test::HasFailure())
            break;
    }
    std::printf("Linhas ao acaso: %d\n", LFeitas);
}

} // namespace
} // namespace tarvo::testes
