#include <algorithm>
#include <set>

#include "apoio/UnBancoDeTeste.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"

// What holds for the tree of every table event: the order of the load, and a list that reaches each group and only it.

namespace tarvo::testes {
namespace {

struct TEventoDeTabela {
    const char* Codigo;
    std::map<std::string, std::string> Argumentos;
    /// Groups of the tree, those that lists make at construction included.
    std::size_t Grupos;
    /// Statements that run whatever the list says.
    std::size_t SempreLidos = 0;
};

void PrintTo(const TEventoDeTabela& AEvento, std::ostream* ASaida) { *ASaida << AEvento.Codigo; }

class TTesteCargaDasTabelas : public TTesteComExemplo, public ::testing::WithParamInterface<TEventoDeTabela> {
protected:
    using TTextos = std::vector<std::string>;

    TTextos Carregar(TTarvoESocialCamposGrupoBase& AEvento, const TListaCamposModificados* ALista)
    {
        TTextos LTextos;
        Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) { LTextos.emplace_back(AExecucao.Sql); });
        AEvento.CarregarDados(ALista);
        Conexao().DefinirObservador({});
        return LTextos;
    }

    /// The group and those below it, in the order of the properties.
    static void Percorrer(const TTarvoESocialCamposGrupoBase& AGrupo, TTextos& AGuids)
    {
        AGuids.emplace_back(AGrupo.GuidClasse());
        for (const auto& LPropriedade : AGrupo.PropriedadesDaClasse()) {
            if (LPropriedade.Tipo() == TTipoPropriedade::Grupo)
                Percorrer(*LPropriedade.Filho(AGrupo), AGuids);
            if (LPropriedade.Tipo() == TTipoPropriedade::ListaDeGrupos)
                for (std::size_t I = 0; I < LPropriedade.Quantidade(AGrupo); ++I)
                    Percorrer(*LPropriedade.Item(AGrupo, I), AGuids);
        }
    }
};

TEST_P(TTesteCargaDasTabelas, AListaAlcancaCadaGrupoNaOrdemDaCarga)
{
    const auto& LCaso = GetParam();
    const auto LConstruido = ConstruirEvento(LCaso.Codigo, LCaso.Argumentos);
    auto& LEvento = *LConstruido.Evento;
    const auto LTudo = Carregar(LEvento, nullptr);
    TTextos LGuids;
    Percorrer(LEvento, LGuids);
    EXPECT_EQ(LCaso.Grupos, LGuids.size());

    const TListaCamposModificados LNenhum{"{nenhum}"};
    const auto LSempre = Carregar(LEvento, &LNenhum);
    EXPECT_EQ(LCaso.SempreLidos, LSempre.size());
    const auto SemOsDeSempre = [&](TTextos ATextos) {
        std::erase_if(ATextos, [&](const auto& ATexto) { return std::ranges::count(LSempre, ATexto) > 0; });
        return ATextos;
    };
    TTextos LUmPorUm;
    std::set<std::string> LVistos;
    for (const auto& LGuid : LGuids) {
        if (!LVistos.insert(LGuid).second)
            continue;
        const TListaCamposModificados LLista{LGuid};
        const auto LTextos = SemOsDeSempre(Carregar(LEvento, &LLista));
        LUmPorUm.insert(LUmPorUm.end(), LTextos.begin(), LTextos.end());
    }
    EXPECT_EQ(SemOsDeSempre(LTudo), LUmPorUm);

    const TListaCamposModificados LVazia;
    EXPECT_EQ(LTudo, Carregar(LEvento, &LVazia));
}

TEST_P(TTesteCargaDasTabelas, RecarregarDaOMesmo)
{
    const auto& LCaso = GetParam();
    // S-1070 appends its suspensions again; a process without one stays the same.
    auto LArgumentos = LCaso.Argumentos;
    if (std::string_view(LCaso.Codigo) == "S-1070")
        LArgumentos["AIdProcesso"] = "7201";
    const auto LConstruido = ConstruirEvento(LCaso.Codigo, LArgumentos);
    LConstruido.Evento->CarregarDados();
    const auto LPrimeira = LConstruido.Evento->ToJson().AsJSON(true);
    LConstruido.Evento->CarregarDados();
    EXPECT_EQ(LPrimeira, LConstruido.Evento->ToJson().AsJSON(true));
}

const TEventoDeTabela EVENTOS[] = {
    {"S-1005", {{"AIDEstab", "1"}, {"AIDDepto", "0"}, {"AData", "2021-03-01"}}, 13},
    {"S-1005", {{"AIDEstab", "0"}, {"AIDDepto", "14"}, {"AData", "2021-03-01"}}, 13},
    {"S-1020", {{"AIDEstab", "1"}, {"AIDDepto", "0"}, {"AData", "2021-03-01"}}, 9},
    {"S-1020", {{"AIDEstab", "0"}, {"AIDDepto", "12"}, {"AData", "2021-03-01"}}, 8},
    {"S-1030", {{"AIDCargosDescr", "8"}}, 7},
    {"S-1035", {{"AIdCargoDescr", "8"}}, 4},
    {"S-1035", {{"aidcargosdescr", "8"}}, 4},
    {"S-1040", {{"AIDCargosDescr", "8"}}, 4},
    {"S-1050", {{"AIdHorario", "1"}, {"AIdHorarioDet", "0"}, {"ADiaSemana", "1"}}, 5},
    {"S-1050", {{"AIdHorario", "1"}, {"AIdHorarioDet", "2"}, {"ADiaSemana", "1"}}, 5},
    {"S-1060", {{"AIdAmbiente", "1"}}, 4},
    {"S-1070", {{"AIdProcesso", "1"}}, 6, 1},
};

INSTANTIATE_TEST_SUITE_P(Tabelas, TTesteCargaDasTabelas, ::testing::ValuesIn(EVENTOS));

} // namespace
} // namespace tarvo::testes
