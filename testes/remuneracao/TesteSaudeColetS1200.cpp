#include "imports/UnOvraExcecoes.h"
#include "remuneracao/UnCenarioDeFolha.h"
#include "remuneracao/periodo/UnTarvoESocialCamposInfoAgNocivoS1200.h"
#include "remuneracao/periodo/UnTarvoESocialCamposInfoTrabInterm.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200.h"
#include "remuneracao/saude/UnTarvoESocialCamposInfoSaudeColetS1200.h"
#include "remuneracao/saude/UnTarvoESocialCamposinfoSaudeColet.h"

namespace tarvo::testes {
namespace {

using remuneracao::TDadosCalculo;

/// Operators 1 and 2, and 3 of kind 2; rubrics 38 and 39 of the first, 40 of the second, 41 of the third, 42 of none.
class TTesteSaudeColetS1200 : public TTesteDeFolha {
protected:
    void SetUp() override
    {
        TTesteDeFolha::SetUp();
        for (const int LId : {1, 2, 3})
            Inserir("PSAUDE_OPER", {{"IDPSAUDE_OPER", LId},
                                    {"CNPJ", "0700000000010" + std::to_string(LId)},
                                    {"ANS", "34567" + std::to_string(LId)},
                                    {"TIPO", LId == 3 ? 2 : 1}});
        for (const auto& [LVerba, LOperadora] : {std::pair{38, 1}, {39, 1}, {40, 2}, {41, 3}, {42, 0}}) {
            Verba(LVerba, "5S");
            if (LOperadora != 0)
                Vincular(LVerba, LOperadora);
        }
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 700003}, {"TABELA", 7}, {"CODIGO", "03"}});
        Info.SetTipoEmpregado(TTipoTrabalhador::Empregado);
        Info.SetIdEmpregado(1);
    }

    void Vincular(int AVerba, int AOperadora)
    {
        Inserir("PSAUDE_VERBAS", {{"IDPSAUDE_OPER", AOperadora}, {"IDVERBA", 1000 + AVerba}});
    }

    /// A dependant with a plan of its own; gives the id.
    int Dependente(const char* ANome, double AValor, int AOperadora = 1, TValorSql AInicio = D(2020, 1, 1),
                   TValorSql AFim = nullptr)
    {
        Inserir("DEPENDENTES", {{"IDDEPENDENTE", ++FUltimoDependente},
                                {"COD_EMPRESA", 7},
                                {"COD_EMPREGADO", 101},
                                {"COD_DEPENDENTE", FUltimoDependente},
                                {"NOME", ANome},
                                {"CPF", "39053344705"},
                                {"DATA_NASCIMENTO", D(2012, 4, 5)},
                                {"IDESOCIALTABELA", 700003}});
        Inserir("FP_PSAUDEVLRMESDEP", {{"IDPSAUDEVLRMESDEP", FUltimoDependente},
                                       {"IDPSAUDEOPER", AOperadora},
                                       {"IDEMPREGADO", 1},
                                       {"IDDEPENDENTE", FUltimoDependente},
                                       {"DATAINICIO", AInicio},
                                       {"DATAFIM", AFim},
                                       {"VALOR", AValor}});
        return FUltimoDependente;
    }

    static TDadosCalculo Linha(int AVerba, double AValor, int ADias = 0)
    {
        TDadosCalculo LDados;
        LDados.IdVerba = AVerba == 0 ? 0 : 1000 + AVerba;
        LDados.Valor = AValor;
        LDados.DiasTrab = ADias;
        return LDados;
    }

    /// "operator:holder/amount[dependant=share ...]" of each detOper.
    std::string Planos(const std::vector<TDadosCalculo>& ALinhas)
    {
        remuneracao::TTarvoESocialCamposInfoSaudeColetS1200 LGrupo(Info);
        LGrupo.ListaDadosCalculo = &ALinhas;
        LGrupo.CarregarDados();
        EXPECT_EQ(!LGrupo.detOper.empty(), LGrupo.possuiInformacao());
        std::string LTexto;
        for (const auto& LOperadora : LGrupo.detOper) {
            LTexto += (LTexto.empty() ? "" : " ") + std::to_string(LOperadora->IdOperadora) + ":" +
                      CurrToStr(LOperadora->vrPgTit) + "/" + CurrToStr(LOperadora->valorSemDescontoDep) + "[";
            for (const auto& LPlano : LOperadora->detPlano)
                LTexto += (LTexto.back() == '[' ? "" : " ") + LPlano->nmDep + "=" + FloatToStr(LPlano->vlrPgDep);
            LTexto += "]";
        }
        return LTexto;
    }

