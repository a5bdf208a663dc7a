#include "apoio/UnBancoDeTeste.h"
#include "sst/s2210/UnTarvoESocialCamposS2210.h"
#include "sst/s2220/UnTarvoESocialCamposS2220.h"
#include "sst/s2221/UnTarvoESocialCamposS2221.h"
#include "sst/s2240/UnTarvoESocialCamposS2240.h"
#include "sst/s2241/UnTarvoESocialCamposS2241.h"
#include "sst/s2245/UnTarvoESocialCamposS2245.h"

namespace tarvo::testes {
namespace {

using namespace tarvo::sst;

class TTesteSst : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("SC00_EMPRESA", {{"IDEMPRESA", 1}, {"EMPRESA", 10}});
        Inserir("EMPREGADOS", {{"IDEMPREGADO", 5},
                               {"IDEMPRESA", 1},
                               {"COD_EMPRESA", 10},
                               {"COD_EMPREGADO", 50},
                               {"CPF", "111.222.333-96"},
                               {"NOME", "Ana"},
                               {"PAISNACIONALIDADE", 1}});
    }
    void InserirTabela(int AId, int ATabela, const char* ACodigo)
    {
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", AId}, {"TABELA", ATabela}, {"CODIGO", ACodigo}});
    }
    void InserirCat(int AId, int ARegistrador, TValorSql AOrigem = nullptr)
    {
        Inserir("TABCAT", {{"IDTABCAT", AId},
                           {"IDTABCATORIGEM", AOrigem},
                           {"COD_EMPRESA", 10},
                           {"COD_EMPREGADO", 50},
                           {"TIPOREGISTRADOR", ARegistrador},
                           {"TIPOCAT", 1},
                           {"DATAACIDENTE", D(2021, 3, 10)},
                           {"COMPLEMENTO", "fundos"},
                           {"CODIGOENDPOSTAL", "X-99"},
                           {"ESPECIFICACAOLOCAL", "pátio"}});
    }
};

TEST_F(TTesteSst, CatDeOutroRegistradorSoCarregaOsFilhos)
{
    // A second worker of the company multiplies the place's row, which DISTINCT folds.
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 6}, {"COD_EMPRESA", 10}, {"COD_EMPREGADO", 51}});
    InserirTabela(1, 13, "753030000");
    InserirTabela(2, 14, "302010200");
    InserirTabela(3, 15, "200004300");
    InserirTabela(4, 16, "200008300");
    InserirCat(1, 1);
    InserirCat(2, 2);
    for (const int LCat : {1, 2}) {
        for (const int LTabela : {1, 4})
            Inserir("FP_CATPARTEATINGIDA", {{"IDTABCAT", LCat}, {"IDPARTEATINGIDA", LTabela}, {"LATERALIDADE", 3}});
        for (const int LTabela : {2, 3, 4})
            Inserir("FP_CATAGENTECAUSADOR", {{"IDTABCAT", LCat}, {"IDAGENTECAUSADOR", LTabela}});
        TTarvoESocialCamposS2210 LEvento(LCat);
        LEvento.CarregarDados();
        const auto& LGrupo = LEvento.cat;
        EXPECT_EQ("11122233396", LEvento.ideVinculo.cpfTrab);
        EXPECT_EQ(LCat == 1 ? D(2021, 3, 10) : TDateTime(), LGrupo.dtAcid);
        EXPECT_EQ("pátio", LGrupo.localAcidente.dscLocal);
        EXPECT_EQ("fundos", LGrupo.localAcidente.codPostal);
        // A part of the body outside table 13 is an empty item; an agent outside 14 and 15 is none.
        ASSERT_EQ(2U, LGrupo.parteAtingida.size());
        EXPECT_EQ(753030000, LGrupo.parteAtingida[0]->codParteAting);
        EXPECT_EQ(0, LGrupo.parteAtingida[1]->codParteAting + LGrupo.parteAtingida[1]->lateralidade);
        ASSERT_EQ(2U, LGrupo.agenteCausador.size());
        LEvento.CarregarDados();
        EXPECT_EQ(2U, LGrupo.parteAtingida.size());
        EXPECT_EQ(4U, LGrupo.agenteCausador.size());
    }
}

