#include <cstdio>
#include <optional>
#include <thread>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnEventosDoCatalogo.h"
#include "apoio/UnPonteTcp.h"
#include "apoio/UnTestesLongos.h"
#include "imports/UnOvraExcecoes.h"

// The connection is really lost in the middle of a load: against a server by a bridge that is cut, on the embedded
// engine by another connection that ends it.

namespace tarvo::testes {
namespace {

/// Cuts of one event in a short run.
constexpr std::size_t MAXIMO_DE_CORTES = 4;

/// The database of these tests, with what cuts a connection to it.
class TTesteConexaoCortada : public ::testing::TestWithParam<std::string> {
protected:
    static void SetUpTestSuite()
    {
        FParametros = CriarBancoDeTeste("cortada.fdb", true);
        const auto& LBanco = FParametros.BancoDeDados;
        FPelaPonte = FParametros;
        if (FParametros.EhServidor()) {
            const auto LBarra = LBanco.find('/');
            const auto LDoisPontos = LBanco.find(':');
            ASSERT_LT(LBarra, LDoisPontos) << "TESTES_LIGACAO é host/porta:pasta";
            FPonte.emplace(LBanco.substr(0, LBarra), LBanco.substr(LBarra + 1, LDoisPontos - LBarra - 1));
            FPelaPonte.BancoDeDados = "127.0.0.1/" + std::to_string(FPonte->Porta()) + LBanco.substr(LDoisPontos);
        }
        FCarrasco = std::make_unique<TOvraConnection>(FParametros);
    }
    static void TearDownTestSuite()
    {
        FCarrasco.reset();
        FPonte.reset();
        std::printf("Conexões cortadas %s: %zu de %zu passos%s\n",
                    FParametros.EhServidor() ? "por uma ponte TCP, no servidor"
                                             : "pelo próprio motor embutido (TESTES_LIGACAO corta as de um servidor)",
                    FCortes, FPassos, TestesLongos() ? "" : " (TESTES_LONGOS=1 corta em todos)");
    }
    void TearDown() override { DefinirOvraConnection(nullptr); }

    /// Ends the connection of that id, from outside.
    static void Cortar(const std::string& AId)
    {
        if (FPonte) {
            FPonte->Cortar();
            return;
        }
        EXPECT_TRUE(
            FCarrasco->ExecutouSQL({"DELETE FROM MON$ATTACHMENTS WHERE MON$ATTACHMENT_ID = " + AId}, true).Sucesso);
        // The engine takes a moment.
        for (int i = 0; i < 1000; ++i) {
            const auto LLinhas = FCarrasco->Consultar("SELECT 1 FROM MON$ATTACHMENTS WHERE MON$ATTACHMENT_ID = " + AId);
            FCarrasco->Desfazer();
            if (LLinhas.QuantidadeDeLinhas() == 0)
                return;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        FAIL() << "o motor não encerrou a conexão " << AId;
    }

    static inline TParametrosConexao FParametros;
    static inline TParametrosConexao FPelaPonte;
    static inline std::optional<TPonteTcp> FPonte;
    static inline std::unique_ptr<TOvraConnection> FCarrasco;
    static inline std::size_t FCortes = 0;
    static inline std::size_t FPassos = 0;
};

TEST_P(TTesteConexaoCortada, ACargaFalhaEUmaConexaoNovaServe)
{
    const auto LCasos = CasosDoEvento(GetParam(), false);
    ASSERT_FALSE(LCasos.empty());
    auto LConexao = std::make_unique<TOvraConnection>(FPelaPonte);
    DefinirOvraConnection(LConexao.get());
    std::size_t LPassos = 0;
    LConexao->DefinirVigia([&](TPassoSql) { ++LPassos; });
    const auto LEsperado = CarregarCaso(LCasos[0]);
    FPassos += LPassos;
    const auto LSalto = Intervalo(LPassos, MAXIMO_DE_CORTES);
    for (std::size_t LCorte = 0; LCorte < LPassos; LCorte += LSalto) {
        SCOPED_TRACE("passo " + std::to_string(LCorte));
        LConexao = std::make_unique<TOvraConnection>(FPelaPonte);
        DefinirOvraConnection(LConexao.get());
        const auto LId = Consultar("SELECT CURRENT_CONNECTION FROM RDB$DATABASE");
        std::size_t LPasso = 0;
        std::size_t LPedidos = 0;
        std::size_t LPodem = 0;
        LConexao->DefinirVigia([&](TPassoSql APasso) {
            if (LPasso > LCorte && APasso != TPassoSql::LerLinha)
                ++LPedidos;
            if (LPasso++ != LCorte)
                return;
            // Rows that the client has already got are still read; the loss shows with the next statement then.
            LPodem = APasso == TPassoSql::LerLinha ? 1 : 0;
            Cortar(LId);
        });
        try {
            // Only a load that already had all its rows may end, and then it is right.
            EXPECT_EQ(LEsperado, CarregarCaso(LCasos[0]));
            EXPECT_EQ(1U, LPodem) << "a carga terminou sem conexão";
            EXPECT_EQ(0U, LPedidos) << "a carga terminou sem conexão";
        } catch (const EDatabaseError& LErro) {
            EXPECT_NE(0, LErro.Codigo());
            EXPECT_STRNE("", LErro.what());
        }
        EXPECT_LE(LPedidos, LPodem) << "nothing is tried again on a lost connection";
        // The lost one keeps failing with an error, and may be freed.
        EXPECT_THROW(CarregarCaso(LCasos[0]), EDatabaseError);
        ++FCortes;
        if (HasFailure())
            return;
        LConexao = std::make_unique<TOvraConnection>(FPelaPonte);
        DefinirOvraConnection(LConexao.get());
        EXPECT_EQ(LEsperado, CarregarCaso(LCasos[0]));
    }
}

INSTANTIATE_TEST_SUITE_P(Eventos, TTesteConexaoCortada, ::testing::ValuesIn(EventosDoCatalogo()), NomeDoEvento);

} // namespace
} // namespace tarvo::testes
