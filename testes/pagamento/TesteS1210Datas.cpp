#include "UnPagamentoDeTeste.h"

namespace tarvo::testes {
namespace {

/// The statement of the payment dates as the load runs it, and what it gives for one calculation of each case.
class TTesteDatasDePagamento : public TTestePagamento {
protected:
    std::string SqlDasDatas(TDateTime AVigencia)
    {
        std::string LSql;
        Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) {
            if (AExecucao.Sql.starts_with("WITH SQL_CATEGORIA"))
                LSql = AExecucao.Sql;
        });
        Carregar(AVigencia);
        Conexao().DefinirObservador({});
        return LSql;
    }
};

enum TOrigem { oNormal, oComplementar, oAcordo, oRescisao, oRescisaoAcordo };

struct TFolhaDeTeste {
    const char* Tipo;
    int Subtipo;
    TOrigem Origem = oNormal;
};
constexpr TFolhaDeTeste FOLHA{"01", 0}, ADIANTAMENTO{"02", 0}, DECIMO_TERCEIRO{"03", 0}, FERIAS{"04", 0},
    RESCISAO{"05", 0}, ADIANTAMENTO_13{"06", 0}, PARTICIPACAO{"09", 0};

const auto NUNCA = TDateTime();
const auto JUL18 = D(2018, 7, 1);
const auto FEV1 = D(2021, 2, 1);
const auto FEV2 = D(2021, 2, 2);
const auto FEV28 = D(2021, 2, 28);
const auto MAR1 = D(2021, 3, 1);
const auto MAR5 = D(2021, 3, 5);
const auto MAR6 = D(2021, 3, 6);
const auto MAR10 = D(2021, 3, 10);
const auto MAR31 = D(2021, 3, 31);
const auto ABR1 = D(2021, 4, 1);

/// A calculation of February 2021 in the period of March.
struct TCasoDeData {
    const char* Nome;
    TFolhaDeTeste Folha;
    /// 0 for no payment.
    int Esperado;
    TDateTime Demissao = NUNCA;
    TDateTime Vigencia = JUL18;
    const char* Categoria = "101";
    TDateTime Acordo = MAR10;
    TDateTime Pagto = MAR5;
};

