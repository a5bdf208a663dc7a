#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"
#include "apoio/UnTestesLongos.h"
#include "banco/UnBancoEmbutido.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraScriptSql.h"

// The same rows give the same JSON, in whatever order a file holds them, whatever indexes it has, and whichever row
// of several that tie the engine would meet first.

namespace tarvo::testes {
namespace {

constexpr const char* COPIA = "ORDEM$";

struct TTabela {
    std::string Nome;
    std::vector<std::string> Colunas;
    bool ChaveNumerica = false;
};

/// The tables with their columns; the first of them is the key.
std::vector<TTabela> LerTabelas()
{
    static constexpr std::string_view SQL =
        R"(SELECT TRIM(F.RDB$RELATION_NAME), TRIM(F.RDB$FIELD_NAME), IIF(D.RDB$FIELD_TYPE IN (7, 8, 16), 1, 0)
FROM RDB$RELATION_FIELDS F
JOIN RDB$FIELDS D ON (D.RDB$FIELD_NAME = F.RDB$FIELD_SOURCE)
JOIN RDB$RELATIONS R ON (R.RDB$RELATION_NAME = F.RDB$RELATION_NAME)
WHERE R.RDB$SYSTEM_FLAG = 0
  AND F.RDB$RELATION_NAME NOT STARTING 'ORDEM'
ORDER BY 1, F.RDB$FIELD_POSITION)";
    std::vector<TTabela> LTabelas;
    const auto LLinhas = OvraConnection().Consultar(SQL);
    for (std::size_t i = 0; i < LLinhas.QuantidadeDeLinhas(); ++i) {
        if (LTabelas.empty() || LTabelas.back().Nome != LLinhas.Texto(i, 0))
            LTabelas.push_back({LLinhas.Texto(i, 0), {}, LLinhas.Texto(i, 2) == "1"});
        LTabelas.back().Colunas.push_back(LLinhas.Texto(i, 1));
    }
    return LTabelas;
}

std::string Lista(const std::vector<std::string>& AColunas)
{
    std::string LTexto;
    for (const auto& LColuna : AColunas)
        LTexto += (LTexto.empty() ? "" : ", ") + LColuna;
    return LTexto;
}

/// Stores the rows of a table again, the last key first.
void GuardarAoContrario(const TTabela& ATabela)
{
    const auto LColunas = Lista(ATabela.Colunas);
    Executar("DELETE FROM " + (COPIA + ATabela.Nome));
    Executar("INSERT INTO " + (COPIA + ATabela.Nome) + " (" + LColunas + ") SELECT " + LColunas + " FROM " +
             ATabela.Nome);
    Executar("DELETE FROM " + ATabela.Nome);
    Executar("INSERT INTO " + ATabela.Nome + " (" + LColunas + ") SELECT " + LColunas + " FROM " +
             (COPIA + ATabela.Nome) + " ORDER BY 1 DESC");
}

/// Whether a column tells whose or of when a row is: a twin keeps it, so that both are met by the same conditions.
bool Identifica(const std::string& AColuna)
{
    for (const char* LInicio :
         {"ID",  "COD",  "ORIGEM", "ESPECIE", "TP",     "TIPO",    "TABELA", "DATA",  "INICIO",  "FIM",
          "CPF", "CNPJ", "MES",    "ANO",     "STATUS", "EMPRESA", "FILIAL", "DEPTO", "FORMULA", "SEQUENCIA"})
        if (AColuna.starts_with(LInicio))
            return true;
    return AColuna.find("DATA") != std::string::npos;
}

/// Gives every row of a table a twin of another key: the same whose and when, some other values those of the row that
/// follows it among its like.
void Gemear(const TTabela& ATabela, unsigned ASemente)
{
    std::string LSeletores;
    std::string LGrupo;
    for (const char* LColuna : {"ORIGEM", "ESPECIE", "TP", "TABELA"})
        for (const auto& LDaTabela : ATabela.Colunas)
            if (LDaTabela == LColuna)
                LGrupo += " AND B." + LDaTabela + " IS NOT DISTINCT FROM A." + LDaTabela;
    const auto& LChave = ATabela.Colunas.front();
    unsigned LNumero = ASemente;
    for (const auto& LColuna : ATabela.Colunas) {
        LNumero = LNumero * 1103515245U + 12345U;
        if (&LColuna == &ATabela.Colunas.front())
            LSeletores += "A." + LColuna + " + 50000000";
        else if (Identifica(LColuna) || (LNumero >> 16) % 3 == 0)
            LSeletores += ", A." + LColuna;
        else
            LSeletores += ", COALESCE((SELECT FIRST 1 B." + LColuna + " FROM " + ATabela.Nome + " B WHERE B." + LChave +
                          " > A." + LChave + LGrupo + " ORDER BY B." + LChave + "), A." + LColuna + ")";
    }
    Executar("DELETE FROM " + (COPIA + ATabela.Nome));
    const auto LColunas = Lista(ATabela.Colunas);
    Executar("INSERT INTO " + (COPIA + ATabela.Nome) + " (" + LColunas + ") SELECT " + LSeletores + " FROM " +
             ATabela.Nome + " A");
    Executar("INSERT INTO " + ATabela.Nome + " (" + LColunas + ") SELECT " + LColunas + " FROM " +
             (COPIA + ATabela.Nome) + " ORDER BY 1");
}

/// The script of the schema, with a second table of each kind that only stores rows meanwhile; without keys and indexes
/// where none are wanted.
std::string ComCopias(std::string_view AEsquema, bool AComIndices)
{
    constexpr std::string_view TABELA = "CREATE TABLE ";
    std::string LTexto(AEsquema);
    if (AEsquema.find(TABELA) != std::string_view::npos) {
        std::string LCopias(AEsquema);
        for (std::size_t i = 0; (i = LCopias.find(TABELA, i)) != std::string::npos; i += TABELA.size())
            LCopias.insert(i + TABELA.size(), COPIA);
        return LTexto + "\n" + LCopias;
    }
    return AComIndices || AEsquema.find("PRIMARY KEY") == std::string_view::npos ? LTexto : std::string();
}

/// Two databases of the same rows: as they come, with indexes; the other way round, without any.
class TTesteOrdem : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        FEmOrdem = Criar("ordem.fdb", true);
        FAoContrario = Criar("contrario.fdb", false);
        DefinirOvraConnection(FAoContrario.get());
        for (const auto& LTabela : LerTabelas())
            GuardarAoContrario(LTabela);
        FAoContrario->Confirmar();
    }
    static void TearDownTestSuite()
    {
        DefinirOvraConnection(nullptr);
        FEmOrdem.reset();
        FAoContrario.reset();
    }

    static std::string Carregar(const TCasoDoGolden& ACaso)
    {
        try {
            return CarregarCaso(ACaso, true);
        } catch (const Exception& LErro) {
            return LErro.what();
        }
    }

    /// The JSON of every case with the rows of some tables doubled.
    static std::vector<std::string> ComGemeas(const std::vector<TTabela>& ATabelas, bool AoContrario, unsigned ASemente)
    {
        auto& LConexao = AoContrario ? *FAoContrario : *FEmOrdem;
        DefinirOvraConnection(&LConexao);
        LConexao.IniciarTransacao();
        for (const auto& LTabela : ATabelas) {
            Gemear(LTabela, ASemente);
            if (AoContrario)
                GuardarAoContrario(LTabela);
        }
        std::vector<std::string> LJsons;
        for (const auto& LCaso : LerCasosDosGoldens())
            LJsons.push_back(Carregar(LCaso));
        LConexao.Desfazer();
        return LJsons;
    }

    static void ConferirGemeas(const std::vector<TTabela>& ATabelas, unsigned ASemente)
    {
        const auto LEmOrdem = ComGemeas(ATabelas, false, ASemente);
        const auto LAoContrario = ComGemeas(ATabelas, true, ASemente);
        const auto LCasos = LerCasosDosGoldens();
        for (std::size_t i = 0; i < LCasos.size(); ++i)
            EXPECT_EQ(LEmOrdem[i], LAoContrario[i]) << LCasos[i].Evento << "/" << LCasos[i].Nome;
    }

    /// The tables whose rows can have twins: their keys are numbers.
    static std::vector<TTabela> TabelasComGemeas()
    {
        DefinirOvraConnection(FEmOrdem.get());
        std::vector<TTabela> LTabelas;
        for (const auto& LTabela : LerTabelas())
            if (LTabela.ChaveNumerica)
                LTabelas.push_back(LTabela);
        FEmOrdem->Desfazer();
        return LTabelas;
    }

    static std::unique_ptr<TOvraConnection> FEmOrdem;
    static std::unique_ptr<TOvraConnection> FAoContrario;

