#include <gtest/gtest.h>

#include "apoio/UnBancoDeTeste.h"
#include "regras/UnTarvoESocialCamposIdeDmDev.h"

namespace tarvo::testes {
namespace {

using regras::FormarIdeDmDev;
using regras::TDadosIdeDmDev;
using enum regras::TFormaIdeDmDev;

TEST(TesteIdeDmDev, CadaCasoTemOSeuTexto)
{
    const struct {
        regras::TDadosIdeDmDev Dados;
        const char* Esperado;
    } LCasos[] = {
        {{.TipoFolha = 1, .Data = D(2021, 3, 1)}, "01_000_0_03_2021"},
        {{.TipoFolha = 1, .IdDetConvocacao = 57, .Data = D(2021, 3, 1)}, "01_000_0_0000000057_03_2021"},
        {{.TipoFolha = 2, .Data = D(2021, 3, 31)}, "02_000_0_03_2021"},
        {{.TipoFolha = 1, .SubTipoFolha = 4, .TipoFolhaCompl = 2, .Data = D(2021, 3, 1)}, "01_004_2_03_2021"},
        {{.TipoFolha = 3, .Data = D(2021, 12, 1), .CodCateg = 101}, "03_000_0_12_2021_101"},
        {{.Forma = Rescisao, .TipoFolha = 5, .SubTipoFolha = 2, .TipoFolhaCompl = 1, .Data = D(2019, 1, 15)},
         "05_002_15_01_2019"},
        {{.Forma = Rescisao, .TipoFolha = 5, .IdDetConvocacao = 9, .Data = D(2019, 1, 5), .CodCateg = 111},
         "05_000_0000000009_05_01_2019_111"},
        {{.Forma = Recibo,
          .TipoFolha = 97,
          .SubTipoFolha = 3,
          .NrRecibo = 1234,
          .IdDetConvocacao = 57,
          .Data = D(2021, 3, 5)},
         "97_0000001234_05_03_2021"},
    };
    for (const auto& LCaso : LCasos)
        EXPECT_EQ(LCaso.Esperado, regras::FormarIdeDmDev(LCaso.Dados));
}

TEST(TesteIdeDmDev, NumerosMaioresQueAMascaraFicamInteiros)
{
    EXPECT_EQ("100_1040_12_12345678901_03_2021", regras::FormarIdeDmDev({.TipoFolha = 100,
                                                                         .SubTipoFolha = 1040,
                                                                         .TipoFolhaCompl = 12,
                                                                         .IdDetConvocacao = 12345678901,
                                                                         .Data = D(2021, 3, 1)}));
}

} // namespace
} // namespace tarvo::testes