TEST_F(TTesteDatasDePagamento, CadaCalculoTemOSeuTipoDePagamento)
{
    const TCasoDeData LCasos[] = {
        {"folha", FOLHA, 1},
        {"folha paga no primeiro dia", FOLHA, 1, NUNCA, JUL18, "101", MAR10, MAR1},
        {"folha paga no último dia", FOLHA, 1, NUNCA, JUL18, "101", MAR10, MAR31},
        {"folha paga antes", FOLHA, 0, NUNCA, JUL18, "101", MAR10, FEV28},
        {"folha paga depois", FOLHA, 0, NUNCA, JUL18, "101", MAR10, ABR1},
        {"folha no início do leiaute", FOLHA, 1, NUNCA, FEV1},
        {"folha anterior ao leiaute", FOLHA, 9, NUNCA, FEV2},
        {"demissão no primeiro dia da folha", FOLHA, 2, FEV1},
        {"demissão no último dia da folha", FOLHA, 2, FEV28},
        {"demissão depois da folha", FOLHA, 1, MAR1},
        {"demissão antes da folha", FOLHA, 1, D(2021, 1, 31)},
        {"demitido, folha anterior", FOLHA, 9, FEV28, MAR1},
        {"término sem vínculo", FOLHA, 3, FEV28, JUL18, "721"},
        {"término de categoria com ponto", FOLHA, 3, FEV28, JUL18, "723.1"},
        {"sem vínculo fora da lista", FOLHA, 2, FEV28, JUL18, "701"},
        {"demitido sem categoria", FOLHA, 2, FEV28, JUL18, nullptr},
        {"rescisão", RESCISAO, 2, FEV28},
        {"rescisão de término futuro", RESCISAO, 1, MAR1},
        {"subtipo 2 sem RESC_COMPL", {"05", 2}, 0},
        {"subtipo 1", {"05", 1}, 0},
        {"subtipo 104", {"01", 104}, 0},
        {"subtipo 4 sem CALCCOMPL", {"01", 4}, 0},

        {"férias", FERIAS, 7},
        {"férias no mês da demissão", FERIAS, 7, FEV28},
        {"férias no início do leiaute", FERIAS, 7, NUNCA, FEV1},
        {"férias anteriores", FERIAS, 9, NUNCA, FEV2},

        {"adiantamento", ADIANTAMENTO, 1},
        {"adiantamento do 13º", ADIANTAMENTO_13, 1},
        {"adiantamento, demissão no primeiro dia", ADIANTAMENTO, 2, MAR1},
        {"adiantamento, demissão no último dia", ADIANTAMENTO, 2, MAR31},
        {"adiantamento, término", ADIANTAMENTO_13, 3, MAR31, JUL18, "721"},
        {"adiantamento, demissão antes do mês", ADIANTAMENTO, 1, FEV28},
        {"adiantamento, demissão depois do mês", ADIANTAMENTO, 1, ABR1},
        {"adiantamento anterior", ADIANTAMENTO, 9, MAR31, FEV2},
        {"adiantamento de outro subtipo", {"02", 4}, 0},

        {"13º", DECIMO_TERCEIRO, 1},
        {"13º pago na demissão", DECIMO_TERCEIRO, 1, FEV28},
        {"13º no início do leiaute", DECIMO_TERCEIRO, 1, NUNCA, FEV1},
        {"13º anterior", DECIMO_TERCEIRO, 9, NUNCA, FEV2},

        {"participação, leiaute no pagamento", PARTICIPACAO, 1, FEV28, MAR5},
        {"participação anterior", PARTICIPACAO, 9, NUNCA, MAR6},

        {"complementar", {"01", 4, oComplementar}, 1, MAR31},
        {"complementar do 13º", {"03", 4, oComplementar}, 1, NUNCA, FEV1},
        {"complementar anterior", {"01", 4, oComplementar}, 9, NUNCA, FEV2},
        {"complementar de adiantamento", {"02", 4, oComplementar}, 0},
        {"complementar de subtipo 2", {"01", 2, oComplementar}, 0},

        {"acordo", {"01", 4, oAcordo}, 1},
        {"acordo, demitido no mês", {"01", 4, oAcordo}, 2, MAR1, JUL18, "101", MAR31},
        {"acordo do 13º, término no mês", {"03", 4, oAcordo}, 3, MAR31, JUL18, "721", MAR1},
        {"acordo de outro mês, demitido no mês", {"01", 4, oAcordo}, 1, MAR31, JUL18, "101", FEV28},
        {"acordo futuro, demitido no mês", {"01", 4, oAcordo}, 1, MAR31, JUL18, "101", ABR1},
        {"acordo, demitido antes", {"01", 4, oAcordo}, 1, FEV28},
        {"acordo anterior", {"01", 4, oAcordo}, 9, MAR31, FEV2},

        {"rescisão por acordo", {"05", 2, oRescisaoAcordo}, 1, FEV28, MAR5},
        {"rescisão por acordo, demitido no mês", {"05", 2, oRescisaoAcordo}, 2, MAR31},
        {"rescisão por acordo, término no mês", {"05", 2, oRescisaoAcordo}, 3, MAR1, JUL18, "721"},
        {"rescisão por acordo, demitido depois", {"05", 2, oRescisaoAcordo}, 1, ABR1},
        {"rescisão por acordo anterior", {"05", 2, oRescisaoAcordo}, 9, MAR31, MAR6},

        {"rescisão complementar", {"05", 2, oRescisao}, 2, FEV28, MAR5},
        {"rescisão complementar sem demissão", {"05", 2, oRescisao}, 2},
        {"rescisão complementar, sem vínculo", {"05", 2, oRescisao}, 3, NUNCA, JUL18, "721"},
        {"rescisão complementar anterior", {"05", 2, oRescisao}, 9, MAR31, MAR6},
        {"outro tipo com RESC_COMPL", {"01", 2, oRescisao}, 0},
    };
    Codigo(7231, 1, "723.1");
    Empregado(1);
    Inserir("FP_INFOGFIP650660", {{"IDINFOGFIP650660", 1}, {"DATAOCORRENCIA", D(2021, 3, 10)}});
    for (const auto& LCaso : LCasos) {
        SCOPED_TRACE(LCaso.Nome);
        for (const char* LTabela : {"CALCULO", "CALCCOMPL", "FP_CALCCOMPLEMPREG", "CALCCOMPLPER", "RESC_COMPL"})
            Executar(std::string("DELETE FROM ") + LTabela);
        Executar(
            "UPDATE EMPREGADOS SET DATA_DEMISSAO = " +
            (LCaso.Demissao.Vazia() ? "NULL" : TValorSql(LCaso.Demissao).Texto()) +
            ", IDCATEGORIAESOCIAL = (SELECT IDESOCIALTABELA FROM FP_ESOCIALTABELA WHERE TABELA = 1 AND CODIGO = '" +
            (LCaso.Categoria == nullptr ? "" : LCaso.Categoria) + "')");
        Executar("UPDATE FP_INFOGFIP650660 SET DATAOCORRENCIA = " + TValorSql(LCaso.Acordo).Texto());
        if (LCaso.Folha.Origem == oComplementar || LCaso.Folha.Origem == oAcordo)
            Complementar(LCaso.Folha.Origem == oAcordo ? 1 : 2, LCaso.Pagto,
                         LCaso.Folha.Origem == oAcordo ? TValorSql(1) : TValorSql(nullptr));
        if (LCaso.Folha.Origem == oRescisao || LCaso.Folha.Origem == oRescisaoAcordo)
            Inserir("RESC_COMPL",
                    {{"COD_EMPRESA", 1},
                     {"COD_EMPREGADO", 1001},
                     {"DATA_PGTO", LCaso.Pagto},
                     {"IDINFOGFIP650660", LCaso.Folha.Origem == oRescisaoAcordo ? TValorSql(1) : TValorSql(nullptr)}});
        Calculo({.Verba = vSalario,
                 .Tipo = LCaso.Folha.Tipo,
                 .Subtipo = LCaso.Folha.Subtipo,
                 .Inicio = FEV1,
                 .Fim = FEV28,
                 .Pagto = LCaso.Pagto});

        const auto LLinhas = OvraConnection().Consultar(SqlDasDatas(LCaso.Vigencia));
        ASSERT_EQ(LCaso.Esperado == 0 ? 0U : 1U, LLinhas.QuantidadeDeLinhas());
        if (LCaso.Esperado != 0) {
            const auto Coluna = [&](const char* ANome) {
                return LLinhas.Texto(0, static_cast<std::size_t>(LLinhas.IndiceDaColuna(ANome)));
            };
            EXPECT_EQ(std::to_string(LCaso.Esperado), Coluna("TPPAGTO"));
            EXPECT_EQ("1", Coluna("LISTA"));
            EXPECT_EQ(LCaso.Folha.Tipo, Coluna("TIPO"));
        }
    }
}