private:
    int FUltimoDependente = 0;
};

TEST_F(TTesteSaudeColetS1200, SoAPrimeiraVerbaDaOperadoraDescontaOsDependentes)
{
    Dependente("Lia", 30);
    EXPECT_EQ("1:120/100[Lia=30]", Planos({Linha(38, 100), Linha(39, 50)}));
    EXPECT_EQ("1:120/50[Lia=30]", Planos({Linha(39, 50), Linha(38, 100)}));
    // The rubric in two rows, with another operator's between them.
    Dependente("Caio", 12.5, 2);
    EXPECT_EQ("1:95/100[Lia=30] 2:7,5/20[Caio=12,5]", Planos({Linha(38, 100), Linha(40, 20), Linha(38, 25)}));
    // Below zero as computed.
    EXPECT_EQ("1:-20/10[Lia=30]", Planos({Linha(38, 10)}));
}

TEST_F(TTesteSaudeColetS1200, SoContaVerbaDeOperadoraDePlano)
{
    Dependente("Lia", 30, 3);
    EXPECT_EQ("", Planos({}));
    EXPECT_EQ("", Planos({Linha(42, 100), Linha(41, 100), Linha(0, 100)})) << "none, kind 2, a receipt's row";
    Executar("UPDATE PSAUDE_OPER SET TIPO = NULL WHERE IDPSAUDE_OPER = 1");
    EXPECT_EQ("", Planos({Linha(38, 100)})) << "a null kind isn't other than 2";
    // Of a rubric with several operators the first row counts, and its dependants alone.
    Dependente("Rui", 5, 2);
    Vincular(40, 3);
    Executar("UPDATE PSAUDE_OPER SET TIPO = 1 WHERE IDPSAUDE_OPER = 3");
    EXPECT_EQ("2:95/100[Rui=5]", Planos({Linha(40, 100)}));

    remuneracao::TTarvoESocialCamposInfoSaudeColetS1200 LSemLista(Info);
    LSemLista.CarregarDados();
    EXPECT_FALSE(LSemLista.possuiInformacao());
}

TEST_F(TTesteSaudeColetS1200, PlanoDoDependenteVigenteNoPeriodo)
{
    const struct {
        TValorSql Inicio;
        TValorSql Fim;
        bool Conta;
    } CASOS[] = {
        {D(2021, 3, 31), nullptr, true},        {D(2021, 4, 1), nullptr, false},
        {D(2020, 1, 1), D(2021, 3, 1), true},   {D(2020, 1, 1), D(2021, 2, 28), false},
        {D(2021, 3, 10), D(2021, 3, 20), true}, {nullptr, nullptr, false},
        {D(2021, 4, 1), D(2021, 3, 31), false},
    };
    for (const auto& [LInicio, LFim, LConta] : CASOS) {
        Executar("DELETE FROM FP_PSAUDEVLRMESDEP");
        Dependente("Lia", 30, 1, LInicio, LFim);
        EXPECT_EQ(LConta ? "1:70/100[Lia=30]" : "1:100/100[]", Planos({Linha(38, 100)}))
            << LInicio.Texto() << " " << LFim.Texto();
    }
    Dependente("Lia", 30);
    Executar("UPDATE FP_PSAUDEVLRMESDEP SET IDEMPREGADO = 2");
    EXPECT_EQ("1:100/100[]", Planos({Linha(38, 100)})) << "of another worker";
}

