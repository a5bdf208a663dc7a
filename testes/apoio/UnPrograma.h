#pragma once

#include <string>
#include <vector>

namespace tarvo::testes {

/// What a run of the program left.
struct TSaida {
    int Codigo = -1;
    std::string Padrao;
    std::string Erros;
};

/// Where the program's standard error goes.
enum class TDestinoDosErros { Arquivo, Terminal };

/// Runs the real program, as a person would.
TSaida Rodar(const std::vector<std::string>& AArgumentos, TDestinoDosErros ADestino = TDestinoDosErros::Arquivo);

} // namespace tarvo::testes