TEST_F(TTesteDatasDePagamento, SoAsCategoriasSemVinculoDaListaTerminam)
{
    Codigo(1, 1, "101");
    Empregado(1, 1, FEV28);
    Calculo({.Verba = vSalario, .Inicio = FEV1, .Fim = FEV28, .Pagto = MAR5});
    const auto LSql = SqlDasDatas(JUL18);
    const auto TipoDaCategoria = [&](const std::string& ACategoria) {
        Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '" + ACategoria + "' WHERE IDESOCIALTABELA = 1");
        return OvraConnection().Consultar(LSql).Texto(0, 2);
    };
    for (const char* LCategoria : {"201", "202", "401", "410", "721", "158", "722", "723", "723.1", "731", "734", "738",
                                   "761", "771", "781", "901", "902"})
        EXPECT_EQ("3", TipoDaCategoria(LCategoria)) << LCategoria;
    for (const char* LCategoria : {"101", "111", "301", "305", "411", "701", "711", "723.2", "741", "903"})
        EXPECT_EQ("2", TipoDaCategoria(LCategoria)) << LCategoria;
}

TEST_F(TTesteDatasDePagamento, ListaQueNaoCabeFalha)
{
    for (int i = 10'001; i <= 10'017; ++i) {
        Empregado(i);
        Calculo({.Verba = vLiquido, .Empregado = i});
        if (i == 10'016) {
            EXPECT_EQ(1600.0L, Carregar().Pagamentos().at(0)->detPgtoFl.at(0)->vrLiq);
        }
    }
    EXPECT_THROW(Carregar(), EDatabaseError);
}

