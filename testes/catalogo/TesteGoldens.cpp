#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::testes {
namespace {

class TTesteGolden : public TTesteComExemplo, public ::testing::WithParamInterface<TCasoDoGolden> {};

TEST_P(TTesteGolden, Carrega)
{
    const auto& LCaso = GetParam();
    const TBrencoLigado LBrenco(Conexao()); // the sibling system's tables of the same database
    const auto LEvento = ConstruirEvento(LCaso.Evento, LCaso.Argumentos);
    LEvento.Evento->CarregarDados();
    ConferirGolden(LCaso.Evento + "/" + LCaso.Nome, LEvento.Evento->ToJson().AsJSON(true));
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
