// Measures loads against a client that does nothing but run their statements, and the growth of a batch with the
// number of workers. Everything of a ratio is measured in one run, interleaved.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>

#include "banco/UnBancoEmbutido.h"
#include "bench/UnClienteNu.h"
#include "bench/UnGeradorDeEmpresa.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/banco/UnOvraScriptSql.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"

namespace tarvo::bancada {

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t SEMENTE = 20210301;

struct TOpcoes {
    fs::path Saida = "build/bancada";
    std::vector<int> Trabalhadores = {100, 1'000, 10'000};
    int Repeticoes = 9;
};

struct TEventoMedido {
    std::string Codigo;
    std::map<std::string, std::string> Argumentos;
    std::vector<TComandoGravado> Comandos;
    std::size_t Preparados = 0;
    long PicoDeMemoriaKb = 0;
};

std::vector<TEventoMedido> EventosMedidos()
{
    const std::map<std::string, std::string> LMes = {{"DataInicio", "2021-03-01"}, {"DataFim", "2021-03-31"}};
    const auto LComMes = [&](std::map<std::string, std::string> AArgumentos) {
        AArgumentos.insert(LMes.begin(), LMes.end());
        return AArgumentos;
    };
    return {{"S-1000", {{"AIDEmpresa", "1"}, {"AData", "2021-03-01"}}, {}},
            {"S-1200", LComMes({{"IdEmpresa", "1"}, {"Cpf", "101.112.223-54"}}), {}},
            {"S-1210", LComMes({{"IdEmpresa", "1"}, {"Cpf", "10111222354"}, {"DataInicioVigencia", "2018-07-01"}}), {}},
            {"S-2200", {{"AIDEmpresa", "1"}, {"AIDEmpregado", "1"}, {"ADataGeracao", "2021-03-31"}}, {}}};
}

TParametrosConexao CriarBancoDoExemplo(const fs::path& AArquivo)
{
    fs::remove(AArquivo);
    TParametrosConexao LParametros;
    LParametros.BancoDeDados = AArquivo.string();
    TOvraConnection::CriarBanco(LParametros);
    TOvraConnection LConexao(LParametros);
    for (const auto* LScripts : {&ScriptsDoEsquema(), &ScriptsDoExemplo()})
        for (const auto& LScript : *LScripts)
            ExecutarScriptSql(LConexao, LScript.Texto);
    LConexao.Confirmar();
    return LParametros;
}

void Carregar(TOvraConnection& AConexao, const TEventoMedido& AEvento)
{
    const auto LEvento = ConstruirEvento(AEvento.Codigo, AEvento.Argumentos);
    LEvento.Evento->CarregarDados();
    AConexao.Desfazer();
}

/// The statements of a load, as the observer tells them.
std::vector<TComandoGravado> Gravar(TOvraConnection& AConexao, const TEventoMedido& AEvento)
{
    std::vector<TComandoGravado> LComandos;
    AConexao.DefinirObservador([&](const TExecucaoSql& AExecucao) {
        LComandos.push_back({std::string(AExecucao.Sql), AExecucao.Linhas});
    });
    Carregar(AConexao, AEvento);
    AConexao.DefinirObservador({});
    return LComandos;
}

struct TProcesso {
    double Segundos = 0;
    long PicoDeMemoriaKb = 0;
};

/// Runs the program, its result going to a file; std::runtime_error when it doesn't end well.
TProcesso RodarPrograma(const std::vector<std::string>& AArgumentos, const fs::path& ASaida)
{
    std::vector<char*> LTextos;
    LTextos.reserve(AArgumentos.size() + 1);
    for (const auto& LArgumento : AArgumentos)
        LTextos.push_back(const_cast<char*>(LArgumento.c_str()));
    LTextos.push_back(nullptr);
    const auto LInicio = std::chrono::steady_clock::now();
    const pid_t LFilho = fork();
    if (LFilho == 0) {
        const int LSaida = open(ASaida.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (LSaida < 0 || dup2(LSaida, STDOUT_FILENO) < 0)
            _exit(126);
        execv(PROGRAMA, LTextos.data());
        _exit(127);
    }
    int LEstado = 0;
    rusage LUso{};
    if (LFilho < 0 || wait4(LFilho, &LEstado, 0, &LUso) != LFilho || LEstado != 0)
        throw std::runtime_error("O programa não terminou bem: " + AArgumentos[1]);
    return {std::chrono::duration<double>(std::chrono::steady_clock::now() - LInicio).count(), LUso.ru_maxrss};
}

std::vector<std::string> LinhaDoPrograma(const char* AComando, const std::string& ABanco, const std::string& ACodigo,
                                         const std::map<std::string, std::string>& AArgumentos)
{
    std::vector<std::string> LLinha = {PROGRAMA, AComando, ACodigo, "--banco", ABanco};
    for (const auto& [LNome, LValor] : AArgumentos) {
        LLinha.push_back("--" + LNome);
        LLinha.push_back(LValor);
    }
    return LLinha;
}

/// Keeps the medians beside printing everything.
class TRelator : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& ARodadas) override
    {
        for (const auto& LRodada : ARodadas) {
            if (LRodada.error_occurred)
                Falhou = true;
            if (LRodada.run_type == Run::RT_Aggregate && LRodada.aggregate_name == "median")
                Medianas[LRodada.run_name.function_name] = LRodada.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(ARodadas);
    }
    /// Microseconds by the name of the benchmark.
    std::map<std::string, double> Medianas;
    bool Falhou = false;
};

template <class T>
void Registrar(const std::string& ANome, int ARepeticoes, T AFazer)
{
    benchmark::RegisterBenchmark(ANome.c_str(),
                                 [AFazer](benchmark::State& AEstado) {
                                     try {
                                         for ([[maybe_unused]] auto LVez : AEstado)
                                             AFazer();
                                     } catch (const std::exception& LErro) {
                                         AEstado.SkipWithError(LErro.what());
                                     }
                                 })
        ->Unit(benchmark::kMicrosecond)
        ->UseRealTime()
        ->Repetitions(ARepeticoes)
        ->ReportAggregatesOnly(true);
}

std::string Nome(const TEventoMedido& AEvento, const char* AOque) { return AEvento.Codigo + "/" + AOque; }

/// Registers and runs the four cases of each event; true when every one was measured.
bool MedirCargas(const TOpcoes& AOpcoes, const TParametrosConexao& AParametros, std::vector<TEventoMedido>& AEventos,
                 TRelator& ARelator)
{
    std::vector<std::unique_ptr<TClienteNu>> LClientes;
    TOvraConnection LConexao(AParametros);
    DefinirOvraConnection(&LConexao);
    for (auto& LEvento : AEventos) {
        LEvento.Comandos = Gravar(LConexao, LEvento);
        auto& LNu = *LClientes.emplace_back(
            std::make_unique<TClienteNu>(AParametros.BancoDeDados, AParametros.Usuario, AParametros.Senha));
        LNu.PrepararTodos(LEvento.Comandos);
        LEvento.Preparados = LNu.Preparados();
        Registrar(Nome(LEvento, "carga"), AOpcoes.Repeticoes, [&] { Carregar(LConexao, LEvento); });
        Registrar(Nome(LEvento, "primeira"), AOpcoes.Repeticoes, [&] {
            LConexao.DefinirReaproveitamento(true); // forgets what was kept
            Carregar(LConexao, LEvento);
        });
        Registrar(Nome(LEvento, "preparando"), AOpcoes.Repeticoes, [&] { LNu.RodarPreparando(LEvento.Comandos); });
        Registrar(Nome(LEvento, "preparado"), AOpcoes.Repeticoes, [&] { LNu.RodarPreparados(); });
    }
    benchmark::RunSpecifiedBenchmarks(&ARelator);
    return !ARelator.Falhou;
}

bool MedirEventos(const TOpcoes& AOpcoes)
{
    const auto LParametros = CriarBancoDoExemplo(AOpcoes.Saida / "exemplo.fdb");
    auto LEventos = EventosMedidos();
    TRelator LRelator;
    if (!MedirCargas(AOpcoes, LParametros, LEventos, LRelator))
        return false;

    std::printf("\n(a) carga; (b) cliente que prepara cada comando; (c) cliente que os preparou uma vez\n"
                "%-8s %8s %7s %10s %9s %9s %9s %9s %6s %6s %8s\n",
                "evento", "comandos", "linhas", "preparados", "1ª us", "a us", "b us", "c us", "a/b", "a/c", "pico KB");
    for (auto& LEvento : LEventos) {
        LEvento.PicoDeMemoriaKb =
            RodarPrograma(LinhaDoPrograma("carregar", LParametros.BancoDeDados, LEvento.Codigo, LEvento.Argumentos),
                          AOpcoes.Saida / (LEvento.Codigo + ".json"))
                .PicoDeMemoriaKb;
        std::int64_t LLinhas = 0;
        for (const auto& LComando : LEvento.Comandos)
            LLinhas += LComando.Linhas;
        const auto LMediana = [&](const char* AOque) { return LRelator.Medianas[Nome(LEvento, AOque)]; };
        const double LCarga = LMediana("carga");
        std::printf("%-8s %8zu %7lld %10zu %9.0f %9.0f %9.0f %9.0f %6.3f %6.3f %8ld\n", LEvento.Codigo.c_str(),
                    LEvento.Comandos.size(), static_cast<long long>(LLinhas), LEvento.Preparados, LMediana("primeira"),
                    LCarga, LMediana("preparando"), LMediana("preparado"), LCarga / LMediana("preparando"),
                    LCarga / LMediana("preparado"), LEvento.PicoDeMemoriaKb);
    }
    return true;
}

/// `lote S-1200` of one month over companies of growing size; the figures go to crescimento.tsv too.
void MedirCrescimento(const TOpcoes& AOpcoes)
{
    std::ofstream LTabela(AOpcoes.Saida / "crescimento.tsv");
    std::printf("\nlote S-1200, um mês\n%12s %9s %14s %8s\n", "trabalhadores", "s", "us/trabalhador", "pico KB");
    double LPrimeiro = 0;
    double LUltimo = 0;
    for (const int LQuantidade : AOpcoes.Trabalhadores) {
        const auto LArquivo = AOpcoes.Saida / ("gerada" + std::to_string(LQuantidade) + ".fdb");
        const auto LParametros = CriarBancoDoExemplo(LArquivo);
        {
            TOvraConnection LConexao(LParametros);
            GerarTrabalhadores(LConexao, LQuantidade, SEMENTE);
            // What the generator left to clean is not the load's to pay.
            LConexao.Consultar("SELECT COUNT(*) FROM CALCULO");
        }
        const auto LSaida = AOpcoes.Saida / "lote.jsonl";
        const auto LProcesso = RodarPrograma(
            LinhaDoPrograma("lote", LParametros.BancoDeDados, "S-1200",
                            {{"IdEmpresa", "1"}, {"DataInicio", "2021-03-01"}, {"DataFim", "2021-03-31"}}),
            LSaida);
        std::ifstream LLinhas(LSaida);
        const auto LTrabalhadores =
            std::count(std::istreambuf_iterator<char>(LLinhas), std::istreambuf_iterator<char>(), '\n');
        if (LTrabalhadores < LQuantidade)
            throw std::runtime_error("O lote não respondeu por todos os trabalhadores");
        LUltimo = LProcesso.Segundos * 1e6 / static_cast<double>(LTrabalhadores);
        if (LPrimeiro == 0)
            LPrimeiro = LUltimo;
        std::printf("%12lld %9.2f %14.0f %8ld\n", static_cast<long long>(LTrabalhadores), LProcesso.Segundos, LUltimo,
                    LProcesso.PicoDeMemoriaKb);
        std::fflush(stdout);
        LTabela << LTrabalhadores << '\t' << LUltimo << '\t' << LProcesso.PicoDeMemoriaKb << '\n';
        fs::remove(LArquivo);
        fs::remove(LSaida);
    }
    std::printf("custo por trabalhador na maior / na menor: %.3f\n", LUltimo / LPrimeiro);
}

} // namespace

} // namespace tarvo::bancada

