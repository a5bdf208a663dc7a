#include "imports/UnOvraExcecoes.h"
#include "rural/UnComprasDeTeste.h"
#include "rural/produtor/UnTarvoESocialCamposideProdutor.h"
#include "rural/s1250/UnTarvoESocialCampostpAquis.h"
#include "rural/s1250/UnTarvoESocialCampostpAquisBrenco.h"
#include "rural/s1260/UnTarvoESocialCamposS1260.h"

namespace tarvo::testes {
namespace {

using namespace tarvo::rural;

constexpr const char* RURAL = "99-Comercializacao de Producao Rural";

class TTesteComprasDaFolha : public TTesteCompras {};

TEST_F(TTesteComprasDaFolha, ContaOMovimentoQueTocaOPeriodo)
{
    struct TCaso {
        TDateTime Inicio;
        TValorSql Fim;
        bool Conta;
    };
    InserirPrestador(1, "11122233344");
    for (const auto& LCaso : {TCaso{D(2021, 3, 31), nullptr, true}, TCaso{D(2021, 4, 1), nullptr, false},
                              TCaso{D(2020, 1, 1), D(2021, 3, 1), true}, TCaso{D(2020, 1, 1), D(2021, 2, 28), false},
                              TCaso{D(2020, 1, 1), nullptr, true}}) {
        Executar("DELETE FROM MOV_PRESTSERV");
        InserirMovimento(1, 1000, nullptr, LCaso.Inicio, LCaso.Fim);
        EXPECT_EQ(LCaso.Conta ? "81300700000101: 1=1000 11122233344 1000/12/1/2" : "81300700000101:", Carregar(FOLHA));
    }
}

TEST_F(TTesteComprasDaFolha, SoProdutoresDoEstabelecimentoPorIsencao)
{
    InserirPrestador(1, "11122233344");
    InserirPrestador(2, "22233344455", 2, RURAL);
    InserirPrestador(3, "33344455566", 1, "00-Segurado Especial rural");
    InserirPrestador(4, "44455566677", 1, RURAL, "CEI");
    for (int LPrestador = 1; LPrestador <= 4; ++LPrestador)
        InserirMovimento(LPrestador, 1000);
    InserirMovimento(1, 500, 2);
    InserirMovimento(1, 250, 1);
    InserirFilial(11, "81300700000284");
    InserirMovimento(1, 70, nullptr, D(2021, 3, 5), nullptr, 11);
    // No value and 2 are one kind; a producer of the payroll and exempt purchases leave Senar alone.
    EXPECT_EQ("81300700000101: 4=250 11122233344 250/0/0/0,5 "
              "1=2500 11122233344 1500/18/1,5/3 22233344455 1000/0/0/2",
              Carregar(FOLHA));
    EXPECT_EQ("81300700000284: 1=70 11122233344 70/0,84/0,07/0,14", Carregar(FOLHA, 11));
}

TEST_F(TTesteComprasDaFolha, ProcessoDoProdutorTiraARetencao)
{
    // With a leading zero: the CPF stands bare in the statement, and numbers are compared.
    InserirPrestador(1, "01122233344");
    InserirMovimento(1, 1000);
    InserirMovimento(1, 500, 1);
    InserirProcesso(1, "IDPRESTSERVICO", 1);
    InserirProcesso(2, "IDPRESTSERVICO", 1, 7, 2, 5, D(2021, 4, 1));
    EXPECT_EQ("81300700000101: 4=500 01122233344 500/0/0/0(P1 0/0/1) 1=1000 01122233344 1000/0/0/0(P1 12/1/2)",
              Carregar(FOLHA));
    InserirProcesso(3, "IDPRESTSERVICO", 1, 4);
    EXPECT_EQ("81300700000101: 4=500 01122233344 500/0/0/0(P1 0/0/0,5)(P3 0/0/0,5) "
              "1=1000 01122233344 1000/0/0/0(P1 6/0,5/1)(P3 0/0/1)",
              Carregar(FOLHA));
    // A CPF with punctuation is no number.
    Executar("UPDATE PREST_SERVICO SET CPF = '011.222.333-44'");
    EXPECT_THROW(Carregar(FOLHA), EDatabaseError);
}

TEST_F(TTesteComprasDaFolha, ProcessoDoAdquirenteValeParaTodosOsProdutores)
{
    InserirPrestador(1, "11122233344");
    InserirPrestador(2, "22233344455");
    InserirMovimento(1, 1000);
    InserirMovimento(2, 3000);
    InserirMovimento(2, 500, 1);
    InserirProcesso(1, "IDPRESTSERVICO", 1);
    InserirProcesso(2, "IDFILIAL", 10, 7, 2, 3);
    InserirProcesso(3, "IDFILIAL", 10, 7, 2, 5, D(2021, 4, 1));
    InserirProcesso(4, "IDFILIAL", 11);
    const std::string LComRetencao = "81300700000101: 4=500 22233344455 500/0/0/1 "
                                     "1=4000 11122233344 1000/0/0/0(P1 12/1/2) 22233344455 3000/36/3/6";
    EXPECT_EQ(LComRetencao, Carregar(FOLHA));
    InserirProcesso(5, "IDFILIAL", 10);
    InserirProcesso(6, "IDFILIAL", 10, 1);
    EXPECT_EQ("81300700000101: 4=500 22233344455 500/0/0/0 "
              "1=4000 11122233344 1000/0/0/0 22233344455 3000/0/0/0 {P5 24/2/4} {P6 24/0/0}",
              Carregar(FOLHA));
    // A kind without producers has no process of the acquirer here.
    TTarvoESocialCampostpAquis LVazio(10, D(2020, 3, 1), D(2021, 2, 28), 2);
    LVazio.CarregarDados();
    EXPECT_TRUE(LVazio.infoProcJ.empty());
}

TEST_F(TTesteComprasDaFolha, ValorNaoRetidoSegueOsBitsDoProcesso)
{
    struct TCaso {
        int Abrang;
        int Trib;
        bool Isenta;
        int Qtd;
        const char* Esperado;
    };
    for (const auto& LCaso :
         {TCaso{7, 2, false, 1, "11/0,5/1,75"}, TCaso{7, 2, false, 2, "5,5/0,25/0,875"},
          TCaso{1, 2, false, 1, "11/0/0"}, TCaso{2, 2, false, 1, "0/0,5/0"}, TCaso{4, 6, false, 1, "0/0/1,75"},
          TCaso{7, 13, false, 1, "0/0/0"}, TCaso{7, 2, true, 1, "0/0/1,75"}, TCaso{0, 2, false, 0, "0/0/0"}}) {
        Executar("DELETE FROM ES02_SPPROC");
        Executar("DELETE FROM ES02_SPPROCDET");
        InserirProcesso(1, "IDFILIAL", 10, LCaso.Abrang, LCaso.Trib);
        TTarvoESocialCamposinfoProcJudIOP LDados{1, 1000, 1, 0.5, 0.25, LCaso.Qtd, LCaso.Isenta};
        TTarvoESocialCamposinfoProcJ LProcesso(LDados);
        LDados = {};
        LProcesso.CarregarDados();
        EXPECT_EQ("P1 " + std::string(LCaso.Esperado), Valores(LProcesso));
        EXPECT_EQ("10", LProcesso.codSusp);
    }
    TTarvoESocialCamposinfoProcJud LSemQuantidade({1, 1000, 0, 0, 0, 0, false});
    Executar("UPDATE ES02_SPPROC SET ABRANGS1250 = 7");
    EXPECT_THROW(LSemQuantidade.CarregarDados(), EZeroDivide);
    // Without a suspension there is no row, and nothing is covered.
    Executar("DELETE FROM ES02_SPPROCDET");
    TTarvoESocialCamposinfoProcJud LSemSuspensao({1, 1000, 0, 0, 0, 1, false});
    LSemSuspensao.CarregarDados();
    EXPECT_EQ(" 0/0/0", Valores(LSemSuspensao));
}

TEST_F(TTesteComprasDaFolha, InscricaoPrefereCaepfDepoisCei)
{
    const auto Inscricao = [](const std::string& AMudanca) {
        Executar("UPDATE SC00_FILIAL SET " + AMudanca);
        return Carregar(FOLHA);
    };
    EXPECT_EQ("512345678901:", Inscricao("MATRICULACEI = '512345678901', MATRICULACAEPF = ' '"));
    EXPECT_EQ("81300700100155:", Inscricao("MATRICULACAEPF = '81300700100155'"));
    EXPECT_EQ("81300700000101:", Inscricao("MATRICULACEI = NULL, MATRICULACAEPF = ''"));
}

TEST_F(TTesteComprasDaFolha, AsListasSoCrescem)
{
    InserirPrestador(1, "11122233344");
    InserirMovimento(1, 1000);
    InserirProcesso(1, "IDFILIAL", 10);
    auto LEvento = Evento(FOLHA);
    // Whatever the list, the kinds of acquisition are loaded whole.
    const TListaCamposModificados LLista{"{8B8DDC14-A190-43C3-A3BA-FBB073DEF1AD}"};
    LEvento.CarregarDados(&LLista);
    EXPECT_EQ("81300700000101: 1=1000 11122233344 1000/0/0/0 {P1 12/1/2}", Resumo(*LEvento.ideEstabAdquir));
    LEvento.CarregarDados();
    ASSERT_EQ(2U, LEvento.ideEstabAdquir->tpAquis.size());
    auto& LTipo = *LEvento.ideEstabAdquir->tpAquis.front();
    LTipo.CarregarDados();
    EXPECT_EQ(2U, LTipo.ideProdutor.size());
    EXPECT_EQ(2U, LTipo.infoProcJ.size());
}

/// Forgets to open the processes of the acquirer.
class TTipoEsquecido : public TTarvoESocialCampostpAquisBrenco {
public:
    using TTarvoESocialCampostpAquisBrenco::TTarvoESocialCampostpAquisBrenco;

protected:
    void CarreagarProcessosAdquirente() override {}
};

TEST_F(TTesteComprasDaFolha, AvisaQueFaltamOsProcessosDoAdquirente)
{
    TTipoEsquecido LTipo(10, D(2021, 3, 1), D(2021, 3, 31), 2);
    try {
        LTipo.CarregarDados();
        FAIL();
    } catch (const Exception& LErro) {
        EXPECT_STREQ("Método \"CarreagarProcessosAdquirente\" não implementado", LErro.what());
    }
}

TEST_F(TTesteComprasDaFolha, VendaNaoLeNadaEGuardaOQueLheDeram)
{
    TTarvoESocialCamposS1260 LEvento(10);
    LEvento.ideEstabel.tpComerc.ideAdquir.nfs.nrDocto = "77";
    LEvento.ideEstabel.tpComerc.infoProcJud1060.nrProc = "P1";
    std::int64_t LComandos = 0;
    Conexao().DefinirObservador([&](const TExecucaoSql&) { ++LComandos; });
    LEvento.CarregarDados();
    EXPECT_EQ(0, LComandos);
    EXPECT_EQ("77", LEvento.ideEstabel.tpComerc.ideAdquir.nfs.nrDocto);
    EXPECT_EQ("P1", LEvento.ideEstabel.tpComerc.infoProcJud1060.nrProc);
}

} // namespace
} // namespace tarvo::testes
