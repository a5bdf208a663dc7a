#include "apoio/UnCasosDosGoldens.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "apoio/UnBancoDeTeste.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnOvraExcecoes.h"

namespace tarvo::testes {

void PrintTo(const TCasoDoGolden& ACaso, std::ostream* ASaida) { *ASaida << ACaso.Evento << "/" << ACaso.Nome; }

std::vector<TCasoDoGolden> LerCasosDosGoldens()
{
    std::vector<TCasoDoGolden> LCasos;
    for (const auto& LItem : std::filesystem::directory_iterator(PASTA_DOS_GOLDENS)) {
        if (LItem.path().extension() != ".casos")
            continue;
        std::ifstream LArquivo(LItem.path());
        for (std::string LLinha; std::getline(LArquivo, LLinha);) {
            if (LLinha.empty() || LLinha.front() == '#')
                continue;
            std::istringstream LPalavras(LLinha);
            TCasoDoGolden LCaso{LItem.path().stem().string(), {}, {}};
            LPalavras >> LCaso.Nome;
            for (std::string LPalavra; LPalavras >> LPalavra;)
                LCaso.Argumentos.emplace(LPalavra.substr(0, LPalavra.find('=')),
                                         LPalavra.substr(LPalavra.find('=') + 1));
            LCasos.push_back(LCaso);
        }
    }
    return LCasos;
}

std::string JsonDoGolden(const TCasoDoGolden& ACaso)
{
    std::ifstream LArquivo(std::string(PASTA_DOS_GOLDENS) + "/" + ACaso.Evento + "/" + ACaso.Nome + ".json");
    std::stringstream LTexto;
    LTexto << LArquivo.rdbuf();
    auto LJson = LTexto.str();
    if (LJson.empty())
        throw Exception("Falta o golden " + ACaso.Evento + "/" + ACaso.Nome);
    LJson.pop_back(); // its last line ends
    return LJson;
}

std::string CarregarCaso(const TCasoDoGolden& ACaso, bool AIndentado)
{
    const TBrencoLigado LBrenco(OvraConnection()); // the sibling system's tables of the same database
    const auto LEvento = ConstruirEvento(ACaso.Evento, ACaso.Argumentos);
    LEvento.Evento->CarregarDados();
    return LEvento.Evento->ToJson().AsJSON(AIndentado);
}

} // namespace tarvo::testes