// NOLINTNEXTLINE(bugprone-exception-escape): whatever went wrong may end a measure
int main(int argc, char** argv)
{
    using namespace tarvo::bancada;
    tarvo::PrepararPastaDeTravas();
    benchmark::SetDefaultTimeUnit(benchmark::kMicrosecond);
    // The cases take turns: what else the machine does meanwhile falls upon all of them.
    std::vector<std::string> LPadroes = {"--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.1"};
    std::vector<char*> LArgumentos = {argv[0]};
    for (auto& LPadrao : LPadroes)
        LArgumentos.push_back(LPadrao.data());
    LArgumentos.insert(LArgumentos.end(), argv + 1, argv + argc);
    int LQuantidade = static_cast<int>(LArgumentos.size());
    benchmark::Initialize(&LQuantidade, LArgumentos.data());
    TOpcoes LOpcoes;
    CLI::App LApp("Mede as cargas e o crescimento do lote");
    LApp.set_help_flag("--ajuda", "mostra esta ajuda");
    LApp.add_option("--saida", LOpcoes.Saida, "pasta dos bancos e das tabelas");
    LApp.add_option("--trabalhadores", LOpcoes.Trabalhadores, "tamanhos das empresas geradas; 0 para nenhuma")
        ->delimiter(',')
        ->check(CLI::NonNegativeNumber);
    LApp.add_option("--repeticoes", LOpcoes.Repeticoes, "medidas de cada caso")->check(CLI::PositiveNumber);
    CLI11_PARSE(LApp, LQuantidade, LArgumentos.data());
    std::erase(LOpcoes.Trabalhadores, 0);
    try {
        std::filesystem::create_directories(LOpcoes.Saida);
        if (!MedirEventos(LOpcoes))
            return 1;
        if (!LOpcoes.Trabalhadores.empty())
            MedirCrescimento(LOpcoes);
        return 0;
    } catch (const std::exception& LErro) {
        std::fprintf(stderr, "%s\n", LErro.what());
        return 1;
    }
}