TEST_F(TTesteSst, CatOrigemEhORecarregadoReciboAceitoDoAmbiente)
{
    InserirCat(1, 1);
    InserirCat(2, 1, 1);
    struct TCaso {
        int TpAmb;
        int StatusXml;
        int StatusDet;
        const char* TpEvento;
        const char* Esperado;
    };
    for (const auto& LCaso :
         {TCaso{1, 201, 202, "S-2210", "recibo"}, TCaso{2, 201, 202, "S-2210", ""}, TCaso{1, 301, 202, "S-2210", ""},
          TCaso{1, 202, 301, "S-2210", ""}, TCaso{1, 201, 201, "S-2230", ""}}) {
        Executar("DELETE FROM SC00_ESOCIALREINFXML");
        Executar("DELETE FROM SC00_ESOCIALREINFDET");
        Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", 9},
                                         {"TPAMB", LCaso.TpAmb},
                                         {"STATUS", LCaso.StatusXml},
                                         {"TPEVENTO", LCaso.TpEvento},
                                         {"IDTABELAEVENTO", 1}});
        Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", 9}, {"STATUS", LCaso.StatusDet}, {"DESCRICAO", "recibo"}});
        TTarvoESocialCamposcatOrigem LOrigem(2);
        LOrigem.CarregarDados();
        EXPECT_EQ(LCaso.Esperado, LOrigem.nrCatOrig);
        TTarvoESocialCamposcatOrigem LPrimeira(1);
        LPrimeira.CarregarDados();
        EXPECT_EQ("", LPrimeira.nrCatOrig);
    }
}

TEST_F(TTesteSst, EmitenteDoAtestadoEhAchadoNaConstrucao)
{
    for (const auto& [LId, LSigla, LOrgao] : {std::tuple{1, "crm", tpIdeOC::CRM},
                                              {2, "CRO", tpIdeOC::CRO},
                                              {3, "Rms", tpIdeOC::RMS},
                                              {4, "CREFITO", tpIdeOC::Nenhum}}) {
        InserirCat(LId, 1);
        Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", LId}, {"NOME", "Dr."}, {"SIGLACONSCLASSE", LSigla}});
        Inserir("FP_CATATESTADO", {{"IDTABCAT", LId}, {"IDPRESTSERVICO", LId}, {"DURTRATAMENTO", 15}});
        TTarvoESocialCamposAtestado LAtestado(LId);
        LAtestado.CarregarDados();
        EXPECT_EQ(LOrgao, LAtestado.emitente.ideOC) << LSigla;
        EXPECT_EQ("Dr.", LAtestado.emitente.nmEmit);
        EXPECT_EQ(15, LAtestado.durTrat);
    }
    InserirCat(9, 1);
    TTarvoESocialCamposAtestado LSemAtestado(9);
    LSemAtestado.CarregarDados();
    EXPECT_EQ("", LSemAtestado.emitente.nmEmit);
}

TEST_F(TTesteSst, ExameRecusadoTomaADataDaDemissao)
{
    struct TCaso {
        int Recusa;
        TValorSql Demissao;
        const char* Codigo;
        TDateTime Data;
        const char* IndRecusa;
        const char* Sequencia;
    };
    int LId = 0;
    for (const auto& LCaso : {TCaso{1, D(2021, 3, 20), "AB123456789", D(2021, 3, 20), "S", "AB123456789"},
                              TCaso{1, nullptr, "123", TDateTime(), "S", "123"},
                              TCaso{2, D(2021, 3, 20), "12345678901234567", D(2021, 2, 5), "N", "78901234567"},
                              // The eighteenth character is lost before the last eleven are taken.
                              TCaso{2, nullptr, "123456789012345678", D(2021, 2, 5), "N", "78901234567"},
                              TCaso{3, D(2021, 3, 20), "1", TDateTime(), "", "1"}}) {
        Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = " + LCaso.Demissao.Texto() + " WHERE IDEMPREGADO = 5");
        Inserir("FP_EXAMETOXICOLOGICO", {{"IDEXAMETOXICOLOGICO", ++LId},
                                         {"IDEMPREGADO", 5},
                                         {"DATAEXAME", D(2021, 2, 5)},
                                         {"CODIGOEXAME", LCaso.Codigo},
                                         {"INDICATIVORECUSA", LCaso.Recusa}});
        TTarvoESocialCamposS2221 LEvento(LId);
        LEvento.CarregarDados();
        EXPECT_EQ(LCaso.Data, LEvento.toxicologico.dtExame) << LId;
        EXPECT_EQ(LCaso.IndRecusa, LEvento.toxicologico.indRecusa) << LId;
        EXPECT_EQ(LCaso.Sequencia, LEvento.toxicologico.codSeqExame) << LId;
        EXPECT_EQ("11122233396", LEvento.ideVinculo.cpfTrab);
    }
}

