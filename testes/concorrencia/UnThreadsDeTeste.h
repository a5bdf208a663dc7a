#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>

#include "imports/banco/UnOvraConnection.h"

namespace tarvo::testes {

/// Runs a function in so many threads at once, each with its number, and waits for all. What one raises is a failure.
void EmThreads(int AQuantas, const std::function<void(int)>& ACorpo);

/// Where so many threads meet: each waits for the others.
class TEncontro {
public:
    explicit TEncontro(int AQuantos) : FFaltam(AQuantos) {}
    /// False when the others don't come for long.
    bool Chegar();

private:
    std::mutex FTrava;
    std::condition_variable FTodos;
    int FFaltam;
};

/// Waits for what another thread brings about; false when it doesn't come for long.
bool Esperar(const std::function<bool()>& ACondicao);

/// A database with the sample company beside that of the fixtures, made once.
const TParametrosConexao& OutroBanco();

} // namespace tarvo::testes
