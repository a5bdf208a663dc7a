#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/UnOvraExcecoes.h"
#include "rural/fechamento/UnTarvoESocialCamposS1299.h"
#include "rural/s1280/UnTarvoESocialCamposS1280.h"

namespace tarvo::testes {
namespace {

using namespace tarvo::rural;

class TTesteFechamento : public TTesteComBanco {
protected:
    void TearDown() override
    {
        BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(1);
        TTesteComBanco::TearDown();
    }
    void InserirEvento(const char* ATpEvento, TDateTime AIniValid, int AStatus = 201, int ATpId = 0, int ATpAmb = 1,
                       const char* AXml = "<x/>", TDateTime AData = D(2021, 4, 1))
    {
        Inserir("SC00_ESOCIALREINFXML", {{"IDEMPRESA", 1},
                                         {"TPEVENTO", ATpEvento},
                                         {"INIVALID", AIniValid},
                                         {"STATUS", AStatus},
                                         {"TPIDTABELAEVENTO", ATpId},
                                         {"TPAMB", ATpAmb},
                                         {"XML", AXml},
                                         {"DATA", AData}});
    }
    /// remuneration, payments, rural purchases, complements, and the mark of a period without movement
    std::string Fechar(tpIndApuracao AIndApur = tpIndApuracao::Mensal)
    {
        TTarvoESocialCamposinfoFech LFech(1, D(2021, 3, 1), D(2021, 3, 31), AIndApur);
        LFech.CarregarDados();
        EXPECT_EQ(0, LFech.evtComProd + LFech.evtContratAvNP);
        return std::to_string(LFech.evtRemun) + " " + std::to_string(LFech.evtPgtos) + " " +
               std::to_string(LFech.evtAqProd) + " " + std::to_string(LFech.evtInfoComplPer) + " '" +
               LFech.compSemMovto + "'";
    }
};

TEST_F(TTesteFechamento, ContaOsEventosAceitosDoPeriodo)
{
    EXPECT_EQ("0 0 0 0 '0'", Fechar());
    const auto LMes = D(2021, 3, 1);
    InserirEvento("S-1200", LMes);
    InserirEvento("S-1200", D(2021, 3, 31), 202);
    InserirEvento("S-1200", D(2021, 2, 28));
    InserirEvento("S-1200", D(2021, 4, 1));
    InserirEvento("S-1200", LMes, 301);
    InserirEvento("S-1200", LMes, 201, 0, 2);
    InserirEvento("S-2299", LMes, 201, 0, 1, "<evt><VERBASRESC/><verbasResc></verbasResc></evt>");
    InserirEvento("S-2399", LMes, 201, 0, 1, "<evt><x/></evt>");
    InserirEvento("S-1210", LMes);
    InserirEvento("S-1280", LMes);
    EXPECT_EQ("3 1 0 1 ''", Fechar());
    // The thirteenth salary is closed apart.
    EXPECT_EQ("0 0 0 0 '0'", Fechar(tpIndApuracao::Anual));
    InserirEvento("S-1200", LMes, 201, 13);
    EXPECT_EQ("3 1 0 1 ''", Fechar());
    EXPECT_EQ("1 0 0 0 ''", Fechar(tpIndApuracao::Anual));
    BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(2);
    EXPECT_EQ("1 0 0 0 ''", Fechar());
}

TEST_F(TTesteFechamento, AquisicaoSomaAConfiguracaoSemRepetirOUm)
{
    const auto Configurar = [](TDateTime AInicio, TValorSql AFim, const char* AInformacao2) {
        Executar("DELETE FROM SC00_EMPRESACFG");
        Inserir("SC00_EMPRESACFG", {{"IDEMPRESA", 1},
                                    {"ORIGEM", 90},
                                    {"ESPECIE", 38},
                                    {"TP", 15},
                                    {"DATAINICIO", AInicio},
                                    {"DATAFIM", AFim},
                                    {"INFORMACAO2", AInformacao2}});
    };
    struct TCaso {
        TDateTime Inicio;
        TValorSql Fim;
        const char* Informacao2;
        int Vale;
    };
    const TCaso LCasos[] = {{D(2021, 3, 31), nullptr, "2", 1},
                            {D(2021, 4, 1), nullptr, "2", 0},
                            {D(2020, 1, 1), D(2021, 3, 1), "2", 1},
                            {D(2020, 1, 1), D(2021, 2, 28), "2", 0},
                            {D(2020, 1, 1), nullptr, "1", 0}};
    for (const auto& LCaso : LCasos) {
        Configurar(LCaso.Inicio, LCaso.Fim, LCaso.Informacao2);
        EXPECT_EQ("0 0 " + std::to_string(LCaso.Vale) + " 0 '" + (LCaso.Vale ? "" : "0") + "'", Fechar());
    }
    // A setting of another origin, kind or type.
    for (const char* LOutro : {"ORIGEM = 91", "ESPECIE = 39", "TP = 14"}) {
        Configurar(D(2020, 1, 1), nullptr, "2");
        Executar(std::string("UPDATE SC00_EMPRESACFG SET ") + LOutro);
        EXPECT_EQ("0 0 0 0 '0'", Fechar()) << LOutro;
    }
    Configurar(D(2020, 1, 1), nullptr, "2");
    InserirEvento("S-1250", D(2021, 3, 1));
    EXPECT_EQ("0 0 1 0 ''", Fechar());
    InserirEvento("S-1250", D(2021, 3, 1));
    EXPECT_EQ("0 0 3 0 ''", Fechar());
}

TEST_F(TTesteFechamento, SemMovimentoTrazAMarcaDoUltimoFechamentoAceito)
{
    const auto Xml = [](const std::string& AMarca) {
        return "<eSocial xmlns=\"http://x\"><evtFechaEvPer><infoFech>" + AMarca +
               "</infoFech></evtFechaEvPer></eSocial>";
    };
    const auto LMarca = Xml("<compSemMovto>2021-01</compSemMovto>");
    InserirEvento("S-1299", D(2021, 1, 1), 201, 0, 1, LMarca.c_str(), D(2021, 2, 5));
    EXPECT_EQ("0 0 0 0 '2021-01'", Fechar());
    // Not accepted with 201, of the other environment, or older: none of them counts.
    const auto LOutra = Xml("<compSemMovto>outra</compSemMovto>");
    InserirEvento("S-1299", D(2021, 2, 1), 202, 0, 1, LOutra.c_str(), D(2021, 3, 5));
    InserirEvento("S-1299", D(2021, 2, 1), 201, 0, 2, LOutra.c_str(), D(2021, 3, 5));
    InserirEvento("S-1299", D(2020, 12, 1), 201, 0, 1, LOutra.c_str(), D(2021, 1, 5));
    EXPECT_EQ("0 0 0 0 '2021-01'", Fechar());
    // Nor does one of a period that is still to come.
    InserirEvento("S-1299", D(2199, 2, 1), 201, 0, 1, LOutra.c_str(), D(2021, 3, 5));
    EXPECT_EQ("0 0 0 0 '2021-01'", Fechar());
    InserirEvento("S-1299", D(2021, 2, 1), 201, 0, 1, Xml("").c_str(), D(2021, 3, 6));
    EXPECT_EQ("0 0 0 0 '0'", Fechar());
    InserirEvento("S-1299", D(2021, 2, 1), 201, 0, 1, "<eSocial><evtFechaEvPer>", D(2021, 3, 7));
    EXPECT_THROW(Fechar(), EConvertError);
}

TEST_F(TTesteFechamento, AMarcaSaiQuandoOPeriodoPassaATerMovimento)
{
    TTarvoESocialCamposinfoFech LFech(1, D(2021, 3, 1), D(2021, 3, 31), tpIndApuracao::Mensal);
    LFech.CarregarDados();
    EXPECT_EQ("0", LFech.compSemMovto);
    InserirEvento("S-1200", D(2021, 3, 1));
    LFech.CarregarDados();
    EXPECT_EQ("1 ''", std::to_string(LFech.evtRemun) + " '" + LFech.compSemMovto + "'");
}

TEST_F(TTesteFechamento, ProcuraOFechamentoAnteriorTambemEmColunaDate)
{
    // The moment of the search has a time of day, whatever the column has.
    TOvraConnection LConexao(CriarBancoDeTeste("fechamento.fdb", false));
    DefinirOvraConnection(&LConexao);
    for (const char* LComando :
         {"DROP INDEX IX1_SC00_ESOCIALREINFXML", "ALTER TABLE SC00_ESOCIALREINFXML DROP INIVALID",
          "ALTER TABLE SC00_ESOCIALREINFXML ADD INIVALID DATE"}) {
        LConexao.Executar(LComando);
        LConexao.Confirmar();
    }
    InserirEvento("S-1299", D(2021, 1, 1), 201, 0, 1,
                  "<eSocial><evtFechaEvPer><infoFech><compSemMovto>2021-01</compSemMovto></infoFech></evtFechaEvPer>"
                  "</eSocial>");
    EXPECT_EQ("0 0 0 0 '2021-01'", Fechar());
    LConexao.Desfazer();
    DefinirOvraConnection(&Conexao());
}

TEST_F(TTesteFechamento, PercentualDaDesoneracaoSoComIndicadorUm)
{
    struct TCaso {
        const char* Competencia;
        TValorSql Nb;
        TValorSql Total;
        int Ind;
        double Perc;
    };
    for (const auto& LCaso :
         {TCaso{"3/2021", 1, 1.02, 1, 1.97}, TCaso{"3/2021", 2, 2.02, 2, 0}, TCaso{"3/2021", 1.5, 1.52, 0, 0},
          TCaso{"03/2021", 1, 1.02, 0, 0}, TCaso{"3/2021", 0, 1, 0, 0}, TCaso{"3/2021", -1, 1, 0, 0}}) {
        Executar("DELETE FROM FP_RECEITACPRB");
        Inserir("FP_RECEITACPRB", {{"IDEMPRESA", 1},
                                   {"COMPETENCIA", LCaso.Competencia},
                                   {"VALORRECEITANB", LCaso.Nb},
                                   {"VALORRECEITATOTAL", LCaso.Total}});
        TTarvoESocialCamposS1280 LEvento(1, D(2021, 3, 1));
        LEvento.CarregarDados();
        EXPECT_EQ(LCaso.Ind, LEvento.InfoSubstPatr.indSubstPatr);
        EXPECT_NEAR(LCaso.Perc, LEvento.InfoSubstPatr.percRedContrib, 0.015);
        EXPECT_TRUE(LEvento.infoSubstPatrOpPort.empty());
    }
    // Nothing to divide by: the engine says so.
    Executar("UPDATE FP_RECEITACPRB SET VALORRECEITANB = 1, VALORRECEITATOTAL = 0");
    TTarvoESocialCamposInfoSubstPatr LGrupo(1, D(2021, 3, 1));
    EXPECT_THROW(LGrupo.CarregarDados(), EDatabaseError);
}

TEST_F(TTesteFechamento, ResponsavelEhODoESocial)
{
    for (const auto& [LOrigem, LTp, LNome] :
         {std::tuple{96, 2, "Outra origem"}, {97, 1, "Outro tipo"}, {97, 2, "Rita"}})
        Inserir("CA06_CFG", {{"ORIGEM", LOrigem}, {"TP", LTp}, {"INFORMACAO1", LNome}});
    TTarvoESocialCamposideRespInf LGrupo;
    LGrupo.CarregarDados();
    EXPECT_EQ("Rita", LGrupo.nmResp);
}

TEST_F(TTesteFechamento, FatorSegueAOrdemDosEstabelecimentos)
{
    struct TCaso {
        int Filial;
        int EhMatriz;
        TValorSql Depto;
        TDateTime Data;
        double Fator;
        double Esperado;
    };
    // Each row goes before those that are already there, or is of another month.
    for (const auto& LCaso :
         {TCaso{5, 2, nullptr, D(2021, 3, 15), 0.125, 0.125}, TCaso{4, 1, 9, D(2021, 3, 31), 0.25, 0.25},
          TCaso{4, 1, 8, D(2021, 3, 1), 0.375, 0.375}, TCaso{3, 1, 9, D(2021, 3, 1), 0.5, 0.5},
          TCaso{6, 0, 9, D(2021, 3, 1), 0.625, 0.625}, TCaso{1, 0, 1, D(2020, 3, 1), 0.75, 0.625},
          TCaso{1, 0, 1, D(2021, 4, 1), 0.875, 0.625}}) {
        Executar("DELETE FROM SC00_FILIAL WHERE IDFILIAL = " + std::to_string(LCaso.Filial));
        Inserir("SC00_FILIAL", {{"IDFILIAL", LCaso.Filial}, {"EHMATRIZ", LCaso.EhMatriz}});
        Inserir("FP_RECEITASIMPLES", {{"IDEMPRESA", 1},
                                      {"IDFILIAL", LCaso.Filial},
                                      {"IDDEPTO", LCaso.Depto},
                                      {"DATA", LCaso.Data},
                                      {"FATOR", LCaso.Fator}});
        TTarvoESocialCamposinfoAtivConcom LGrupo(1, D(2021, 3, 1));
        LGrupo.CarregarDados();
        EXPECT_EQ(LCaso.Esperado, LGrupo.fatorMes);
        EXPECT_EQ(LCaso.Esperado, LGrupo.fator13);
    }
}

} // namespace
} // namespace tarvo::testes