TEST_F(TTesteSaudeColetS1200, CotaDosDiasTrabalhadosNaLotacao)
{
    Dependente("Lia", 62);
    EXPECT_EQ("1:38/100[Lia=62]", Planos({Linha(38, 100)})) << "no days: the whole amount";
    EXPECT_EQ("1:60/100[Lia=40]", Planos({Linha(38, 100, 20)}));
    EXPECT_EQ("1:33/55[Lia=22]", Planos({Linha(38, 55, 11)}));
    // A run of one day counts from the first of its month.
    Info.SetDataInicio(D(2021, 3, 20));
    Info.SetDataFim(D(2021, 3, 20));
    EXPECT_EQ("1:69/100[Lia=31]", Planos({Linha(38, 100, 10)}));
    // The share isn't rounded; each becomes money before they are summed.
    Info.SetDataInicio(D(2021, 3, 1));
    Info.SetDataFim(D(2021, 3, 31));
    Executar("UPDATE FP_PSAUDEVLRMESDEP SET VALOR = 10");
    Dependente("Rui", 10);
    Dependente("Eva", 10);
    const std::vector<TDadosCalculo> LLinhas{Linha(38, 100, 7)};
    remuneracao::TTarvoESocialCamposInfoSaudeColetS1200 LGrupo(Info);
    LGrupo.ListaDadosCalculo = &LLinhas;
    LGrupo.CarregarDados();
    EXPECT_DOUBLE_EQ(70.0 / 31, LGrupo.detOper[0]->detPlano[2]->vlrPgDep);
    EXPECT_EQ(R("93,2257"), LGrupo.detOper[0]->vrPgTit) << "100 less three times 2,2581";
}

TEST(TTesteDiasDoPlanoDeSaude, PeriodoQueContaOsDias)
{
    const struct {
        TDateTime Inicio;
        TDateTime Fim;
        int Dias;
        double Esperado;
    } CASOS[] = {
        {D(2021, 6, 1), D(2021, 6, 30), 15, 30}, {D(2021, 6, 1), D(2021, 6, 30), 0, 60},
        {D(2021, 6, 11), D(2021, 6, 30), 5, 15}, {D(2021, 6, 15), D(2021, 6, 15), 5, 20},
        {D(2021, 6, 1), D(2021, 6, 1), 1, 60},   {D(2021, 6, 20), D(2021, 6, 10), 5, 30},
        {D(2021, 6, 1), D(2021, 6, 30), 45, 90}, {TDateTime(), TDateTime(), 15, 30},
    };
    for (const auto& LCaso : CASOS)
        EXPECT_DOUBLE_EQ(LCaso.Esperado, static_cast<double>(tabelas::ProporcionalizarPelosDias(60, LCaso.Inicio,
                                                                                                LCaso.Fim, LCaso.Dias)))
            << LCaso.Inicio.Valor() << " " << LCaso.Fim.Valor() << " " << LCaso.Dias;
}

TEST_F(TTesteSaudeColetS1200, FolhaComplementarEReciboNaoTemPlano)
{
    Dependente("Lia", 30);
    Calculo(38, 100);
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Calculo(38, 50, {.SubTipo = 4});
    Prestador(5, "11122233396", 101);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    remuneracao::TTarvoESocialCamposS1200 LEvento(Info);
    LEvento.CarregarDados();
    std::string LPlanos;
    for (const auto& LDmDev : LEvento.dmDev) {
        const auto& LPlano = LDmDev->infoPerApur.ideEstabLot.at(0)->remunPerApur.at(0)->InfoSaudeColet;
        LPlanos += LDmDev->ideDmDev + "=" + std::to_string(LPlano.detOper.size()) + "/" +
                   std::to_string(LPlano.IdFilial) + " ";
    }
    EXPECT_EQ("01_000_0_03_2021=1/1 01_004_2_03_2021=0/0 97_0000001234_05_03_2021=0/1 ", LPlanos);
    EXPECT_EQ(0, Info.SubTipoFolha()) << "the receipt's own, not those of the run before";
    EXPECT_EQ(0, Info.TipoFolhaCompl());
}