private:
    static std::unique_ptr<TOvraConnection> Criar(const std::string& ANome, bool AComIndices)
    {
        return std::make_unique<TOvraConnection>(CriarBancoDeTeste(
            ANome, true, [&](std::string_view AEsquema) { return ComCopias(AEsquema, AComIndices); }));
    }
};

std::unique_ptr<TOvraConnection> TTesteOrdem::FEmOrdem;
std::unique_ptr<TOvraConnection> TTesteOrdem::FAoContrario;

TEST_F(TTesteOrdem, GuardadosAoContrarioESemIndicesOJsonEhOMesmo)
{
    if (const char* LAtualizar = std::getenv("ATUALIZAR_GOLDENS"); LAtualizar != nullptr && *LAtualizar != '\0')
        GTEST_SKIP() << "ATUALIZAR_GOLDENS";
    DefinirOvraConnection(FAoContrario.get());
    for (const auto& LCaso : LerCasosDosGoldens()) {
        SCOPED_TRACE(LCaso.Evento + "/" + LCaso.Nome);
        ConferirGolden(LCaso.Evento + "/" + LCaso.Nome, Carregar(LCaso));
    }
    FAoContrario->Desfazer();
}

TEST_F(TTesteOrdem, DeDuasLinhasGemeasASegundaChaveDecide)
{
    const auto LTabelas = TabelasComGemeas();
    const char* LSo = std::getenv("TESTES_TABELA");
    const auto LIntervalo = LSo != nullptr ? 1 : Intervalo(LTabelas.size(), 8);
    std::size_t LQuantas = 0;
    for (std::size_t i = 0; i < LTabelas.size(); i += LIntervalo) {
        if (LSo != nullptr && LTabelas[i].Nome != LSo)
            continue;
        SCOPED_TRACE(LTabelas[i].Nome);
        ConferirGemeas({LTabelas[i]}, static_cast<unsigned>(i));
        ++LQuantas;
    }
    std::cout << "Linhas gêmeas: " << LQuantas << " de " << LTabelas.size()
              << " tabelas, uma por vez (TESTES_LONGOS=1 faz todas)" << std::endl;
}

TEST_F(TTesteOrdem, GemeasEmVariasTabelasAoMesmoTempo)
{
    const auto LTabelas = TabelasComGemeas();
    const unsigned LRodadas = TestesLongos() ? 40 : 3;
    for (unsigned LSemente = 1; LSemente <= LRodadas; ++LSemente) {
        SCOPED_TRACE(LSemente);
        std::vector<TTabela> LEscolhidas;
        unsigned LNumero = LSemente * 2654435761U;
        for (const auto& LTabela : LTabelas) {
            LNumero = LNumero * 1103515245U + 12345U;
            if ((LNumero >> 16) % 4 == 0)
                LEscolhidas.push_back(LTabela);
        }
        ConferirGemeas(LEscolhidas, LSemente);
    }
}

} // namespace
} // namespace tarvo::testes