TEST_F(TTesteDatasDePagamento, ContratosDoMesmoTipoDividemUmaLinhaEOsDeOutroTipoNao)
{
    Empregado(1);
    Empregado(2, 103);
    Empregado(3, 101, D(2021, 3, 15));
    for (const int LEmpregado : {1, 2, 3}) {
        Calculo({.Verba = vLiquido, .Valor = 100.0 * LEmpregado, .Empregado = LEmpregado});
        Calculo({.Verba = vLiquido, .Valor = 10.0 * LEmpregado, .Empregado = LEmpregado, .Tipo = "02"});
    }
    const auto LPagamento = Carregar();
    ASSERT_EQ(2U, LPagamento.Pagamentos().size());
    const auto& LAtivos = *LPagamento.Pagamentos()[0];
    EXPECT_EQ(1, LAtivos.tpPgto);
    EXPECT_EQ(D(2021, 3, 31), LAtivos.dtPgto);
    std::vector<std::string> LDemonstrativos;
    for (const auto& LDetalhe : LAtivos.detPgtoFl)
        LDemonstrativos.push_back(LDetalhe->ideDmDev + " " + std::to_string(static_cast<int>(LDetalhe->vrLiq)));
    EXPECT_EQ((std::vector<std::string>{"01_000_0_03_2021_101 100", "02_000_0_03_2021_101 10",
                                        "01_000_0_03_2021_103 200", "02_000_0_03_2021_103 20"}),
              LDemonstrativos);
    const auto& LDemitido = *LPagamento.Pagamentos()[1];
    EXPECT_EQ(2, LDemitido.tpPgto);
    ASSERT_EQ(2U, LDemitido.detPgtoFl.size());
    EXPECT_EQ("", LDemitido.detPgtoFl[0]->perRef);
    EXPECT_EQ(300.0L, LDemitido.detPgtoFl[0]->vrLiq);
    // What the last row left behind.
    EXPECT_EQ("3", LPagamento.InfoBind->ListaIdsEmpregado);
    EXPECT_EQ("01,02", LPagamento.InfoBind->ListaTipoFolhaDetPgto);
}

TEST_F(TTesteDatasDePagamento, DataSemDetalheNaoFica)
{
    Empregado(1);
    Prestador(7);
    // Only a total of the exclusion list, at zero; a receipt of a competence before the layout.
    Calculo({.Verba = vLiquido, .Valor = 0});
    Recibo(1, 7, D(2018, 6, 1), D(2021, 3, 10), 50);
    EXPECT_TRUE(Carregar().Pagamentos().empty());
    // Without a category the contract is never reported, although its date is found.
    Calculo({.Verba = vLiquido, .Valor = 80});
    EXPECT_EQ(1U, Carregar().Pagamentos().size());
    Executar("UPDATE EMPREGADOS SET IDCATEGORIAESOCIAL = NULL");
    EXPECT_TRUE(Carregar().Pagamentos().empty());
}

