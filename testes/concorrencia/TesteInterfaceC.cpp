#include <array>
#include <atomic>
#include <memory>
#include <set>
#include <thread>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"
#include "c/tarvo_esocial.h"
#include "concorrencia/UnThreadsDeTeste.h"
#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraContexto.h"

namespace tarvo::testes {
namespace {

struct TLiberador {
    void operator()(tarvo_conexao* AConexao) const { tarvo_desconectar(AConexao); }
    void operator()(tarvo_evento* AEvento) const { tarvo_evento_liberar(AEvento); }
    void operator()(tarvo_textos* ATextos) const { tarvo_liberar_textos(ATextos); }
    void operator()(char* ATexto) const { tarvo_liberar_texto(ATexto); }
};
using TConexao = std::unique_ptr<tarvo_conexao, TLiberador>;
using TEvento = std::unique_ptr<tarvo_evento, TLiberador>;
using TTextos = std::unique_ptr<tarvo_textos, TLiberador>;

void Conferir(tarvo_situacao ASituacao)
{
    if (ASituacao != TARVO_FEITO)
        throw Exception(tarvo_erro());
}

/// On the database of these tests, which is the sibling system's too.
TConexao Conectar()
{
    const auto& LBanco = OutroBanco().BancoDeDados;
    tarvo_conexao* LConexao = nullptr;
    Conferir(tarvo_conectar(LBanco.c_str(), nullptr, nullptr, &LConexao));
    TConexao LResultado(LConexao);
    Conferir(tarvo_conectar_brenco(LConexao, LBanco.c_str(), nullptr, nullptr));
    return LResultado;
}

TEvento Criar(const TConexao& AConexao, const TCasoDoGolden& ACaso)
{
    std::vector<const char*> LNomes;
    std::vector<const char*> LValores;
    for (const auto& [LNome, LValor] : ACaso.Argumentos) {
        LNomes.push_back(LNome.c_str());
        LValores.push_back(LValor.c_str());
    }
    tarvo_evento* LEvento = nullptr;
    Conferir(tarvo_evento_criar(AConexao.get(), ACaso.Evento.c_str(), LNomes.data(), LValores.data(), LNomes.size(),
                                &LEvento));
    return TEvento(LEvento);
}

std::string Json(const TEvento& AEvento)
{
    char* LJson = nullptr;
    Conferir(tarvo_evento_json(AEvento.get(), 1, &LJson));
    return std::unique_ptr<char, TLiberador>(LJson).get();
}

std::string Carregar(const TConexao& AConexao, const TCasoDoGolden& ACaso)
{
    const auto LEvento = Criar(AConexao, ACaso);
    Conferir(tarvo_evento_carregar(LEvento.get(), nullptr));
    return Json(LEvento);
}

/// A case of each event, and of S-1250 all, as they read both connections.
std::vector<TCasoDoGolden> Amostra()
{
    std::set<std::string> LVistos;
    auto LCasos = LerCasosDosGoldens();
    std::erase_if(LCasos, [&](const TCasoDoGolden& ACaso) {
        return !LVistos.insert(ACaso.Evento).second && ACaso.Evento != "S-1250";
    });
    return LCasos;
}

const TCasoDoGolden CARGO{"S-1030", "publico", {{"AIDCargosDescr", "8"}}};
const TCasoDoGolden EMPRESA{"S-1000", "empresa1", {{"AIDEmpresa", "1"}, {"AData", "2021-03-01"}}};

/// A write-back of the position "Segura" stays in the database until it is let go, or half a minute at most.
class TSegurador {
public:
    TSegurador() : FConexao(OutroBanco())
    {
        FConexao.Executar("CREATE SEQUENCE SEQ_ENTROU");
        FConexao.Executar("CREATE SEQUENCE SEQ_SOLTAR");
        FConexao.Confirmar();
        FConexao.Executar(R"(CREATE TRIGGER SEGURAR FOR FP_CARGOSDESCR BEFORE UPDATE AS
DECLARE NUMERO BIGINT;
DECLARE FIM TIMESTAMP;
BEGIN
  IF (NEW.DESCRICAO = 'Segura') THEN
  BEGIN
    NUMERO = GEN_ID(SEQ_ENTROU, 1);
    FIM = DATEADD(30 SECOND TO CAST('NOW' AS TIMESTAMP));
    WHILE (GEN_ID(SEQ_SOLTAR, 0) = 0 AND CAST('NOW' AS TIMESTAMP) < FIM) DO
      NUMERO = NUMERO + 1;
    NEW.DESCRICAO = OLD.DESCRICAO;
  END
END)");
        FConexao.Confirmar();
    }
    bool Entrou() { return FConexao.Consultar("SELECT GEN_ID(SEQ_ENTROU, 0) FROM RDB$DATABASE").Inteiro(0, 0) > 0; }
    void Soltar() { FConexao.Consultar("SELECT GEN_ID(SEQ_SOLTAR, 1) FROM RDB$DATABASE"); }

private:
    TOvraConnection FConexao;
};

TEST(TTesteInterfaceC, UmaChamadaSoEsperaPelasDaSuaConexao)
{
    TSegurador LSegurador;
    const auto LPresa = Conectar();
    const auto LLivre = Conectar();
    const auto LCargo = Criar(LPresa, CARGO);
    Conferir(tarvo_evento_carregar(LCargo.get(), nullptr));
    Conferir(tarvo_evento_definir(LCargo.get(), "InfoCargo.DadosCargo.nmCargo", "Segura"));
    tarvo_textos* LComandos = nullptr;
    Conferir(tarvo_evento_reverter(LCargo.get(), &LComandos));
    const TTextos LDono(LComandos);

    std::atomic<bool> LExecutou = false;
    std::atomic<bool> LLeu = false;
    std::jthread LPrimeira([&] {
        EXPECT_EQ(TARVO_FEITO, tarvo_executar(LPresa.get(), LComandos)) << tarvo_erro();
        LExecutou = true;
    });
    EXPECT_TRUE(Esperar([&] { return LSegurador.Entrou(); }));
    // An event of the held connection; its call has to wait.
    std::jthread LSegunda([&] {
        EXPECT_NE("", Json(LCargo));
        LLeu = true;
    });
    EXPECT_EQ(JsonDoGolden(EMPRESA), Carregar(LLivre, EMPRESA));
    EXPECT_EQ(JsonDoGolden(EMPRESA), Carregar(Conectar(), EMPRESA));
    EXPECT_FALSE(LExecutou) << "a outra conexão esperou por esta";
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_FALSE(LLeu) << "duas chamadas na mesma conexão ao mesmo tempo";
    LSegurador.Soltar();
    LPrimeira.join();
    LSegunda.join();
}

TEST(TTesteInterfaceC, ThreadsComUmaConexaoCadaDaoOsGoldens)
{
    const auto LCasos = Amostra();
    EmThreads(3, [&](int AThread) {
        const auto LConexao = Conectar();
        for (std::size_t i = 0; i < LCasos.size(); ++i) {
            const auto& LCaso = LCasos[(i + static_cast<std::size_t>(AThread) * 7) % LCasos.size()];
            ASSERT_EQ(JsonDoGolden(LCaso), Carregar(LConexao, LCaso)) << LCaso.Evento << "/" << LCaso.Nome;
        }
    });
}

TEST(TTesteInterfaceC, ThreadsEmUmaConexaoEhEmUmEventoSaoServidasUmaPorVez)
{
    const auto LCasos = Amostra();
    const auto LConexao = Conectar();
    const auto LDeTodas = Criar(LConexao, CARGO);
    Conferir(tarvo_evento_carregar(LDeTodas.get(), nullptr));
    const auto LEsperado = JsonDoGolden(CARGO);
    EmThreads(3, [&](int AThread) {
        for (std::size_t i = static_cast<std::size_t>(AThread); i < LCasos.size(); i += 2) {
            ASSERT_EQ(JsonDoGolden(LCasos[i]), Carregar(LConexao, LCasos[i]));
            // One of them may hold the moment already.
            const auto LInicio = tarvo_iniciar_instantaneo(LConexao.get());
            EXPECT_TRUE(LInicio == TARVO_FEITO || LInicio == TARVO_USO_ERRADO) << tarvo_erro();
            Conferir(tarvo_evento_carregar(LDeTodas.get(), nullptr));
            ASSERT_EQ(LEsperado, Json(LDeTodas));
            Conferir(tarvo_encerrar_instantaneo(LConexao.get()));
            // The error is the thread's own.
            EXPECT_EQ(TARVO_USO_ERRADO, tarvo_definir_ambiente(LConexao.get(), 3 + AThread));
            EXPECT_NE(std::string::npos, std::string(tarvo_erro()).find(std::to_string(3 + AThread))) << tarvo_erro();
        }
    });
}

TEST(TTesteInterfaceC, OhUltimoEventoDeQualquerThreadFechaAhConexao)
{
    for (int i = 0; i < 3; ++i) {
        auto LConexao = Conectar();
        std::array LEventos{Criar(LConexao, CARGO), Criar(LConexao, EMPRESA)};
        EmThreads(3, [&](int AThread) {
            if (AThread == 0)
                LConexao.reset();
            else
                LEventos[static_cast<std::size_t>(AThread) - 1].reset();
        });
    }
}

TEST(TTesteInterfaceC, OhContextoDoHospedeiroFicaComoEstava)
{
    TOvraConnection LDele(OutroBanco());
    TOvraContexto LContexto(&LDele);
    const TUsoDoContexto LUso(LContexto);
    BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(2);
    BuscarInstanciaListaSql().Lista = {"dele"};
    const auto LConexao = Conectar();
    const auto LCargo = Criar(LConexao, CARGO);
    Conferir(tarvo_evento_carregar(LCargo.get(), nullptr));
    // Twice: the list of a call begins empty.
    for (int i = 0; i < 2; ++i) {
        tarvo_textos* LComandos = nullptr;
        Conferir(tarvo_evento_reverter(LCargo.get(), &LComandos));
        EXPECT_EQ(3U, tarvo_textos_quantidade(TTextos(LComandos).get()));
    }
    tarvo_evento* LNenhum = nullptr;
    EXPECT_NE(TARVO_FEITO, tarvo_evento_criar(LConexao.get(), "S-1030", nullptr, nullptr, 0, &LNenhum));
    EXPECT_EQ(&LContexto, &ContextoCorrente());
    EXPECT_EQ(&LDele, OvraConnectionOuNulo());
    EXPECT_EQ(2, BuscarInstanciaOvraEsocialReinfControleAmbientes().BuscarTpAmbParaXML());
    EXPECT_FALSE(BuscarInstanciaTarvoConexaoBrenco().Conectado());
    EXPECT_EQ(std::vector<std::string>{"dele"}, BuscarInstanciaListaSql().Lista);
}

TEST(TTesteInterfaceC, ReferenciaEhEsquemasDeVariasThreadsAoMesmoTempo)
{
    constexpr int THREADS = 4;
    std::array<std::string, THREADS> LTextos;
    EmThreads(THREADS, [&](int AThread) {
        tarvo_textos* LCodigos = nullptr;
        Conferir(tarvo_eventos(&LCodigos));
        const TTextos LDono(LCodigos);
        for (std::size_t i = 0; i < tarvo_textos_quantidade(LCodigos); ++i)
            for (const auto LFuncao : {&tarvo_esquema, &tarvo_referencia}) {
                char* LTexto = nullptr;
                Conferir(LFuncao(tarvo_textos_item(LCodigos, i), &LTexto));
                LTextos[static_cast<std::size_t>(AThread)] += std::unique_ptr<char, TLiberador>(LTexto).get();
            }
    });
    EXPECT_GT(LTextos[0].size(), 100'000U);
    for (const auto& LTexto : LTextos)
        EXPECT_TRUE(LTexto == LTextos[0]);
}

} // namespace
} // namespace tarvo::testes
