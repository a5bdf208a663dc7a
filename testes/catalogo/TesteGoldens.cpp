#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"

namespace tarvo::testes {
namespace {

class TTesteGolden : public TTesteComExemplo, public ::testing::WithParamInterface<TCasoDoGolden> {};

TEST_P(TTesteGolden, Carrega)
{
    const auto& LCaso = GetParam();
    ConferirGolden(LCaso.Evento + "/" + LCaso.Nome, CarregarCaso(LCaso, true));
}

std::string NomeDoCaso(const ::testing::TestParamInfo<TCasoDoGolden>& AInfo)
{
    std::string LNome;
    for (const char LChar : AInfo.param.Evento + "_" + AInfo.param.Nome)
        LNome += std::isalnum(static_cast<unsigned char>(LChar)) ? LChar : '_';
    return LNome;
}

INSTANTIATE_TEST_SUITE_P(Eventos, TTesteGolden, ::testing::ValuesIn(LerCasosDosGoldens()), NomeDoCaso);

} // namespace
} // namespace tarvo::testes
