#include "concorrencia/UnThreadsDeTeste.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

#include "apoio/UnBancoDeTeste.h"

namespace tarvo::testes {

namespace {

/// As long as a busy machine under a sanitizer may take; whoever waits in vain for it has failed.
constexpr std::chrono::seconds ESPERA{30};

} // namespace

void EmThreads(int AQuantas, const std::function<void(int)>& ACorpo)
{
    std::vector<std::thread> LThreads;
    LThreads.reserve(static_cast<std::size_t>(AQuantas));
    for (int i = 0; i < AQuantas; ++i)
        LThreads.emplace_back([&ACorpo, i] {
            try {
                ACorpo(i);
            } catch (const std::exception& LErro) {
                ADD_FAILURE() << "thread " << i << ": " << LErro.what();
            }
        });
    for (auto& LThread : LThreads)
        LThread.join();
}

bool TEncontro::Chegar()
{
    std::unique_lock LTravado(FTrava);
    --FFaltam;
    FTodos.notify_all();
    return FTodos.wait_for(LTravado, ESPERA, [this] { return FFaltam <= 0; });
}

bool Esperar(const std::function<bool()>& ACondicao)
{
    const auto LFim = std::chrono::steady_clock::now() + ESPERA;
    while (!ACondicao()) {
        if (std::chrono::steady_clock::now() > LFim)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

const TParametrosConexao& OutroBanco()
{
    static const auto LParametros = CriarBancoDeTeste("outro.fdb", true);
    return LParametros;
}

} // namespace tarvo::testes
