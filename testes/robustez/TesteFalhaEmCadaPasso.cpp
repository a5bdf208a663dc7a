#include <cstdio>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"
#include "apoio/UnEventosDoCatalogo.h"
#include "apoio/UnTestesLongos.h"
#include "imports/UnOvraExcecoes.h"

// Each step that a load asks of the engine is made to fail in turn: the error reaches the caller as it was raised,
// nothing stays open, and the same connection then gives the right JSON.

namespace tarvo::testes {
namespace {

constexpr char TEXTO_DA_FALHA[] = "falha provocada";
constexpr char SQLSTATE_DA_FALHA[] = "XX001";
/// A failure of the statement alone, and the loss of the connection (isc_network_error).
constexpr std::int64_t CODIGO_QUALQUER = 335544436;
constexpr std::int64_t CODIGO_DE_PERDA = 335544721;
/// Steps of one event that a short run makes fail, in each of the ways.
constexpr std::size_t MAXIMO_DE_PASSOS = 36;

/// Counts the steps of a connection and makes one of them fail.
class TProvocador {
public:
    explicit TProvocador(TOvraConnection& AConexao) : FConexao(AConexao)
    {
        FConexao.DefinirVigia([this](TPassoSql APasso) { Vigiar(APasso); });
        FConexao.DefinirObservador([this](const TExecucaoSql&) { ++FComandos; });
    }
    TProvocador(const TProvocador&) = delete;
    TProvocador& operator=(const TProvocador&) = delete;
    ~TProvocador()
    {
        FConexao.DefinirVigia({});
        FConexao.DefinirObservador({});
    }

    /// Step APasso, counted from 0, fails once.
    void FalharNoPasso(std::size_t APasso, std::int64_t ACodigo)
    {
        Zerar();
        FPassoQueFalha = APasso;
        FCodigo = ACodigo;
    }
    /// The caller's statement AComando, counted from 0, fails at every step of that kind, however it is tried.
    void FalharNoComando(std::size_t AComando, TPassoSql ATipo)
    {
        Zerar();
        FComandoQueFalha = AComando;
        FTipo = ATipo;
        FCodigo = CODIGO_QUALQUER;
    }
    void Zerar()
    {
        FPassos = FComandos = FFalhas = FDepois = 0;
        FPassoQueFalha = FComandoQueFalha = NENHUM;
    }

    std::size_t Passos() const { return FPassos; }
    std::size_t Comandos() const { return FComandos; }
    std::size_t Falhas() const { return FFalhas; }
    /// Steps asked for after the failure.
    std::size_t Depois() const { return FDepois; }

private:
    static constexpr std::size_t NENHUM = static_cast<std::size_t>(-1);

    void Vigiar(TPassoSql APasso)
    {
        if (FFalhas > 0)
            ++FDepois;
        if (FPassos++ == FPassoQueFalha || (FComandos == FComandoQueFalha && APasso == FTipo)) {
            ++FFalhas;
            throw EDatabaseError(TEXTO_DA_FALHA, FCodigo, SQLSTATE_DA_FALHA);
        }
    }

    TOvraConnection& FConexao;
    std::size_t FPassos = 0;
    std::size_t FComandos = 0;
    std::size_t FFalhas = 0;
    std::size_t FDepois = 0;
    std::size_t FPassoQueFalha = NENHUM;
    std::size_t FComandoQueFalha = NENHUM;
    TPassoSql FTipo = TPassoSql::Preparar;
    std::int64_t FCodigo = CODIGO_QUALQUER;
};

class TTesteFalhaEmCadaPasso : public TTesteComExemplo, public ::testing::WithParamInterface<std::string> {
protected:
    static void TearDownTestSuite()
    {
        std::printf("Falhas provocadas: %zu eventos, %zu casos, %zu comandos, %zu passos contados, %zu falhas",
                    FEventos, FCasos, FComandos, FPassos, FFalhas);
        if (!TestesLongos())
            std::printf("; no máximo %zu passos de cada modo por evento (TESTES_LONGOS=1 faz todos)", MAXIMO_DE_PASSOS);
        std::printf("\n");
    }
    void TearDown() override
    {
        Conexao().DefinirReaproveitamento(true);
        TTesteComExemplo::TearDown();
    }

    /// The load fails with the very error that was raised, or, where that may be, is right nevertheless.
    void ConferirFalha(TProvocador& AProvocador, const TCasoDoGolden& ACaso, std::int64_t ACodigo, bool APodePassar,
                       bool APodeNaoHaver = false)
    {
        try {
            const auto LJson = CarregarCaso(ACaso);
            EXPECT_TRUE(APodePassar || (APodeNaoHaver && AProvocador.Falhas() == 0))
                << "a falha não chegou a quem chamou";
            EXPECT_EQ(FEsperado, LJson);
        } catch (const EDatabaseError& LErro) {
            EXPECT_STREQ(TEXTO_DA_FALHA, LErro.what());
            EXPECT_EQ(ACodigo, LErro.Codigo());
            EXPECT_EQ(SQLSTATE_DA_FALHA, LErro.SqlState());
        }
        EXPECT_TRUE(AProvocador.Falhas() > 0 || APodeNaoHaver);
        FFalhas += AProvocador.Falhas();
        AProvocador.Zerar();
    }

    /// Statements that the engine holds for this connection, the counting one left out.
    int ComandosAbertos()
    {
        Conexao().DefinirReaproveitamento(true); // lets go of those that are kept on purpose
        Conexao().Desfazer();                    // a new transaction sees a new state of the engine
        return std::stoi(
            Consultar("SELECT COUNT(*) - 1 FROM MON$STATEMENTS WHERE MON$ATTACHMENT_ID = CURRENT_CONNECTION"));
    }

