#include <cstdlib>
#include <map>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"

namespace tarvo::testes {
namespace {

// A host's tables have the columns of ours, but not always their types. The sample company has no time of day where a
// column may lose it.

using TTroca = std::map<std::string_view, std::string_view>;

/// The text of a schema with other types for the columns of its tables: each word by itself, a precision goes with its
/// type.
std::string Trocar(std::string_view AEsquema, const TTroca& ATroca)
{
    const auto EhDaPalavra = [](char AChar) {
        return (AChar >= 'A' && AChar <= 'Z') || (AChar >= '0' && AChar <= '9') || AChar == '_' || AChar == '$';
    };
    if (AEsquema.find("CREATE TABLE") == std::string_view::npos)
        return std::string(AEsquema);
    std::string LTexto;
    for (std::size_t i = 0; i < AEsquema.size();) {
        auto LFim = i;
        while (LFim < AEsquema.size() && EhDaPalavra(AEsquema[LFim]))
            ++LFim;
        const auto LPalavra = AEsquema.substr(i, LFim - i);
        if (const auto LOutro = ATroca.find(LPalavra);
            LOutro != ATroca.end() && !AEsquema.substr(LFim).starts_with(" GENERATED")) {
            LTexto += LOutro->second;
            i = AEsquema.substr(LFim).starts_with("(") ? AEsquema.find(')', LFim) + 1 : LFim;
        } else {
            LTexto += AEsquema.substr(i, std::max<std::size_t>(LFim - i, 1));
            i = std::max(LFim, i + 1);
        }
    }
    return LTexto;
}

struct TVariante {
    const char* Nome;
    TTroca Troca;
};

class TTesteOutrosTipos : public ::testing::TestWithParam<TVariante> {};

TEST_P(TTesteOutrosTipos, OJsonEhOMesmo)
{
    // The goldens are written from our own schema alone.
    if (const char* LAtualizar = std::getenv("ATUALIZAR_GOLDENS"); LAtualizar != nullptr && *LAtualizar != '\0')
        GTEST_SKIP() << "ATUALIZAR_GOLDENS";
    const auto& LVariante = GetParam();
    bool LTrocou = false;
    TOvraConnection LConexao(
        CriarBancoDeTeste(std::string("tipos") + LVariante.Nome + ".fdb", true, [&](std::string_view AEsquema) {
            auto LTexto = Trocar(AEsquema, LVariante.Troca);
            LTrocou = LTrocou || LTexto != AEsquema;
            return LTexto;
        }));
    ASSERT_TRUE(LTrocou);
    DefinirOvraConnection(&LConexao);
    for (const auto& LCaso : LerCasosDosGoldens()) {
        SCOPED_TRACE(LCaso.Evento + "/" + LCaso.Nome);
        std::string LJson;
        EXPECT_NO_THROW(LJson = CarregarCaso(LCaso, true));
        ConferirGolden(LCaso.Evento + "/" + LCaso.Nome, LJson);
    }
    LConexao.Desfazer();
    DefinirOvraConnection(nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Esquemas, TTesteOutrosTipos,
    ::testing::Values(
        TVariante{"Menores", {{"TIMESTAMP", "DATE"}, {"NUMERIC", "DOUBLE PRECISION"}, {"SMALLINT", "BIGINT"}}},
        TVariante{"Maiores", {{"DATE", "TIMESTAMP"}, {"INTEGER", "BIGINT"}, {"BIGINT", "NUMERIC(18,0)"}}}),
    [](const auto& AInfo) { return AInfo.param.Nome; });

} // namespace
} // namespace tarvo::testes