TEST_F(TTesteDatasDePagamento, CompetenciaAnteriorPagaComADoLeiaute)
{
    Empregado(1);
    Acordo(MAR10);
    Complementar(1, MAR31, 1);
    Inserir("RESC_COMPL", {{"COD_EMPRESA", 1}, {"COD_EMPREGADO", 1001}, {"DATA_PGTO", MAR31}});
    Calculo({.Verba = vLiquido, .Valor = 100});
    Calculo({.Verba = vLiquido, .Valor = 30, .Subtipo = 4, .Inicio = FEV1, .Fim = FEV28});
    Calculo({.Verba = vLiquido, .Valor = 20, .Inicio = FEV1, .Fim = FEV28});
    Calculo({.Verba = vLiquidoRescisao, .Valor = 10, .Tipo = "05", .Subtipo = 2, .Inicio = FEV1, .Fim = FEV28});
    const auto Demonstrativos = [] {
        std::vector<std::string> LTextos;
        const auto LPagamento = Carregar(MAR1);
        for (const auto& LPgto : LPagamento.Pagamentos())
            for (const auto& LDetalhe : LPgto->detPgtoFl)
                LTextos.push_back(std::to_string(LPgto->tpPgto) + " " + LDetalhe->ideDmDev);
        return LTextos;
    };
    using TTextos = std::vector<std::string>;
    // By agreement the competence doesn't count, once the date is found. The complementary dismissal makes a payment of
    // kind 2 by its day of payment, and has no demonstrative by its competence. Complementary runs don't go by the kind
    // of the payment: each payment of their date tells them.
    EXPECT_EQ((TTextos{"1 01_004_1_02_2021", "1 01_000_0_03_2021", "2 01_004_1_02_2021"}), Demonstrativos());
    Executar("UPDATE CALCCOMPL SET TIPOCALCULO = 2");
    EXPECT_EQ((TTextos{"1 01_000_0_03_2021"}), Demonstrativos());
    Executar("UPDATE CALCULO SET DATA_INICIO = '01.03.2021' WHERE TIPO = '05'");
    EXPECT_EQ((TTextos{"1 01_000_0_03_2021", "1 05_002_01_03_2021", "2 05_002_01_03_2021"}), Demonstrativos());
}

TEST_F(TTesteDatasDePagamento, ReciboDaEmpresaNoPeriodo)
{
    Prestador(7);
    Prestador(8, 0, "101.112.223-54");
    Recibo(10, 7, D(2021, 2, 1), D(2021, 3, 10), 500.25);
    Recibo(11, 8, D(2018, 7, 1), D(2021, 3, 10), 0);
    Recibo(12, 7, D(2021, 2, 1), D(2021, 3, 10), 70, 2);
    Recibo(13, 7, D(2021, 2, 1), ABR1, 80);
    Recibo(14, 7, D(2021, 2, 1), FEV28, 80);
    Recibo(15, 7, D(2021, 2, 1), MAR1, 90);
    Recibo(16, 7, D(2021, 2, 1), MAR31, 90);
    // A competence before the layout, on a day of the period: a date without a demonstrative, which goes.
    Recibo(17, 7, D(2018, 6, 30), MAR5, 90);
    std::vector<TDateTime> LDatas;
    const auto LTodos = Carregar();
    for (const auto& LPgto : LTodos.Pagamentos())
        LDatas.push_back(LPgto->dtPgto);
    EXPECT_EQ((std::vector<TDateTime>{MAR1, MAR10, MAR31}), LDatas);
    Executar("DELETE FROM RPA WHERE IDRPA > 13");
    // Their number isn't theirs alone: another company's, of another day, another provider's, and one of a competence
    // before the layout.
    Prestador(9, 0, "20211222305");
    Recibo(18, 9, D(2021, 2, 1), D(2021, 3, 10), 7);
    Recibo(19, 7, D(2018, 6, 1), D(2021, 3, 10), 8);
    Executar("UPDATE RPA SET NRRPA = 10 WHERE IDRPA IN (12, 13, 18, 19)");
    const auto LPagamento = Carregar();
    ASSERT_EQ(1U, LPagamento.Pagamentos().size());
    const auto& LDetalhes = LPagamento.Pagamentos()[0]->detPgtoFl;
    EXPECT_EQ(1, LPagamento.Pagamentos()[0]->tpPgto);
    ASSERT_EQ(2U, LDetalhes.size());
    // The receipt without a net stays, whatever its ValidouGeracao.
    EXPECT_EQ("97_0000000011_10_03_2021", LDetalhes[0]->ideDmDev);
    EXPECT_EQ("2018-07", LDetalhes[0]->perRef);
    EXPECT_FALSE(LDetalhes[0]->ValidouGeracao);
    EXPECT_EQ("97_0000000010_10_03_2021", LDetalhes[1]->ideDmDev);
    EXPECT_EQ(500.25L, LDetalhes[1]->vrLiq);
    EXPECT_TRUE(LDetalhes[1]->ValidouGeracao);
    EXPECT_EQ("0", LPagamento.InfoBind->ListaIdsEmpregado);
}

} // namespace
} // namespace tarvo::testes
