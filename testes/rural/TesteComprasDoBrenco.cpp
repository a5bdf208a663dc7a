#include <tuple>

#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnTarvoConexaoBrenco.h"
#include "rural/UnComprasDeTeste.h"
#include "rural/produtor/UnTarvoESocialCamposideProdutorBrencoExterno.h"
#include "rural/s1250/UnTarvoESocialCamposideEstabAdquir.h"
#include "rural/s1250/UnTarvoESocialCamposideEstabAdquirBrencoExterno.h"
#include "rural/s1250/UnTarvoESocialCampostpAquisBrencoExterno.h"

namespace tarvo::testes {
namespace {

using namespace tarvo::rural;

class TTesteComprasDoBrenco : public TTesteComprasComBrenco {
protected:
    /// By both families, which differ in nothing here.
    static std::string CarregarPorAmbas()
    {
        auto LResumo = Carregar(BRENCO);
        EXPECT_EQ(LResumo, Carregar(EXTERNO));
        return LResumo;
    }
};

TEST_F(TTesteComprasDoBrenco, OsTiposContamOQueOsProdutoresDeixamFora)
{
    InserirProdutor(1, "11122233344");
    // All are read for the kinds of acquisition; only what is a purchase of production for the rest.
    const std::string LSo = "81300700000101: 1=1000 11122233344 1000/0/0/0";
    const std::string LTipoVazio = "81300700000101: 1=";
    const std::string LNada = "81300700000101:";
    struct TCaso {
        TEntrada Entrada;
        const std::string& Esperado;
    };
    std::vector<TCaso> LCasos{{{}, LSo},
                              {{.Data = D(2021, 3, 1)}, LSo},
                              {{.Data = D(2021, 3, 31)}, LSo},
                              {{.Data = D(2021, 4, 1)}, LNada},
                              {{.Data = D(2021, 2, 28)}, LNada},
                              {{.Filial = 11}, LNada},
                              {{.Modelo = "55"}, LSo},
                              {{.Cfop = "1.101-1"}, LSo}};
    for (const char* LModelo : {"07", "08", "09", "10", "11", "21", "22", "26"})
        LCasos.push_back({{.Modelo = LModelo}, LTipoVazio});
    for (const char* LCfop : {"1.904", "1.905", "1.949", "2.904", "2.905", "2.949", "1.949-2"})
        LCasos.push_back({{.Cfop = LCfop}, LTipoVazio});
    for (const auto& LCaso : LCasos) {
        for (const char* LTabela : {"ES02_ENTRADA", "ES02_ENTRADADET", "ES02_CFOP"})
            Executar(std::string("DELETE FROM ") + LTabela);
        InserirEntrada(LCaso.Entrada);
        EXPECT_EQ(LCaso.Esperado, CarregarPorAmbas()) << LCaso.Entrada.Modelo << " " << LCaso.Entrada.Cfop;
    }
}

TEST_F(TTesteComprasDoBrenco, SoProdutoresPorCpf)
{
    InserirProdutor(1, "11122233344");
    InserirProdutor(2, "22233344455", 1, 0);
    InserirProdutor(3, "33344455566", 1, 1, 1);
    for (int i = 1; i <= 3; ++i)
        InserirEntrada({.Id = i, .Plano = i});
    // Grouped by the column itself: no value and 2 are two rows of one kind, each with the whole of it.
    InserirEntrada({.Id = 4, .Isenta = 2, .Valor = 500});
    InserirEntrada({.Id = 5, .Isenta = 1, .Valor = 70});
    const std::string LTipo2 = " 1=1500 11122233344 1500/0/0/0";
    EXPECT_EQ("81300700000101:" + LTipo2 + " 4=70 11122233344 70/0/0/0" + LTipo2, CarregarPorAmbas());
    // A note counts once for each of its details.
    Inserir("ES02_ENTRADADET", {{"IDENTRADA", 5}, {"IDCFOP", 5}});
    EXPECT_EQ("81300700000101:" + LTipo2 + " 4=140 11122233344 140/0/0/0" + LTipo2, CarregarPorAmbas());
}

TEST_F(TTesteComprasDoBrenco, RateiaARetencaoContabilizada)
{
    struct TCaso {
        double Aliquota;
        double Valor;
        TValorSql Isenta;
        TValorSql IndOpcCp;
        const char* Esperado;
    };
    for (const auto& LCaso : {TCaso{1.5, 15, nullptr, 1, "1=1000 11122233344 1000/12/1/2"},
                              TCaso{1.5, 15, 2, nullptr, "1=1000 11122233344 1000/12/1/2"},
                              TCaso{3, 15, nullptr, 1, "1=1000 11122233344 1000/13,5/0,5/1"},
                              TCaso{1.5, 15, nullptr, 2, "1=1000 11122233344 1000/0/0/15"},
                              TCaso{1.5, 15, 1, 1, "4=1000 11122233344 1000/0/0/15"},
                              TCaso{0, 15, nullptr, 2, "1=1000 11122233344 1000/0/0/15"},
                              TCaso{0, 0, nullptr, 1, "1=1000 11122233344 1000/0/0/0"},
                              TCaso{1.5, -15, nullptr, 1, "1=1000 11122233344 1000/0/0/0"}}) {
        for (const char* LTabela : {"ES02_CLIFOR", "CO01_PLANO", "ES02_ENTRADA", "ES02_ENTRADADET", "ES02_CFOP",
                                    "CO01_DIARIO", "TR04_IMPRETIDO"})
            Executar(std::string("DELETE FROM ") + LTabela);
        InserirProdutor(1, "11122233344", LCaso.IndOpcCp);
        InserirEntrada({.Isenta = LCaso.Isenta});
        InserirRetencao(1, LCaso.Aliquota, LCaso.Valor, 2, 51);
        InserirRetencao(1, 9, 99, 2, 2);
        InserirRetencao(1, 9, 99, 3, 11);
        EXPECT_EQ("81300700000101: " + std::string(LCaso.Esperado), CarregarPorAmbas());
    }
    // The average of the rates, and the sum of the amounts.
    Executar("UPDATE TR04_IMPRETIDO SET ALIQUOTA = 1, VLRIMPOSTO = 10 WHERE IDDIARIO = 1");
    Executar("UPDATE ES02_ENTRADA SET PRODUCAOISENTA = 2");
    InserirRetencao(1, 2, 5, 2, 11);
    EXPECT_EQ("81300700000101: 1=1000 11122233344 1000/12/1/2", CarregarPorAmbas());
    // Nothing to divide by.
    Executar("UPDATE TR04_IMPRETIDO SET ALIQUOTA = NULL");
    EXPECT_THROW(Carregar(BRENCO), EZeroDivide);
    EXPECT_THROW(Carregar(EXTERNO), EZeroDivide);
}

TEST_F(TTesteComprasDoBrenco, OQueSobraParaCpArredondaUmaVez)
{
    InserirProdutor(1, "11122233344");
    InserirEntrada({});
    InserirRetencao(1, 1.5, 4325.24);
    auto LEvento = Evento(BRENCO);
    LEvento.CarregarDados();
    // One rounding after each subtraction would leave 3460.1919999999996.
    EXPECT_EQ(3460.192, LEvento.ideEstabAdquir->tpAquis.at(0)->ideProdutor.at(0)->vrCPDescPR);
}

TEST_F(TTesteComprasDoBrenco, RetencaoDeModeloExcluidoSoContaNoBancoProprio)
{
    InserirProdutor(1, "11122233344");
    InserirEntrada({});
    InserirEntrada({.Id = 2, .Modelo = "08"});
    InserirEntrada({.Id = 3, .Cfop = "1.949"});
    for (int i = 1; i <= 3; ++i)
        InserirRetencao(i, 1.5, 15);
    EXPECT_EQ("81300700000101: 1=1000 11122233344 1000/12/1/2", Carregar(BRENCO));
    EXPECT_EQ("81300700000101: 1=1000 11122233344 1000/24/2/4", Carregar(EXTERNO));
}

TEST_F(TTesteComprasDoBrenco, ProcessosLevamARetencaoInteiraParaCp)
{
    InserirProdutor(1, "01122233344");
    InserirEntrada({});
    InserirRetencao(1, 1.5, 15);
    InserirProcesso(1, "IDPLANO", 1, 7, 2, 3);
    InserirProcesso(2, "IDPLANO", 1, 7, 2, 3, D(2021, 4, 1));
    // The plans of who has the inscription, but is no producer or no person.
    InserirProdutor(2, "01122233344", 1, 0);
    InserirProdutor(3, "01122233344", 1, 1, 1);
    InserirProcesso(8, "IDPLANO", 2, 7, 2, 3);
    InserirProcesso(9, "IDPLANO", 3, 7, 2, 3);
    Executar("UPDATE ES02_SPPROC SET IDFILIAL = 10");
    EXPECT_EQ("81300700000101: 1=1000 01122233344 1000/15/0/0(P1 -3/1/2)", CarregarPorAmbas());
    // Of another establishment: the payroll database tells it apart, the sibling's own doesn't.
    Executar("UPDATE ES02_SPPROC SET IDFILIAL = 11");
    EXPECT_EQ("81300700000101: 1=1000 01122233344 1000/12/1/2", Carregar(BRENCO));
    EXPECT_EQ("81300700000101: 1=1000 01122233344 1000/15/0/0(P1 -3/1/2)", Carregar(EXTERNO));
    // A process of the acquirer hides the producer's, and leaves the booked amounts.
    InserirProcesso(3, "IDFILIAL", 10);
    EXPECT_EQ("81300700000101: 1=1000 01122233344 1000/12/1/2 {P3 0/0/0}", CarregarPorAmbas());
    // Without producers the process stands alone, with sums of zero, in the payroll database only.
    Executar("UPDATE ES02_ENTRADA SET MODELO = '08'");
    EXPECT_EQ("81300700000101: 1= {P3 0/0/0}", Carregar(BRENCO));
    EXPECT_EQ("81300700000101: 1=", Carregar(EXTERNO));
    // The statement of the payroll database takes the inscription bare.
    Executar("DELETE FROM ES02_SPPROC");
    Executar("UPDATE ES02_ENTRADA SET MODELO = '04'");
    Executar("UPDATE ES02_CLIFOR SET CNPJ = '011.222.333-44'");
    EXPECT_THROW(Carregar(BRENCO), EDatabaseError);
    EXPECT_EQ("81300700000101: 1=1000 011.222.333-44 1000/12/1/2", Carregar(EXTERNO));
}

/// The sibling system in a second database file, with ids of its own.
class TTesteComprasDoBrencoExterno : public TTesteCompras {
protected:
    static void SetUpTestSuite()
    {
        FConexaoDoBrenco = std::make_unique<TOvraConnection>(CriarBancoDeTeste("brenco.fdb", false));
    }
    static void TearDownTestSuite() { FConexaoDoBrenco.reset(); }

