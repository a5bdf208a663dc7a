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

struct TCasoDeData {
    const char* Nome;
    const char* Tipo;
    int Subtipo;
    /// 0 for no payment.
    int Esperado;
    TOrigem Origem = oNormal;
    const char* Categoria = "101";
    TValorSql Demissao = nullptr;
    TDateTime Vigencia = D(2018, 7, 1);
    TDateTime Acordo = D(2021, 3, 10);
    TDateTime Inicio = D(2021, 2, 1);
    TDateTime Fim = D(2021, 2, 28);
    TDateTime Pagto = D(2021, 3, 5);
};

TEST_F(TTesteDatasDePagamento, CadaCalculoTemOSeuTipoDePagamento)
{
    const auto FEV1 = D(2021, 2, 1);
    const auto FEV2 = D(2021, 2, 2);
    const auto FEV28 = D(2021, 2, 28);
    const auto MAR1 = D(2021, 3, 1);
    const auto MAR5 = D(2021, 3, 5);
    const auto MAR6 = D(2021, 3, 6);
    const auto MAR31 = D(2021, 3, 31);
    const auto ABR1 = D(2021, 4, 1);
    const TCasoDeData LCasos[] = {
        {.Nome = "folha", .Tipo = "01", .Subtipo = 0, .Esperado = 1},
        {.Nome = "folha paga no primeiro dia", .Tipo = "01", .Subtipo = 0, .Esperado = 1, .Pagto = MAR1},
        {.Nome = "folha paga no último dia", .Tipo = "01", .Subtipo = 0, .Esperado = 1, .Pagto = MAR31},
        {.Nome = "folha paga antes", .Tipo = "01", .Subtipo = 0, .Esperado = 0, .Pagto = FEV28},
        {.Nome = "folha paga depois", .Tipo = "01", .Subtipo = 0, .Esperado = 0, .Pagto = ABR1},
        {.Nome = "folha no início do leiaute", .Tipo = "01", .Subtipo = 0, .Esperado = 1, .Vigencia = FEV1},
        {.Nome = "folha anterior ao leiaute", .Tipo = "01", .Subtipo = 0, .Esperado = 9, .Vigencia = FEV2},
        {.Nome = "demissão no primeiro dia da folha", .Tipo = "01", .Subtipo = 0, .Esperado = 2, .Demissao = FEV1},
        {.Nome = "demissão no último dia da folha", .Tipo = "01", .Subtipo = 0, .Esperado = 2, .Demissao = FEV28},
        {.Nome = "demissão depois da folha", .Tipo = "01", .Subtipo = 0, .Esperado = 1, .Demissao = MAR1},
        {.Nome = "demissão antes da folha", .Tipo = "01", .Subtipo = 0, .Esperado = 1, .Demissao = D(2021, 1, 31)},
        {.Nome = "demitido, folha anterior",
         .Tipo = "01",
         .Subtipo = 0,
         .Esperado = 9,
         .Demissao = FEV28,
         .Vigencia = MAR1},
        {.Nome = "término sem vínculo",
         .Tipo = "01",
         .Subtipo = 0,
         .Esperado = 3,
         .Categoria = "721",
         .Demissao = FEV28},
        {.Nome = "término de categoria com ponto",
         .Tipo = "01",
         .Subtipo = 0,
         .Esperado = 3,
         .Categoria = "723.1",
         .Demissao = FEV28},
        {.Nome = "sem vínculo fora da lista",
         .Tipo = "01",
         .Subtipo = 0,
         .Esperado = 2,
         .Categoria = "701",
         .Demissao = FEV28},
        {.Nome = "demitido sem categoria",
         .Tipo = "01",
         .Subtipo = 0,
         .Esperado = 2,
         .Categoria = nullptr,
         .Demissao = FEV28},
        {.Nome = "rescisão", .Tipo = "05", .Subtipo = 0, .Esperado = 2, .Demissao = FEV28},
        {.Nome = "rescisão de término futuro", .Tipo = "05", .Subtipo = 0, .Esperado = 1, .Demissao = MAR1},
        {.Nome = "subtipo 2 sem RESC_COMPL", .Tipo = "05", .Subtipo = 2, .Esperado = 0},
        {.Nome = "subtipo 1", .Tipo = "05", .Subtipo = 1, .Esperado = 0},
        {.Nome = "subtipo 104", .Tipo = "01", .Subtipo = 104, .Esperado = 0},
        {.Nome = "subtipo 4 sem CALCCOMPL", .Tipo = "01", .Subtipo = 4, .Esperado = 0},

        {.Nome = "férias", .Tipo = "04", .Subtipo = 0, .Esperado = 7},
        {.Nome = "férias no mês da demissão", .Tipo = "04", .Subtipo = 0, .Esperado = 7, .Demissao = FEV28},
        {.Nome = "férias no início do leiaute", .Tipo = "04", .Subtipo = 0, .Esperado = 7, .Vigencia = FEV1},
        {.Nome = "férias anteriores", .Tipo = "04", .Subtipo = 0, .Esperado = 9, .Vigencia = FEV2},

        {.Nome = "adiantamento", .Tipo = "02", .Subtipo = 0, .Esperado = 1},
        {.Nome = "adiantamento do 13º", .Tipo = "06", .Subtipo = 0, .Esperado = 1},
        {.Nome = "adiantamento, demissão no primeiro dia", .Tipo = "02", .Subtipo = 0, .Esperado = 2, .Demissao = MAR1},
        {.Nome = "adiantamento, demissão no último dia", .Tipo = "02", .Subtipo = 0, .Esperado = 2, .Demissao = MAR31},
        {.Nome = "adiantamento, término",
         .Tipo = "06",
         .Subtipo = 0,
         .Esperado = 3,
         .Categoria = "721",
         .Demissao = MAR31},
        {.Nome = "adiantamento, demissão antes do mês", .Tipo = "02", .Subtipo = 0, .Esperado = 1, .Demissao = FEV28},
        {.Nome = "adiantamento, demissão depois do mês", .Tipo = "02", .Subtipo = 0, .Esperado = 1, .Demissao = ABR1},
        {.Nome = "adiantamento anterior",
         .Tipo = "02",
         .Subtipo = 0,
         .Esperado = 9,
         .Demissao = MAR31,
         .Vigencia = FEV2},
        {.Nome = "adiantamento de outro subtipo", .Tipo = "02", .Subtipo = 4, .Esperado = 0},

        {.Nome = "13º", .Tipo = "03", .Subtipo = 0, .Esperado = 1},
        {.Nome = "13º pago na demissão", .Tipo = "03", .Subtipo = 0, .Esperado = 1, .Demissao = FEV28},
        {.Nome = "13º no início do leiaute", .Tipo = "03", .Subtipo = 0, .Esperado = 1, .Vigencia = FEV1},
        {.Nome = "13º anterior", .Tipo = "03", .Subtipo = 0, .Esperado = 9, .Vigencia = FEV2},

        {.Nome = "participação, leiaute no pagamento",
         .Tipo = "09",
         .Subtipo = 0,
         .Esperado = 1,
         .Demissao = FEV28,
         .Vigencia = MAR5},
        {.Nome = "participação anterior", .Tipo = "09", .Subtipo = 0, .Esperado = 9, .Vigencia = MAR6},

        {.Nome = "complementar", .Tipo = "01", .Subtipo = 4, .Esperado = 1, .Origem = oComplementar, .Demissao = MAR31},
        {.Nome = "complementar do 13º",
         .Tipo = "03",
         .Subtipo = 4,
         .Esperado = 1,
         .Origem = oComplementar,
         .Vigencia = FEV1},
        {.Nome = "complementar anterior",
         .Tipo = "01",
         .Subtipo = 4,
         .Esperado = 9,
         .Origem = oComplementar,
         .Vigencia = FEV2},
        {.Nome = "complementar de adiantamento", .Tipo = "02", .Subtipo = 4, .Esperado = 0, .Origem = oComplementar},
        {.Nome = "complementar de subtipo 2", .Tipo = "01", .Subtipo = 2, .Esperado = 0, .Origem = oComplementar},

        {.Nome = "acordo", .Tipo = "01", .Subtipo = 4, .Esperado = 1, .Origem = oAcordo},
        {.Nome = "acordo, demitido no mês",
         .Tipo = "01",
         .Subtipo = 4,
         .Esperado = 2,
         .Origem = oAcordo,
         .Demissao = MAR1,
         .Acordo = MAR31},
        {.Nome = "acordo do 13º, término no mês",
         .Tipo = "03",
         .Subtipo = 4,
         .Esperado = 3,
         .Origem = oAcordo,
         .Categoria = "721",
         .Demissao = MAR31,
         .Acordo = MAR1},
        {.Nome = "acordo de outro mês, demitido no mês",
         .Tipo = "01",
         .Subtipo = 4,
         .Esperado = 1,
         .Origem = oAcordo,
         .Demissao = MAR31,
         .Acordo = FEV28},
        {.Nome = "acordo futuro, demitido no mês",
         .Tipo = "01",
         .Subtipo = 4,
         .Esperado = 1,
         .Origem = oAcordo,
         .Demissao = MAR31,
         .Acordo = ABR1},
        {.Nome = "acordo, demitido antes",
         .Tipo = "01",
         .Subtipo = 4,
         .Esperado = 1,
         .Origem = oAcordo,
         .Demissao = FEV28},
        {.Nome = "acordo anterior",
         .Tipo = "01",
         .Subtipo = 4,
         .Esperado = 9,
         .Origem = oAcordo,
         .Demissao = MAR31,
         .Vigencia = FEV2},

        {.Nome = "rescisão por acordo",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 1,
         .Origem = oRescisaoAcordo,
         .Demissao = FEV28,
         .Vigencia = MAR5},
        {.Nome = "rescisão por acordo, demitido no mês",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 2,
         .Origem = oRescisaoAcordo,
         .Demissao = MAR31},
        {.Nome = "rescisão por acordo, término no mês",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 3,
         .Origem = oRescisaoAcordo,
         .Categoria = "721",
         .Demissao = MAR1},
        {.Nome = "rescisão por acordo, demitido depois",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 1,
         .Origem = oRescisaoAcordo,
         .Demissao = ABR1},
        {.Nome = "rescisão por acordo anterior",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 9,
         .Origem = oRescisaoAcordo,
         .Demissao = MAR31,
         .Vigencia = MAR6},

        {.Nome = "rescisão complementar",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 2,
         .Origem = oRescisao,
         .Demissao = FEV28,
         .Vigencia = MAR5},
        {.Nome = "rescisão complementar sem demissão", .Tipo = "05", .Subtipo = 2, .Esperado = 2, .Origem = oRescisao},
        {.Nome = "rescisão complementar, sem vínculo",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 3,
         .Origem = oRescisao,
         .Categoria = "721"},
        {.Nome = "rescisão complementar anterior",
         .Tipo = "05",
         .Subtipo = 2,
         .Esperado = 9,
         .Origem = oRescisao,
         .Demissao = MAR31,
         .Vigencia = MAR6},
        {.Nome = "outro tipo com RESC_COMPL", .Tipo = "01", .Subtipo = 2, .Esperado = 0, .Origem = oRescisao},
    };
    Codigo(7231, 1, "723.1");
    Empregado(1);
    Inserir("FP_INFOGFIP650660", {{"IDINFOGFIP650660", 1}, {"DATAOCORRENCIA", D(2021, 3, 10)}});
    for (const auto& LCaso : LCasos) {
        SCOPED_TRACE(LCaso.Nome);
        for (const char* LTabela : {"CALCULO", "CALCCOMPL", "FP_CALCCOMPLEMPREG", "CALCCOMPLPER", "RESC_COMPL"})
            Executar(std::string("DELETE FROM ") + LTabela);
        Executar(
            "UPDATE EMPREGADOS SET DATA_DEMISSAO = " + LCaso.Demissao.Texto() +
            ", IDCATEGORIAESOCIAL = (SELECT IDESOCIALTABELA FROM FP_ESOCIALTABELA WHERE TABELA = 1 AND CODIGO = '" +
            (LCaso.Categoria == nullptr ? "" : LCaso.Categoria) + "')");
        Executar("UPDATE FP_INFOGFIP650660 SET DATAOCORRENCIA = " + TValorSql(LCaso.Acordo).Texto());
        if (LCaso.Origem == oComplementar || LCaso.Origem == oAcordo)
            Complementar(LCaso.Origem == oAcordo ? 1 : 2, LCaso.Pagto,
                         LCaso.Origem == oAcordo ? TValorSql(1) : TValorSql(nullptr));
        if (LCaso.Origem == oRescisao || LCaso.Origem == oRescisaoAcordo)
            Inserir("RESC_COMPL",
                    {{"COD_EMPRESA", 1},
                     {"COD_EMPREGADO", 1001},
                     {"DATA_PGTO", LCaso.Pagto},
                     {"IDINFOGFIP650660", LCaso.Origem == oRescisaoAcordo ? TValorSql(1) : TValorSql(nullptr)}});
        Calculo({.Verba = vSalario,
                 .Tipo = LCaso.Tipo,
                 .Subtipo = LCaso.Subtipo,
                 .Inicio = LCaso.Inicio,
                 .Fim = LCaso.Fim,
                 .Pagto = LCaso.Pagto});

        const auto LLinhas = OvraConnection().Consultar(SqlDasDatas(LCaso.Vigencia));
        ASSERT_EQ(LCaso.Esperado == 0 ? 0U : 1U, LLinhas.QuantidadeDeLinhas());
        if (LCaso.Esperado != 0) {
            const auto Coluna = [&](const char* ANome) {
                return LLinhas.Texto(0, static_cast<std::size_t>(LLinhas.IndiceDaColuna(ANome)));
            };
            EXPECT_EQ(std::to_string(LCaso.Esperado), Coluna("TPPAGTO"));
            EXPECT_EQ("1", Coluna("LISTA"));
            EXPECT_EQ(LCaso.Tipo, Coluna("TIPO"));
        }
    }
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

TEST_F(TTesteDatasDePagamento, ReciboDaEmpresaNoPeriodo)
{
    Prestador(7);
    Prestador(8, 0, "101.112.223-54");
    Recibo(10, 7, D(2021, 2, 1), D(2021, 3, 10), 500.25);
    Recibo(11, 8, D(2018, 7, 1), D(2021, 3, 10), 0);
    Recibo(12, 7, D(2021, 2, 1), D(2021, 3, 10), 70, 2);
    Recibo(13, 7, D(2021, 2, 1), D(2021, 4, 1), 80);
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
