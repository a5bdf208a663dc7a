#pragma once

#include <algorithm>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "apoio/UnBancoDeTeste.h"

namespace tarvo::testes {

/// Rows of which a result shows the first one or the order. They are inserted as they stand, and the other way round.
struct TCasoDasLinhas {
    const char* Rotulo;
    /// Table and columns, then the values of each row.
    const char* Tabela;
    std::vector<const char*> Linhas;
    std::string (*Carregar)();
    const char* Esperado;
    /// What the rows need beside them, whole statements.
    std::vector<const char*> Base = {};
};

inline void PrintTo(const TCasoDasLinhas& ACaso, std::ostream* ASaida) { *ASaida << ACaso.Rotulo; }

using TParametroDeOrdem = std::tuple<TCasoDasLinhas, bool>;

inline void ConferirOrdem(const TParametroDeOrdem& AParametro)
{
    const auto& [LCaso, LAoContrario] = AParametro;
    for (const auto* LSql : LCaso.Base)
        Executar(LSql);
    auto LLinhas = LCaso.Linhas;
    if (LAoContrario)
        std::reverse(LLinhas.begin(), LLinhas.end());
    for (const auto* LLinha : LLinhas)
        Executar("INSERT INTO " + std::string(LCaso.Tabela) + " VALUES (" + LLinha + ")");
    EXPECT_EQ(LCaso.Esperado, LCaso.Carregar());
}

inline std::string NomeDaOrdem(const ::testing::TestParamInfo<TParametroDeOrdem>& AInfo)
{
    return std::string(std::get<0>(AInfo.param).Rotulo) + (std::get<1>(AInfo.param) ? "AoContrario" : "");
}

} // namespace tarvo::testes
