#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "apoio/UnBancoDeTeste.h"

namespace tarvo::testes {

/// Rows that compete for a place, and what a load must show whatever the order they were stored in.
struct TCasoDeOrdem {
    const char* Rotulo;
    /// `TABLE (columns) VALUES (values)`, stored in this order and in the reverse one.
    std::vector<std::string> Linhas;
    std::function<std::string()> Resultado;
    std::string Esperado;
};

inline void PrintTo(const TCasoDeOrdem& ACaso, std::ostream* ASaida) { *ASaida << ACaso.Rotulo; }

/// A case and whether its rows are stored in reverse.
using TParametroDeOrdem = std::tuple<TCasoDeOrdem, bool>;

inline std::string NomeDaOrdem(const ::testing::TestParamInfo<TParametroDeOrdem>& AInfo)
{
    return std::string(std::get<0>(AInfo.param).Rotulo) + (std::get<1>(AInfo.param) ? "AoContrario" : "");
}

inline void ConferirOrdem(const TParametroDeOrdem& AParametro)
{
    auto [LCaso, LAoContrario] = AParametro;
    if (LAoContrario)
        std::reverse(LCaso.Linhas.begin(), LCaso.Linhas.end());
    for (const auto& LLinha : LCaso.Linhas)
        Executar("INSERT INTO " + LLinha);
    EXPECT_EQ(LCaso.Esperado, LCaso.Resultado());
}

} // namespace tarvo::testes