TEST_F(TTesteSst, CursoSemMarcaTemSoOsProfissionais)
{
    InserirTabela(1, 28, "1006");
    InserirTabela(2, 6, "105");
    InserirTabela(3, 6, "249");
    Inserir(
        "PREST_SERVICO",
        {{"IDPRESTSERVICO", 1}, {"NOME", "Bia"}, {"CPF", "999.888.777-66"}, {"CBO", "2261-05"}, {"IDTAB6CODPAIS", 2}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 2}, {"NOME", "Carl"}, {"IDTAB6CODPAIS", 3}});
    Inserir("CARGOS", {{"IDEMPREGADO", 5}, {"CBO2002", "3516-05"}});
    Executar("UPDATE EMPREGADOS SET PAISNACIONALIDADE = 7 WHERE IDEMPREGADO = 5");
    for (const auto& [LId, LMarca, LTabela] : {std::tuple{1, 1, 1}, {2, 2, 1}, {3, 1, 99}}) {
        Inserir("FP_CURSOEMPREGADO", {{"IDCURSOEMPREGADO", LId},
                                      {"IDEMPREGADO", 5},
                                      {"IDESOCIALTABELA", LTabela},
                                      {"ENVIARS2245", LMarca},
                                      {"OBSERVACOES", "Anual"},
                                      {"HORASTREINAMENTO", 40.5}});
        int LTipo = 0;
        for (const auto& [LEmpregado, LPrestador] :
             {std::pair<TValorSql, TValorSql>{5, nullptr}, {nullptr, 1}, {nullptr, 2}})
            Inserir("FP_CURSOEMPREGADODET", {{"IDCURSOEMPREGADO", LId},
                                             {"IDEMPREGADO", LEmpregado},
                                             {"IDPRESTSERVICO", LPrestador},
                                             {"TIPOPROFISSIONAL", ++LTipo}});
        TTarvoESocialCamposS2245 LEvento(LId);
        LEvento.CarregarDados();
        EXPECT_EQ(LId == 1 ? "1006" : "", LEvento.treiCap.codTreiCap);
        EXPECT_EQ(LId == 1 ? "Anual" : "", LEvento.treiCap.obsTreiCap);
        EXPECT_EQ(LMarca == 1 ? "40,5" : "", LEvento.treiCap.infoComplem.durTreiCap);
        std::string LResumo;
        for (const auto& LItem : LEvento.treiCap.infoComplem.ideProfResp)
            LResumo += LItem->cpfProf + " " + LItem->nmProf + " " + LItem->codCBO + " " + LItem->nacProf + ";";
        // The third has a kind that is neither 1 nor 2, and so no nationality.
        EXPECT_EQ("11122233396 Ana 351605 2;99988877766 Bia 226105 1; Carl  ;", LResumo);
        LEvento.CarregarDados();
        EXPECT_EQ(6U, LEvento.treiCap.infoComplem.ideProfResp.size());
    }
}

TEST_F(TTesteSst, QuadrosNadaLeemAlemDoVinculo)
{
    std::vector<std::string> LComandos;
    Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) { LComandos.emplace_back(AExecucao.Sql); });
    TTarvoESocialCamposS2240 LExposicao(5);
    LExposicao.infoExpRisco.iniExpRisco.infoAmb.fatRisco.epcEpi.epi.caEPI = "12345";
    LExposicao.CarregarDados();
    TTarvoESocialCamposS2241 LInsalubridade(5);
    const TListaCamposModificados LLista{"{nenhum}"};
    LInsalubridade.CarregarDados(&LLista);
    TTarvoESocialCamposS2220 LMonitoramento(5);
    LMonitoramento.aso.Exame.push_back(std::make_unique<TTarvoESocialCamposexame>());
    LMonitoramento.aso.Exame[0]->obsProc = "audiometria";
    LMonitoramento.CarregarDados();
    EXPECT_EQ(2U, LComandos.size());
    // The id of the risk factor is taken as a worker's.
    EXPECT_EQ("11122233396", LExposicao.ideVinculo.cpfTrab);
    EXPECT_EQ("", LInsalubridade.ideVinculo.cpfTrab);
    EXPECT_EQ("12345", LExposicao.infoExpRisco.iniExpRisco.infoAmb.fatRisco.epcEpi.epi.caEPI);
    ASSERT_EQ(1U, LMonitoramento.aso.Exame.size());
    EXPECT_EQ("audiometria", LMonitoramento.aso.Exame[0]->obsProc);
}

} // namespace
} // namespace tarvo::testes
