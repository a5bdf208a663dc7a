#include "apoio/UnPrograma.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <thread>

extern char** environ;

namespace tarvo::testes {

namespace {

/// A pipe, or a terminal whose far end is the program's.
struct TCanal {
    int Leitura = -1;
    int Escrita = -1;

    explicit TCanal(bool ATerminal)
    {
        if (ATerminal) {
            Leitura = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
            if (Leitura < 0 || grantpt(Leitura) != 0 || unlockpt(Leitura) != 0)
                throw std::runtime_error("posix_openpt");
            Escrita = open(ptsname(Leitura), O_RDWR | O_NOCTTY | O_CLOEXEC);
        } else if (std::array<int, 2> LPontas{}; pipe2(LPontas.data(), O_CLOEXEC) == 0) {
            Leitura = LPontas[0];
            Escrita = LPontas[1];
        }
        if (Escrita < 0)
            throw std::runtime_error("pipe");
    }
    TCanal(const TCanal&) = delete;
    TCanal& operator=(const TCanal&) = delete;
    ~TCanal()
    {
        FecharEscrita();
        close(Leitura);
    }
    void FecharEscrita()
    {
        if (Escrita >= 0)
            close(Escrita);
        Escrita = -1;
    }
    /// Until the program closes its end, which a terminal tells by an error.
    std::string LerTudo() const
    {
        std::string LTexto;
        std::array<char, 4096> LBuffer{};
        for (ssize_t LLidos; (LLidos = read(Leitura, LBuffer.data(), LBuffer.size())) > 0;)
            LTexto.append(LBuffer.data(), static_cast<std::size_t>(LLidos));
        return LTexto;
    }
};

} // namespace

TSaida Rodar(const std::vector<std::string>& AArgumentos, TDestinoDosErros ADestino)
{
    TCanal LPadrao(false);
    TCanal LErros(ADestino == TDestinoDosErros::Terminal);
    posix_spawn_file_actions_t LAcoes;
    posix_spawn_file_actions_init(&LAcoes);
    posix_spawn_file_actions_addopen(&LAcoes, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&LAcoes, LPadrao.Escrita, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&LAcoes, LErros.Escrita, STDERR_FILENO);
    std::vector<std::string> LTextos{PROGRAMA};
    LTextos.insert(LTextos.end(), AArgumentos.begin(), AArgumentos.end());
    std::vector<char*> LPonteiros;
    LPonteiros.reserve(LTextos.size() + 1);
    for (auto& LTexto : LTextos)
        LPonteiros.push_back(LTexto.data());
    LPonteiros.push_back(nullptr);
    pid_t LProcesso = 0;
    const int LErro = posix_spawn(&LProcesso, PROGRAMA, &LAcoes, nullptr, LPonteiros.data(), environ);
    posix_spawn_file_actions_destroy(&LAcoes);
    if (LErro != 0)
        throw std::runtime_error("posix_spawn " PROGRAMA);
    LPadrao.FecharEscrita();
    LErros.FecharEscrita();

    TSaida LSaida;
    // Both ends at once, lest the program wait for a full one.
    std::thread LLeitor([&] { LSaida.Erros = LErros.LerTudo(); });
    LSaida.Padrao = LPadrao.LerTudo();
    LLeitor.join();
    int LEstado = 0;
    waitpid(LProcesso, &LEstado, 0);
    LSaida.Codigo = WIFEXITED(LEstado) ? WEXITSTATUS(LEstado) : -1;
    return LSaida;
}

} // namespace tarvo::testes
