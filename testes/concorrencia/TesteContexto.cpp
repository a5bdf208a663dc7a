#include <array>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "concorrencia/UnThreadsDeTeste.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraContexto.h"

namespace tarvo::testes {
namespace {

/// The process's own context has the fixture's connection.
class TTesteContexto : public TTesteComExemplo {
protected:
    void TearDown() override
    {
        BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(1);
        BuscarInstanciaListaSql().LimparLista();
        GOvraUtilsDialogs.DefinirReacao(nullptr);
        TTesteComExemplo::TearDown();
    }
};

TEST_F(TTesteContexto, ThreadsComConexaoPropriaDaoOsGoldens)
{
    const auto LCasos = LerCasosDosGoldens();
    ASSERT_GT(LCasos.size(), 200U);
    // What they don't set themselves is not theirs: nobody sees this.
    BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(2);
    const std::array LBancos{ParametrosDoBanco("exemplo.fdb"), OutroBanco()};
    constexpr int THREADS = 3;
    TEncontro LLargada(THREADS);
    EmThreads(THREADS, [&](int AThread) {
        TOvraConnection LConexao(LBancos[static_cast<std::size_t>(AThread) % LBancos.size()]);
        TOvraContexto LContexto(&LConexao);
        const TUsoDoContexto LUso(LContexto);
        EXPECT_TRUE(LLargada.Chegar());
        // Two of them share a file, and each begins elsewhere, so that different events meet.
        for (std::size_t i = 0; i < LCasos.size(); ++i) {
            const auto& LCaso = LCasos[(i + static_cast<std::size_t>(AThread) * 10) % LCasos.size()];
            ASSERT_EQ(JsonDoGolden(LCaso), CarregarCaso(LCaso, true)) << LCaso.Evento << "/" << LCaso.Nome;
            LConexao.Desfazer();
        }
    });
    EXPECT_EQ(&Conexao(), OvraConnectionOuNulo());
    EXPECT_FALSE(BuscarInstanciaTarvoConexaoBrenco().Conectado());
}

TEST_F(TTesteContexto, NoMeioDeDuasCargasCadaUmaTemOhSeu)
{
    TEncontro LNoMeio(2);
    EmThreads(2, [&](int AThread) {
        TOvraConnection LConexao(OutroBanco());
        TOvraContexto LContexto(&LConexao);
        const TUsoDoContexto LUso(LContexto);
        BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(AThread + 1);
        std::vector<std::string> LAlertas;
        GOvraUtilsDialogs.DefinirReacao([&](const std::string& ATexto) { LAlertas.push_back(ATexto); });
        const TBrencoLigado LBrenco(LConexao);
        bool LEncontrou = false;
        LConexao.DefinirObservador([&](const TExecucaoSql&) {
            if (LEncontrou)
                return;
            LEncontrou = true;
            EXPECT_TRUE(LNoMeio.Chegar()) << "a outra carga não corre ao lado desta";
            EXPECT_EQ(&LConexao, &OvraConnection());
            EXPECT_EQ(&LConexao, &BuscarInstanciaTarvoConexaoBrenco().OvraConnection());
            EXPECT_EQ(AThread + 1, BuscarInstanciaOvraEsocialReinfControleAmbientes().BuscarTpAmbParaXML());
        });
        const auto LNome = "Cargo " + std::to_string(AThread);
        const auto LCargo = ConstruirEvento("S-1030", {{"AIDCargosDescr", "8"}});
        LCargo.Evento->CarregarDados();
        EXPECT_TRUE(LEncontrou);
        DefinirPropriedadePeloCaminho(*LCargo.Evento, "InfoCargo.DadosCargo.nmCargo", LNome);
        LCargo.Evento->ReverterDados();
        const auto& LLista = BuscarInstanciaListaSql().Lista;
        ASSERT_EQ(3U, LLista.size());
        EXPECT_NE(std::string::npos, LLista[0].find("'" + LNome + "'")) << LLista[0];
        GOvraUtilsDialogs.Alerta(LNome);
        EXPECT_EQ(std::vector{LNome}, LAlertas);
    });
    EXPECT_TRUE(BuscarInstanciaListaSql().Lista.empty());
}

TEST_F(TTesteContexto, OhAnteriorVoltaTambemPorUmaExcecao)
{
    auto& LDoProcesso = ContextoCorrente();
    TOvraConnection LConexao(OutroBanco());
    TOvraContexto LFora(&LConexao);
    TOvraContexto LDentro;
    {
        const TUsoDoContexto LUso(LFora);
        try {
            const TUsoDoContexto LMaisUm(LDentro);
            EXPECT_EQ(&LDentro, &ContextoCorrente());
            BuscarInstanciaListaSql().Lista.push_back("de dentro");
            // It has no connection: the load fails.
            ConstruirEvento("S-1030", {{"AIDCargosDescr", "8"}}).Evento->CarregarDados();
            ADD_FAILURE() << "carregou sem conexão";
        } catch (const Exception& LErro) {
            EXPECT_STREQ("Nenhuma conexão com o banco de dados foi definida", LErro.what());
        }
        EXPECT_EQ(&LFora, &ContextoCorrente());
        EXPECT_EQ(&LConexao, &OvraConnection());
        EXPECT_TRUE(BuscarInstanciaListaSql().Lista.empty());
        DefinirOvraConnection(nullptr);
    }
    EXPECT_EQ(&LDoProcesso, &ContextoCorrente());
    EXPECT_EQ(&Conexao(), &OvraConnection());
    EXPECT_EQ(std::vector<std::string>{"de dentro"}, LDentro.Parte<TListaSql>().Lista);
}

TEST_F(TTesteContexto, ThreadSemContextoUsaOhDoProcesso)
{
    auto& LDoProcesso = ContextoCorrente();
    const TCasoDoGolden LCaso{"S-1030", "publico", {{"AIDCargosDescr", "8"}}};
    std::vector<std::string> LAlertas;
    GOvraUtilsDialogs.DefinirReacao([&](const std::string& ATexto) { LAlertas.push_back(ATexto); });
    BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(2);
    // What this thread uses meanwhile concerns no other.
    TOvraContexto LOutro;
    const TUsoDoContexto LUso(LOutro);
    EmThreads(1, [&](int) {
        EXPECT_EQ(&LDoProcesso, &ContextoCorrente());
        EXPECT_EQ(2, BuscarInstanciaOvraEsocialReinfControleAmbientes().BuscarTpAmbParaXML());
        EXPECT_EQ(&Conexao(), &OvraConnection());
        EXPECT_EQ(JsonDoGolden(LCaso), CarregarCaso(LCaso, true));
        GOvraUtilsDialogs.Alerta("da thread");
        BuscarInstanciaListaSql().Lista.push_back("da thread");
    });
    EXPECT_EQ(&LOutro, &ContextoCorrente());
    EXPECT_TRUE(BuscarInstanciaListaSql().Lista.empty());
    EXPECT_EQ(std::vector<std::string>{"da thread"}, LDoProcesso.Parte<TListaSql>().Lista);
    EXPECT_EQ(std::vector<std::string>{"da thread"}, LAlertas);
}

TEST_F(TTesteContexto, ConexaoLiberadaDeixaDeSerAhCorrente)
{
    TOvraContexto LContexto;
    const TUsoDoContexto LUso(LContexto);
    {
        TOvraConnection LConexao(OutroBanco());
        DefinirOvraConnection(&LConexao);
        EXPECT_EQ(&LConexao, OvraConnectionOuNulo());
    }
    EXPECT_EQ(nullptr, OvraConnectionOuNulo());
    EXPECT_THROW(OvraConnection(), Exception);
}

} // namespace
} // namespace tarvo::testes
