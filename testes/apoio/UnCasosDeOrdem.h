#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "apoio/UnBancoDeTeste.h"

namespace tarvo::testes {

/// Rows of which several tie, what is read of them, and what it must be whichever of them was stored first.
struct TCasoDeOrdem {
    const char* Nome;
    /// What follows INSERT INTO.
    std::vector<std::string> Linhas;
    std::string (*Ler)();
    const char* Esperado;
};

inline void PrintTo(const TCasoDeOrdem& ACaso, std::ostream* ASaida) { *ASaida << ACaso.Nome; }

/// A case and whether its rows are stored the last one first. TBase is the fixture that they stand on.
template <class TBase>
class TTesteDeOrdem : public TBase, public ::testing::WithParamInterface<std::tuple<TCasoDeOrdem, bool>> {
protected:
    void Conferir()
    {
        auto [LCaso, LAoContrario] = this->GetParam();
        if (LAoContrario)
            std::reverse(LCaso.Linhas.begin(), LCaso.Linhas.end());
        for (const auto& LLinha : LCaso.Linhas)
            Executar("INSERT INTO " + LLinha);
        EXPECT_EQ(LCaso.Esperado, LCaso.Ler());
    }
};

inline std::string NomeDoCasoDeOrdem(const ::testing::TestParamInfo<std::tuple<TCasoDeOrdem, bool>>& AInfo)
{
    return std::string(std::get<0>(AInfo.param).Nome) + (std::get<1>(AInfo.param) ? "AoContrario" : "");
}

} // namespace tarvo::testes