    void ProvocarEm(const TCasoDoGolden& ACaso)
    {
        TProvocador LProvocador(Conexao());
        FEsperado = CarregarCaso(ACaso);
        // Each statement prepared, run once and let go: whatever fails is the caller's to know, at once.
        Conexao().DefinirReaproveitamento(false);
        LProvocador.Zerar();
        EXPECT_EQ(FEsperado, CarregarCaso(ACaso));
        const auto LPassos = LProvocador.Passos();
        const auto LComandos = LProvocador.Comandos();
        for (std::size_t i = 0, LSalto = Intervalo(LPassos, MAXIMO_DE_PASSOS); i < LPassos; i += LSalto) {
            SCOPED_TRACE("sem reaproveitamento, passo " + std::to_string(i));
            LProvocador.FalharNoPasso(i, CODIGO_QUALQUER);
            ConferirFalha(LProvocador, ACaso, CODIGO_QUALQUER, false);
            EXPECT_EQ(0U, LProvocador.Depois());
            EXPECT_EQ(FEsperado, CarregarCaso(ACaso));
        }
        FPassos += LPassos;
        FComandos += LComandos;

        // With the reuse a failure of the statement is tried once more as it stands; a lost connection isn't.
        Conexao().DefinirReaproveitamento(true);
        EXPECT_EQ(FEsperado, CarregarCaso(ACaso));
        LProvocador.Zerar();
        EXPECT_EQ(FEsperado, CarregarCaso(ACaso));
        const auto LQuentes = LProvocador.Passos();
        for (std::size_t i = 0, LSalto = Intervalo(LQuentes, MAXIMO_DE_PASSOS); i < LQuentes; i += LSalto)
            for (const auto LCodigo : {CODIGO_QUALQUER, CODIGO_DE_PERDA}) {
                SCOPED_TRACE("com reaproveitamento, passo " + std::to_string(i));
                LProvocador.FalharNoPasso(i, LCodigo);
                ConferirFalha(LProvocador, ACaso, LCodigo, LCodigo == CODIGO_QUALQUER);
                EXPECT_EQ(FEsperado, CarregarCaso(ACaso));
            }
        // A statement that fails in every way reaches the caller too. Only the first of its shape is prepared.
        for (std::size_t i = 0, LSalto = Intervalo(LComandos, MAXIMO_DE_PASSOS / 3); i < LComandos; i += LSalto)
            for (const auto LTipo : {TPassoSql::Executar, TPassoSql::LerLinha, TPassoSql::Preparar}) {
                SCOPED_TRACE("com reaproveitamento, comando " + std::to_string(i));
                if (LTipo == TPassoSql::Preparar)
                    Conexao().DefinirReaproveitamento(true);
                LProvocador.FalharNoComando(i, LTipo);
                ConferirFalha(LProvocador, ACaso, CODIGO_QUALQUER, false, LTipo == TPassoSql::Preparar);
                EXPECT_EQ(FEsperado, CarregarCaso(ACaso));
            }
        ++FCasos;
    }

    std::string FEsperado;
    static inline std::size_t FEventos = 0;
    static inline std::size_t FCasos = 0;
    static inline std::size_t FComandos = 0;
    static inline std::size_t FPassos = 0;
    static inline std::size_t FFalhas = 0;
};

TEST_P(TTesteFalhaEmCadaPasso, OErroChegaEAConexaoSegue)
{
    const auto LCasos = CasosDoEvento(GetParam(), TestesLongos());
    ASSERT_FALSE(LCasos.empty());
    for (const auto& LCaso : LCasos) {
        SCOPED_TRACE(LCaso.Nome);
        ProvocarEm(LCaso);
        EXPECT_EQ(0, ComandosAbertos());
        if (HasFailure())
            break; // one case tells enough
    }
    ++FEventos;
}

class TTesteFalhaNaGravacao : public TTesteComBanco {};

TEST_F(TTesteFalhaNaGravacao, ExecutouSqlEhTudoOuNadaEmCadaPasso)
{
    const std::vector<std::string> LComandos{"INSERT INTO SC00_EMPRESA (IDEMPRESA, EMPRESA) VALUES (901, '901')",
                                             "UPDATE SC00_EMPRESA SET NOME = 'novo' WHERE IDEMPRESA = 900"};
    const auto LEstado = [] {
        return Consultar("SELECT LIST(IDEMPRESA || COALESCE(NOME, '-')) FROM SC00_EMPRESA WHERE IDEMPRESA >= 900");
    };
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 900}, {"EMPRESA", "900"}});
    const auto LAntes = LEstado();
    TProvocador LProvocador(Conexao());
    std::size_t LFalhas = 0;
    for (std::size_t LPasso = 0;; ++LPasso) {
        SCOPED_TRACE(LPasso);
        LProvocador.FalharNoPasso(LPasso, CODIGO_QUALQUER);
        const auto LResultado = Conexao().ExecutouSQL(LComandos, false);
        const bool LProvocada = LProvocador.Falhas() > 0;
        LProvocador.Zerar();
        EXPECT_EQ(!LProvocada, LResultado.Sucesso);
        EXPECT_EQ(LProvocada ? TEXTO_DA_FALHA : "", LResultado.Mensagem);
        if (!LProvocada)
            break;
        EXPECT_EQ(LAntes, LEstado());
        ++LFalhas;
    }
    EXPECT_EQ(8U, LFalhas) << "two statements and the two of their savepoint, each prepared and run";
    EXPECT_EQ("900novo,901-", LEstado());
}

INSTANTIATE_TEST_SUITE_P(Eventos, TTesteFalhaEmCadaPasso, ::testing::ValuesIn(EventosDoCatalogo()), NomeDoEvento);

} // namespace
} // namespace tarvo::testes
