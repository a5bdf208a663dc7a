#include <gtest/gtest.h>

#include <algorithm>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"

namespace tarvo::testes {
namespace {

TEST(TesteCatalogo, CadaEventoUmaVezNaOrdemDosLeiautes)
{
    const auto& LCatalogo = CatalogoDeEventos();
    const auto Fora = std::ranges::adjacent_find(
        LCatalogo, [](const auto& A, const auto& B) { return std::string_view(A.Codigo) >= B.Codigo; });
    EXPECT_TRUE(Fora == LCatalogo.end()) << Fora->Codigo;
}

TEST(TesteCatalogo, OutroNomeDeUmArgumentoEhOMesmoArgumento)
{
    const std::vector<TArgumentoDeEvento> LDefinicoes{{"AIdCargoDescr", TTipoArgumento::taId, "", true, -1, "AOutro"}};
    for (const char* LNome : {"AIdCargoDescr", "aidcargodescr", "AOutro", "AOUTRO"})
        EXPECT_EQ(7, TArgumentosDeEvento(LDefinicoes, {{LNome, "7"}}).Id("AIdCargoDescr")) << LNome;
    EXPECT_THROW(TArgumentosDeEvento(LDefinicoes, {{"AOutro", "7"}, {"AIdCargoDescr", "7"}}), EArgumentoInvalido);
    EXPECT_THROW(TArgumentosDeEvento(LDefinicoes, {{"AOutro", "x"}}), EArgumentoInvalido);
    EXPECT_THROW(TArgumentosDeEvento(LDefinicoes, {}), EArgumentoInvalido);
}

} // namespace
} // namespace tarvo::testes