TEST_F(TTesteSaudeColetS1200, DependenteSemTipoFicaNaListaSemValor)
{
    const int LId = Dependente("Lia", 30);
    Executar("UPDATE DEPENDENTES SET IDESOCIALTABELA = 101 WHERE IDDEPENDENTE = " + std::to_string(LId));
    EXPECT_EQ("1:100/100[=0]", Planos({Linha(38, 100, 10)}));
}

TEST_F(TTesteSaudeColetS1200, SemEmpregadoInformadoFalhaSoSeHouverOperadora)
{
    remuneracao::TTarvoESocialCamposS1200IOP LVazio;
    const auto LData = D(2021, 3, 1);
    remuneracao::TTarvoESocialCamposdetOperS1200 LSem(LVazio, Linha(42, 1), LData, LData);
    LSem.CarregarDados();
    EXPECT_FALSE(LSem.PossuiOperadoraSaude);
    remuneracao::TTarvoESocialCamposdetOperS1200 LCom(LVazio, Linha(38, 1), LData, LData);
    EXPECT_THROW(LCom.CarregarDados(), Exception);
    EXPECT_EQ("07000000000101", LCom.cnpjOper) << "what was bound before stays";
}

TEST_F(TTesteSaudeColetS1200, GrauDeExposicaoDoCargoVigenteNoFimDoPeriodo)
{
    const auto Grau = [&] {
        remuneracao::TTarvoESocialCamposInfoAgNocivoS1200 LGrupo(Info);
        LGrupo.CarregarDados();
        return std::to_string(LGrupo.grauExp) + "/" + LGrupo.codCateg;
    };
    const auto Cargo = [](TDateTime AData, const char* AOcorrencia) {
        Inserir("CARGOS", {{"IDEMPREGADO", 1}, {"DATA", AData}, {"OCORRENCIA", AOcorrencia}});
    };
    EXPECT_EQ("0/", Grau());
    Cargo(D(2021, 4, 1), "3-Exposição");
    EXPECT_EQ("0/", Grau());
    Cargo(D(2020, 1, 1), "2-Exposição");
    EXPECT_EQ("2/101", Grau());
    Cargo(D(2021, 3, 31), "4-Exposição");
    EXPECT_EQ("4/101", Grau());
    for (const char* LOcorrencia : {"Nenhuma", "", " 4"}) {
        Executar(std::string("UPDATE CARGOS SET OCORRENCIA = '") + LOcorrencia + "'");
        EXPECT_EQ("0/101", Grau()) << LOcorrencia;
    }
}

TEST_F(TTesteSaudeColetS1200, CodigoDaConvocacao)
{
    Inserir("FP_CONTRAINTERM", {{"IDCONTRAINTERM", 5}, {"IDEMPREGADO", 1}, {"CODIGOESOCIAL", "CONV-5"}});
    Inserir("FP_DETCONVOCACAO", {{"IDDETCONVOCACAO", 57}, {"IDCONTRAINTERM", 5}});
    for (const auto& [LId, LCodigo] : {std::pair{57, "CONV-5"}, {5, ""}, {0, ""}}) {
        remuneracao::TTarvoESocialCamposInfoTrabInterm LGrupo(LId);
        LGrupo.CarregarDados();
        EXPECT_EQ(LCodigo, LGrupo.codConv) << LId;
    }
}

TEST_F(TTesteSaudeColetS1200, OsQuadrosSoTemAForma)
{
    remuneracao::TTarvoESocialCamposinfoSaudeColet LSaude(1);
    LSaude.detOper.regANS = "345671";
    LSaude.CarregarDados();
    EXPECT_EQ(
        R"({"detOper":{"cnpjOper":"","regANS":"345671","vrPgTit":"","detPlano":{"tpDep":"","cpfDep":"","nmDep":"",)"
        R"("dtNascto":"","vlrPgDep":""}}})",
        LSaude.ToJson().AsJSON());
    remuneracao::TTarvoESocialCamposinfoAgNocivo LAgente(1);
    LAgente.CarregarDados();
    EXPECT_EQ(R"({"grauExp":""})", LAgente.ToJson().AsJSON());
    EXPECT_EQ("{683D9299-3F02-4207-BAFF-07C0A4A53AF1}", LAgente.GuidClasse());
}

} // namespace
} // namespace tarvo::testes