    void SetUp() override
    {
        TTesteCompras::SetUp();
        FConexaoDoBrenco->IniciarTransacao();
        FBrenco.emplace(*FConexaoDoBrenco);
        NoBrenco([] {
            InserirFilial(77, CNPJ);
            InserirProdutor(5, "11122233344");
            InserirEntrada({.Filial = 77, .Plano = 5});
            InserirRetencao(1, 1.5, 15);
        });
    }
    void TearDown() override
    {
        FBrenco.reset();
        FConexaoDoBrenco->Desfazer();
        TTesteCompras::TearDown();
    }
    /// Inserts on the sibling's connection.
    template <class F>
    void NoBrenco(F AInserir)
    {
        DefinirOvraConnection(FConexaoDoBrenco.get());
        AInserir();
        DefinirOvraConnection(&Conexao());
    }
    static std::string Familia(int ATipoConexao)
    {
        const auto LEvento = Evento(ATipoConexao);
        const auto* LEstab = LEvento.ideEstabAdquir.get();
        if (LEstab == nullptr)
            return "nenhuma";
        return dynamic_cast<const TTarvoESocialCamposideEstabAdquir*>(LEstab) != nullptr ? "folha" : "externa";
    }

    static inline std::unique_ptr<TOvraConnection> FConexaoDoBrenco;
    std::optional<TBrencoLigado> FBrenco;
};

TEST_F(TTesteComprasDoBrencoExterno, AFamiliaSegueALigacao)
{
    auto& LBrenco = BuscarInstanciaTarvoConexaoBrenco();
    auto& LUsuario = BuscarInstanciaTarvoConexaoBrencoUsuario();
    const auto Familias = [] {
        return Familia(1) + " " + Familia(BRENCO) + " " + Familia(EXTERNO) + " " + Familia(0) + " " + Familia(-1);
    };
    EXPECT_EQ("folha externa externa externa externa", Familias());
    LUsuario.DefinirUsuarioTemPermissao(false);
    EXPECT_EQ("folha nenhuma nenhuma nenhuma nenhuma", Familias());
    LUsuario.DefinirUsuarioTemPermissao(true);
    LBrenco.DefinirConexao(nullptr);
    EXPECT_EQ("folha nenhuma nenhuma nenhuma nenhuma", Familias());
    // The same database: the tables are read where they are, without asking for permission.
    LBrenco.DefinirConexao(&Conexao());
    EXPECT_EQ("folha folha externa externa externa", Familias());
    LUsuario.DefinirUsuarioTemPermissao(false);
    EXPECT_EQ("folha folha nenhuma nenhuma nenhuma", Familias());
}

TEST(TVersaoDoBrenco, DoFirebird3EmDiante)
{
    for (const auto& [LVersao, LLe] : {std::pair{"2", false}, {"3", true}, {"4", true}, {"10", true}, {"", false}})
        EXPECT_EQ(LLe, TTarvoESocialCamposS1250::VersaoLeTabelasDoBrenco(LVersao)) << LVersao;
}

TEST_F(TTesteComprasDoBrencoExterno, AchaOEstabelecimentoPelaInscricao)
{
    const auto Achou = [&](const std::string& AMudanca) {
        NoBrenco([&] { Executar("UPDATE SC00_FILIAL SET " + AMudanca); });
        return Familia(EXTERNO) == "externa";
    };
    EXPECT_TRUE(Achou("ENCERRAMENTOATIV = '02.03.2021'"));
    EXPECT_FALSE(Achou("ENCERRAMENTOATIV = '01.03.2021'"));
    EXPECT_FALSE(Achou("ENCERRAMENTOATIV = NULL, CNPJ = '81300700000284'"));
    auto LEvento = Evento(EXTERNO);
    EXPECT_THROW(LEvento.CarregarDados(), EAccessViolation);
    EXPECT_EQ("{\"ideEstabAdquir\":null}", LEvento.ToJson().AsJSON());
    // A rural establishment goes by its CAEPF.
    Executar("UPDATE SC00_FILIAL SET TPINSCRICAO = 3, MATRICULACAEPF = '81300700100155'");
    EXPECT_FALSE(Achou("CNPJ = '81300700100155'"));
    EXPECT_TRUE(Achou("MATRICULACAEPF = '81300700100155'"));
    EXPECT_EQ("81300700100155: 1=1000 11122233344 1000/12/1/2", Carregar(EXTERNO));
}

TEST_F(TTesteComprasDoBrencoExterno, LeAsComprasLaEOsProcessosAqui)
{
    const std::string LCompra = "81300700000101: 1=1000 11122233344 1000/";
    EXPECT_EQ(LCompra + "12/1/2", Carregar(EXTERNO));
    NoBrenco([] {
        InserirProcesso(1, "IDPLANO", 5);
        InserirProcesso(2, "IDFILIAL", 77);
    });
    EXPECT_EQ(LCompra + "12/1/2", Carregar(EXTERNO));
    InserirProcesso(3, "IDPLANO", 5);
    InserirProcesso(4, "IDFILIAL", 77);
    EXPECT_EQ(LCompra + "15/0/0(P3 -3/1/2)", Carregar(EXTERNO));
    InserirProcesso(5, "IDFILIAL", 10);
    EXPECT_EQ(LCompra + "12/1/2 {P5 0/0/0}", Carregar(EXTERNO));
    Executar("DELETE FROM ES02_SPPROC WHERE IDSPPROC = 5");
    // The plan is that of the producer's purchase of the month.
    NoBrenco([] {
        InserirProdutor(6, "11122233344");
        InserirEntrada({.Id = 2, .Filial = 77, .Plano = 6});
        InserirRetencao(2, 1.5, 15);
    });
    for (const auto& [LTabela, LOutro, LProprio] :
         {std::tuple{"ES02_CLIFOR", "PRODUTOR = 0", "PRODUTOR = 1"},
          {"ES02_CLIFOR", "TPINSCRICAO = 1", "TPINSCRICAO = 2"},
          {"ES02_ENTRADA", "DATAENTRADA = '01.04.2021'", "DATAENTRADA = '05.03.2021'"}}) {
        const auto Mudar = [this, &LTabela = LTabela](const char* AMudanca) {
            NoBrenco([&] {
                Executar(std::string("UPDATE ") + LTabela + " SET " + AMudanca +
                         (LTabela == std::string("ES02_CLIFOR") ? " WHERE IDCLIFOR = 5" : " WHERE IDPLANO = 5"));
            });
        };
        Mudar(LOutro);
        EXPECT_EQ(LCompra + "12/1/2", Carregar(EXTERNO)) << LOutro;
        Mudar(LProprio);
    }
    NoBrenco([] { Executar("DELETE FROM ES02_CLIFOR WHERE IDCLIFOR = 6"); });
    InserirProcesso(6, "IDFILIAL", 10);
    // The list goes down to the processes of the acquirer, and to no producer.
    auto LEvento = Evento(EXTERNO);
    const TListaCamposModificados LLista{"{48D0EDD4-1551-4EA5-A50F-D70B25D437C0}"};
    LEvento.CarregarDados(&LLista);
    EXPECT_EQ(LCompra + "12/1/2 { 0/0/0}", Resumo(*LEvento.ideEstabAdquir));
}

TEST_F(TTesteComprasDoBrencoExterno, LigacaoPerdidaDeixaTudoVazio)
{
    InserirProcesso(3, "IDPLANO", 5);
    const auto Conferir = [] {
        TTarvoESocialCampostpAquisBrencoExterno LTipo(77, D(2021, 3, 1), D(2021, 3, 31), 2);
        TTarvoESocialCamposideProdutorBrencoExterno LProdutor(77, "11122233344", D(2021, 3, 1), D(2021, 3, 31), false,
                                                              2);
        LProdutor.nrInscProd = "antes";
        LProdutor.vlrBruto = LProdutor.vrCPDescPR = LProdutor.vrRatDescPR = LProdutor.vrSenarDesc = 1;
        LTipo.CarregarDados();
        LProdutor.CarregarDados();
        EXPECT_EQ("0", LTipo.vlrTotAquis);
        EXPECT_TRUE(LTipo.ideProdutor.empty() && LTipo.infoProcJ.empty() && LProdutor.infoProcJud.empty());
        EXPECT_EQ("", LProdutor.nrInscProd);
        EXPECT_EQ("0/0/0/0", Valores(LProdutor));
    };
    auto LEvento = Evento(EXTERNO);
    BuscarInstanciaTarvoConexaoBrencoUsuario().DefinirUsuarioTemPermissao(false);
    LEvento.CarregarDados();
    EXPECT_EQ(":", Resumo(*LEvento.ideEstabAdquir));
    Conferir();
    BuscarInstanciaTarvoConexaoBrencoUsuario().DefinirUsuarioTemPermissao(true);
    BuscarInstanciaTarvoConexaoBrenco().DefinirConexao(nullptr);
    LEvento.CarregarDados();
    EXPECT_EQ(":", Resumo(*LEvento.ideEstabAdquir));
    Conferir();
}

} // namespace
} // namespace tarvo::testes
