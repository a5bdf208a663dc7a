#include <filesystem>
#include <fstream>
#include <sstream>

#include "apoio/UnBancoDeTeste.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"

// One file goldens/S-XXXX.casos an event; a line a case: its name, then its arguments as NAME=VALUE. The expected JSON
// is goldens/S-XXXX/name.json.

namespace tarvo::testes {
namespace {

struct TCaso {
    std::string Evento;
    std::string Nome;
    std::map<std::string, std::string> Argumentos;
};

void PrintTo(const TCaso& ACaso, std::ostream* ASaida) { *ASaida << ACaso.Evento << "/" << ACaso.Nome; }

std::vector<TCaso> LerCasos()
{
    std::vector<TCaso> LCasos;
    for (const auto& LItem : std::filesystem::directory_iterator(PASTA_DOS_GOLDENS)) {
        if (LItem.path().extension() != ".casos")
            continue;
        std::ifstream LArquivo(LItem.path());
        for (std::string LLinha; std::getline(LArquivo, LLinha);) {
            if (LLinha.empty() || LLinha.front() == '#')
                continue;
            std::istringstream LPalavras(LLinha);
            TCaso LCaso{LItem.path().stem().string(), {}, {}};
            LPalavras >> LCaso.Nome;
            for (std::string LPalavra; LPalavras >> LPalavra;)
                LCaso.Argumentos.emplace(LPalavra.substr(0, LPalavra.find('=')),
                                         LPalavra.substr(LPalavra.find('=') + 1));
            LCasos.push_back(LCaso);
        }
    }
    return LCasos;
}

class TTesteGolden : public TTesteComExemplo, public ::testing::WithParamInterface<TCaso> {};

TEST_P(TTesteGolden, Carrega)
{
    const auto& LCaso = GetParam();
    const auto LEvento = ConstruirEvento(LCaso.Evento, LCaso.Argumentos);
    LEvento.Evento->CarregarDados();
    ConferirGolden(LCaso.Evento + "/" + LCaso.Nome, LEvento.Evento->ToJson().AsJSON(true));
}

std::string NomeDoCaso(const ::testing::TestParamInfo<TCaso>& AInfo)
{
    std::string LNome;
    for (const char LChar : AInfo.param.Evento + "_" + AInfo.param.Nome)
        LNome += std::isalnum(static_cast<unsigned char>(LChar)) ? LChar : '_';
    return LNome;
}

INSTANTIATE_TEST_SUITE_P(Eventos, TTesteGolden, ::testing::ValuesIn(LerCasos()), NomeDoCaso);

} // namespace
} // namespace tarvo::testes
