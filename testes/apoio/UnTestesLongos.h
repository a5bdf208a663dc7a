#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace tarvo::testes {

/// True when TESTES_LONGOS is set: every case and every step, however long that takes.
inline bool TestesLongos() { return std::getenv("TESTES_LONGOS") != nullptr; }

/// How far apart the tried ones stand when at most AMaximo of AQuantidade are tried; 1 in a long run.
inline std::size_t Intervalo(std::size_t AQuantidade, std::size_t AMaximo)
{
    return TestesLongos() ? 1 : std::max<std::size_t>(1, (AQuantidade + AMaximo - 1) / AMaximo);
}

} // namespace tarvo::testes
