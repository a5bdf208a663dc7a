#include "UnPagamentoDeTeste.h"

namespace tarvo::testes {
namespace {

using pagamento::TTarvoESocialCamposdetPgtoFl;
using pagamento::TTarvoESocialCamposS1210IOP;

class TTesteDemonstrativos : public TTestePagamento {
protected:
    /// The one demonstrative of the one payment of March 2021.
    static const TTarvoESocialCamposdetPgtoFl& Unico(const TPagamentoCarregado& APagamento)
    {
        if (APagamento.Pagamentos().size() != 1 || APagamento.Pagamentos()[0]->detPgtoFl.size() != 1)
            throw Exception("Esperado um só demonstrativo");
        return *APagamento.Pagamentos()[0]->detPgtoFl[0];
    }
    /// The rubric has a legal process of the tributes of these bits at the company.
    static void Processo(int AVerba, int ATributos)
    {
        Inserir("ES02_SPPROC",
                {{"IDSPPROC", AVerba}, {"DATAABERTURA", D(2020, 1, 1)}, {"INDMATERIATPTRIB", ATributos}});
        Inserir("FP_VERBAPROCESSO", {{"IDVERBA", 100 + AVerba}, {"IDSPPROC", AVerba}});
    }
    static std::string Falha(void (*AAcao)())
    {
        try {
            AAcao();
        } catch (const Exception& E) {
            return E.what();
        }
        return "nenhuma";
    }
};

TEST_F(TTesteDemonstrativos, PeriodoEIdentificadorDeCadaCalculo)
{
    using enum TTiposFolha;
    struct TCaso {
        TTiposFolha Tipo;
        int Subtipo;
        const char* PerRef;
        const char* IdeDmDev;
        int Compl = 0;
        std::int64_t Intermitente = 0;
        int tpPgto = 1;
        TDateTime Acordo = TDateTime();
    };
    const auto ACORDO = D(2020, 11, 20);
    const TCaso LCasos[] = {
        {Mensal, 0, "2021-02", "01_000_0_02_2021"},
        {Mensal, 0, "2021-02", "01_000_0_0000000007_02_2021", 0, 7},
        {Mensal, 4, "2021-02", "01_004_2_02_2021", 2},
        {Mensal, 4, "2020-11", "01_004_1_02_2021", 1, 0, 1, ACORDO},
        {Mensal, 0, "2021-02", "01_000_0_02_2021", 0, 0, 5},
        {Mensal, 0, "", "01_000_0_02_2021", 0, 0, 2},
        {Mensal, 0, "", "01_000_0_02_2021", 0, 0, 6},
        // A negative convocation ties the queries and not the identifier.
        {Mensal, 0, "2021-02", "01_000_0_02_2021", 0, -1},
        {Adiantamento, 0, "2021-02", "02_000_0_02_2021"},
        {DecimoTerceiro, 0, "2021", "03_000_0_02_2021"},
        {DecimoTerceiro, 4, "2021-02", "03_004_2_02_2021", 2},
        {DecimoTerceiro, 4, "2020-11", "03_004_1_02_2021", 1, 0, 1, ACORDO},
        {Rescisao, 2, "2021-02", "05_002_03_02_2021"},
        {Rescisao, 2, "2021-03", "05_002_03_02_2021", 0, 0, 1, ACORDO},
        {Rescisao, 0, "", "05_000_0000000009_03_02_2021", 0, 9, 2},
        {ParticipacaoNosLucros, 0, "2021-03", "09_000_0_03_2021", 0, 0, 1, ACORDO},
        {Rpa, 0, "2021-02", "97_0000001234_05_03_2021", 0, 9},
    };
    for (const auto& LCaso : LCasos) {
        TTarvoESocialCamposS1210IOP LInfoBind;
        LInfoBind.IdEmpresa = 1;
        LInfoBind.TipoFolha = LCaso.Tipo;
        LInfoBind.SubTipoFolha = static_cast<std::int8_t>(LCaso.Subtipo);
        LInfoBind.TipoFolhaCompl = LCaso.Compl;
        LInfoBind.IDIntermitente = LCaso.Intermitente;
        LInfoBind.tpPgto = LCaso.tpPgto;
        LInfoBind.DataAcordoConvencao = LCaso.Acordo;
        LInfoBind.NumeroRecibo = 1234;
        LInfoBind.DataInicio = D(2021, 2, 3);
        LInfoBind.DataPagto = D(2021, 3, 5);
        // Not told to the identifier unless the CPF has contracts of several categories.
        LInfoBind.CodigoCategoria = 101;
        TTarvoESocialCamposdetPgtoFl LDetalhe(LInfoBind);
        LDetalhe.CarregarDados();
        EXPECT_EQ(LCaso.PerRef, LDetalhe.perRef) << LCaso.IdeDmDev;
        EXPECT_EQ(LCaso.IdeDmDev, LDetalhe.ideDmDev);
    }
}

TEST_F(TTesteDemonstrativos, CategoriaNoIdentificadorSoComContratosAtivosDeVarias)
{
    Empregado(1);
    Empregado(2, 103);
    Calculo({.Verba = vLiquido});
    EXPECT_EQ("01_000_0_03_2021_101", Unico(Carregar()).ideDmDev);
    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '723.1' WHERE IDESOCIALTABELA = 101");
    EXPECT_EQ("01_000_0_03_2021_723", Unico(Carregar()).ideDmDev);
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '28.02.2021' WHERE IDEMPREGADO = 2");
    EXPECT_EQ("01_000_0_03_2021", Unico(Carregar()).ideDmDev);
}

TEST_F(TTesteDemonstrativos, ConvocacaoFazDemonstrativoProprioComOsSeusValores)
{
    Empregado(1);
    Calculo({.Verba = vLiquido, .Valor = 40.5, .Convocacao = 7});
    Calculo({.Verba = vLiquido, .Valor = 60, .Convocacao = 8});
    Calculo({.Verba = vLiquido, .Valor = 5});
    const auto LPagamento = Carregar();
    std::vector<std::string> LTextos;
    for (const auto& LDetalhe : LPagamento.Pagamentos().at(0)->detPgtoFl)
        LTextos.push_back(LDetalhe->ideDmDev + " " + FloatToStr(static_cast<double>(LDetalhe->vrLiq)));
    EXPECT_EQ((std::vector<std::string>{"01_000_0_03_2021 5", "01_000_0_0000000007_03_2021 40,5",
                                        "01_000_0_0000000008_03_2021 60"}),
              LTextos);
}

TEST_F(TTesteDemonstrativos, AcordoLevaADataParaOPeriodo)
{
    Empregado(1);
    Acordo(D(2021, 3, 10));
    Complementar(1, D(2021, 3, 31), 1);
    Calculo({.Verba = vLiquido, .Subtipo = 4, .Inicio = D(2020, 6, 1), .Fim = D(2020, 6, 30)});
    EXPECT_EQ("2021-03", Unico(Carregar()).perRef);
    EXPECT_EQ("01_004_1_06_2020", Unico(Carregar()).ideDmDev);
    // By agreement the competence may lie before the layout: the date is then an earlier payment, which has no rubric.
    EXPECT_TRUE(Carregar(D(2020, 7, 1)).Pagamentos().empty());
}

TEST_F(TTesteDemonstrativos, CadaPagamentoTemSoOsCalculosDoSeuDia)
{
    const auto Identificadores = [](const TPagamentoCarregado& APagamento) {
        std::string LTexto;
        for (const auto& LPagamento : APagamento.Pagamentos()) {
            LTexto += "[";
            for (const auto& LDetalhe : LPagamento->detPgtoFl)
                LTexto += " " + LDetalhe->ideDmDev;
            LTexto += " ]";
        }
        return LTexto;
    };
    Empregado(1);
    // Two complementaries without an agreement, the one of February paid before that of March.
    Complementar(2, D(2021, 3, 31));
    Inserir("CALCCOMPL", {{"IDCALCCOMPL", 2}, {"TIPOCALCULO", 2}});
    Inserir("FP_CALCCOMPLEMPREG", {{"IDCALCCOMPL", 2}, {"IDEMPREGADO", 1}});
    Inserir("CALCCOMPLPER", {{"IDCALCCOMPL", 2}, {"COMPET_PGTO", D(2021, 3, 20)}});
    Calculo({.Verba = vLiquido, .Subtipo = 4});
    Calculo({.Verba = vLiquido, .Tipo = "02", .Subtipo = 4});
    Calculo({.Verba = vLiquido, .Subtipo = 4, .Inicio = D(2021, 2, 1), .Fim = D(2021, 2, 28), .Pagto = D(2021, 3, 20)});
    EXPECT_EQ("[ 01_004_2_02_2021 ][ 01_004_2_03_2021 ]", Identificadores(Carregar()));
    EXPECT_EQ("[ 01_004_2_03_2021 ]", Identificadores(Carregar(D(2021, 3, 1)))) << "from the layout's first day on";

    // A complementary dismissal of the day, beside kinds that no branch takes.
    Executar("DELETE FROM CALCULO");
    Inserir("RESC_COMPL", {{"COD_EMPRESA", 1}, {"COD_EMPREGADO", 1001}, {"DATA_PGTO", D(2021, 3, 31)}});
    for (const int LVerba : {int{vLiquido}, int{vLiquidoRescisao}}) {
        Calculo({.Verba = LVerba, .Tipo = "05", .Subtipo = 2});
        Calculo({.Verba = LVerba, .Tipo = "05", .Subtipo = 1});
        Calculo({.Verba = LVerba, .Subtipo = 2});
    }
    EXPECT_EQ("[ 05_002_01_03_2021 ]", Identificadores(Carregar()));
}

TEST_F(TTesteDemonstrativos, LiquidoZeroSoFicaComRubricaQueConta)
{
    Empregado(1);
    Calculo({.Verba = vLiquido, .Valor = 0});
    Calculo({.Verba = vSalario, .Valor = 0});
    EXPECT_TRUE(Carregar().Pagamentos().empty());

    // Natures of which the remuneration reports the base count at zero, while the link is in force for the whole run.
    Codigo(39932, 3, "9932");
    Inserir("FP_RUBRICARELAC",
            {{"IDVERBA", 101}, {"IDESOCIALTABELA", 39932}, {"DATAINICIO", D(2021, 3, 1)}, {"DATAFIM", D(2021, 3, 31)}});
    EXPECT_TRUE(Unico(Carregar()).ValidouGeracao);
    Executar("UPDATE FP_RUBRICARELAC SET DATAFIM = NULL");
    EXPECT_EQ(0.0L, Unico(Carregar()).vrLiq);
    for (const char* LAtribuicao : {"DATAFIM = '30.03.2021'", "DATAFIM = NULL, DATAINICIO = '02.03.2021'",
                                    "DATAINICIO = '01.03.2021', IDVERBA = 199"}) {
        Executar(std::string("UPDATE FP_RUBRICARELAC SET ") + LAtribuicao);
        EXPECT_TRUE(Carregar().Pagamentos().empty()) << LAtribuicao;
    }
    Executar("UPDATE FP_RUBRICARELAC SET DATAFIM = NULL, DATAINICIO = '01.03.2021', IDVERBA = 101");
    for (const auto& [LNatureza, LFica] : {std::pair{"9905", true}, {"9930", true}, {"9931", true}, {"9939", false}}) {
        Executar(std::string("UPDATE FP_ESOCIALTABELA SET CODIGO = '") + LNatureza + "' WHERE IDESOCIALTABELA = 39932");
        EXPECT_EQ(LFica, !Carregar().Pagamentos().empty()) << LNatureza;
    }
    // A value above zero counts, but for the totals. Those that end in a percent sign are whole texts: 97A isn't one.
    for (const auto& [LFormula, LFica] : {std::pair{"1A", true}, {"99BC", false}, {"97%", false}, {"97A", true}}) {
        Executar(std::string("UPDATE TAB_VERBAS SET FORMULA = '") + LFormula + "' WHERE CODIGO = 1");
        Executar("UPDATE CALCULO SET VALOR = 0.01 WHERE COD_VERBA = 1");
        EXPECT_EQ(LFica, !Carregar().Pagamentos().empty()) << LFormula;
    }
}

TEST_F(TTesteDemonstrativos, ReciboDoEventoDeDesligamento)
{
    Empregado(1, 101, D(2021, 3, 15));
    Calculo({.Verba = vLiquidoRescisao, .Valor = 900, .Tipo = "05", .Fim = D(2021, 3, 15)});
    const auto Enviado = [](int AId, const char* ATipo, int AAmbiente, const char* ARecibo) {
        Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", AId},
                                         {"IDEMPRESA", 1},
                                         {"TPEVENTO", ATipo},
                                         {"TPAMB", AAmbiente},
                                         {"STATUS", 201},
                                         {"IDTABELAEVENTO", 1},
                                         {"DATA", D(2021, 3, 20)}});
        Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", AId}, {"STATUS", 201}, {"DESCRICAO", ARecibo}});
    };
    Enviado(1, "S-2299", 1, "1.2.0001");
    Enviado(2, "S-2399", 1, "1.2.0002");
    Enviado(3, "S-2299", 2, "1.2.0003");
    EXPECT_EQ("1.2.0001", Unico(Carregar()).nrRecArq);
    EXPECT_EQ("", Unico(Carregar()).perRef);
    EXPECT_EQ(900.0L, Unico(Carregar()).vrLiq);
    Executar("UPDATE EMPREGADOS SET IDCATEGORIAESOCIAL = 721");
    EXPECT_EQ("1.2.0002", Unico(Carregar()).nrRecArq);
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = NULL");
    EXPECT_EQ("", Unico(Carregar()).nrRecArq);
}

TEST_F(TTesteDemonstrativos, RubricaRetidaComCodigoQuantidadeFatorEValor)
{
    Empregado(1);
    Calculo({.Verba = vLiquido});
    Calculo({.Verba = vIrrf, .Valor = 94.51, .Referencia = 7.3});
    Calculo({.Verba = vIrrf, .Valor = 0.49, .Convocacao = 7});
    Verba(27, "99G");
    Calculo({.Verba = 27, .Valor = 1, .Convocacao = 7});
    Calculo({.Verba = vSalario, .Valor = 3000});
    {
        const auto LPagamento = Carregar();
        // The call has a demonstrative of its own, the second.
        const auto& LDetalhes = LPagamento.Pagamentos().at(0)->detPgtoFl;
        ASSERT_EQ(2U, LDetalhes.size());
        ASSERT_EQ(1U, LDetalhes[0]->retPgtoTot.size());
        EXPECT_EQ(2U, LDetalhes[1]->retPgtoTot.size());
        const auto& LVerba = *LDetalhes[0]->retPgtoTot[0];
        EXPECT_EQ("00026P000I031F000C000", LVerba.codRubr);
        EXPECT_EQ("0", LVerba.ideTabRubr);
        EXPECT_EQ(0.0L, LVerba.qtdRubr);
        EXPECT_EQ(7.3, static_cast<double>(LVerba.fatorRubr));
        // The value isn't tied to the call, unlike the net.
        EXPECT_EQ(95.0, static_cast<double>(LVerba.vrRubr));
        EXPECT_EQ(126, LVerba.IdVerba);
        EXPECT_TRUE(LVerba.penAlim.empty());
    }
    Executar("DELETE FROM CALCULO WHERE IDDETCONVOCACAO = 7");
    Calculo({.Verba = vIrrf, .Valor = 0.5, .Referencia = 7.3}); // the rubric's second row is no second rubric
    Executar("UPDATE TAB_VERBAS SET HORAS = 'sim' WHERE CODIGO = 26");
    Inserir("SC00_EMPRESACFG",
            {{"IDEMPRESA", 1}, {"ORIGEM", 90}, {"ESPECIE", 38}, {"TP", 13}, {"INFORMACAO1", "TAB01"}});
    {
        const auto LPagamento = Carregar();
        ASSERT_EQ(1U, Unico(LPagamento).retPgtoTot.size());
        EXPECT_EQ(95.01, static_cast<double>(Unico(LPagamento).retPgtoTot[0]->vrRubr));
        EXPECT_EQ("TAB01", Unico(LPagamento).retPgtoTot.at(0)->ideTabRubr);
        EXPECT_EQ(7.5L, Unico(LPagamento).retPgtoTot.at(0)->qtdRubr);
    }
}

TEST_F(TTesteDemonstrativos, CadaDemonstrativoTomaSoAsSuasLinhas)
{
    Empregado(1);
    Empregado(2, 101, nullptr, "20211222305");
    Calculo({.Verba = vLiquido});
    Calculo({.Verba = vIrrf, .Valor = 10});
    Verba(27, "99G");
    const auto INICIO_DE_FEVEREIRO = D(2021, 2, 1);
    const auto ABR5 = D(2021, 4, 5);
    for (const int LVerba : {int{vLiquido}, int{vIrrf}, 27}) {
        Calculo({.Verba = LVerba, .Valor = 1, .Empregado = 2});
        Calculo({.Verba = LVerba, .Valor = 2, .Tipo = "02"});
        Calculo({.Verba = LVerba, .Valor = 3, .Subtipo = 1});
        Calculo({.Verba = LVerba, .Valor = 4, .Inicio = INICIO_DE_FEVEREIRO});
        Calculo({.Verba = LVerba, .Valor = 5, .Pagto = ABR5});
    }
    const auto LPagamento = Carregar();
    std::vector<std::string> LTextos;
    for (const auto& LDetalhe : LPagamento.Pagamentos().at(0)->detPgtoFl) {
        LTextos.push_back(LDetalhe->ideDmDev + " " + FloatToStr(static_cast<double>(LDetalhe->vrLiq)));
        for (const auto& LVerba : LDetalhe->retPgtoTot)
            LTextos.back() += " " + FloatToStr(static_cast<double>(LVerba->vrRubr));
    }
    EXPECT_EQ((std::vector<std::string>{"01_000_0_02_2021 4 4 4", "01_000_0_03_2021 100 10", "02_000_0_03_2021 2 2 2"}),
              LTextos);
}

TEST_F(TTesteDemonstrativos, FormulasDasVerbasRetidas)
{
    Empregado(1);
    Calculo({.Verba = vLiquido});
    Calculo({.Verba = vIrrf});
    const auto Retidas = [](const std::string& AFormula) {
        Executar("UPDATE TAB_VERBAS SET FORMULA = '" + AFormula + "' WHERE CODIGO = 26");
        return Unico(Carregar()).retPgtoTot.size();
    };
    for (const char* LFormula : {"5E", "5EA", "5EB", "5EC", "99F", "99G", "99GA", "99H", "99HA", "99I", "99K", "99M"})
        EXPECT_EQ(1U, Retidas(LFormula)) << LFormula;
    for (const char* LFormula : {"5", "5F", "99", "99E", "99FA", "99IA", "99J", "99KA", "99L", "99MA"})
        EXPECT_EQ(0U, Retidas(LFormula)) << LFormula;
}

TEST_F(TTesteDemonstrativos, PensionistasDividemAPensaoPorIgual)
{
    Empregado(1);
    Empregado(2);
    Calculo({.Verba = vLiquido});
    Calculo({.Verba = vPensao, .Valor = 300});
    Calculo({.Verba = vPensaoFerias, .Valor = 1, .Empregado = 2});
    Empregado(3, 101, nullptr, "20211222305");
    Dependente(-1, "11111111111", 1, D(2010, 1, 1), nullptr, 3); // of another worker, as the next two
    Dependente(-2, nullptr, 1, D(2010, 1, 1), nullptr, 3);
    Dependente(-3, nullptr, 0, D(2010, 1, 1), nullptr, 3);
    Dependente(0, "11111111111", 0); // registered once more, not as a pensioner
    Dependente(1, "11111111111", 1);
    Dependente(3, "22222222222", 1, D(2021, 3, 1), nullptr, 2); // the same person under the other contract
    Dependente(2, "22222222222", 1, D(2021, 3, 1));
    Dependente(-4, "22222222222", 1, D(2021, 3, 2)); // and with a date of birth that is wrong
    Dependente(4, "33333333333", 0);
    Dependente(5, "44444444444", 1, D(2021, 3, 2)); // not born yet
    Dependente(9, nullptr, 1, D(2021, 3, 2));
    Dependente(10, nullptr, 0, D(2021, 3, 2));
    Dependente(6, nullptr, 0, D(2021, 3, 1)); // without a CPF counts only beside a pensioner without one
    const auto Pensoes = [&] {
        std::vector<std::string> LTextos;
        const auto LPagamento = Carregar();
        for (const auto& LVerba : LPagamento.Pagamentos().at(0)->detPgtoFl.at(0)->retPgtoTot)
            for (const auto& LPensao : LVerba->penAlim)
                LTextos.push_back(LVerba->codRubr.substr(10, 3) + " " + std::to_string(LPensao->IdDependente) + " " +
                                  LPensao->cpfBenef + " " + FloatToStr(static_cast<double>(LPensao->vlrPensao)));
        return LTextos;
    };
    using TTextos = std::vector<std::string>;
    EXPECT_EQ((TTextos{"051 1 11111111111 150,5", "051 2 22222222222 150,5", "053 1 11111111111 150,5",
                       "053 2 22222222222 150,5"}),
              Pensoes());
    // Nothing to share out when the alimonies come to nothing.
    Executar("UPDATE CALCULO SET VALOR = -300 WHERE COD_VERBA = 32");
    EXPECT_EQ(TTextos(), Pensoes());
    Executar("DELETE FROM CALCULO WHERE COD_VERBA = 32");
    // A pensioner without a CPF stands for the dependants without one who are not marked, and himself isn't told.
    Dependente(7, "", 1);
    Dependente(-8, "", 2);
    EXPECT_EQ((TTextos{"051 -8  75", "051 6  75", "051 1 11111111111 75", "051 2 22222222222 75"}), Pensoes());
    // Not rounded.
    Executar("DELETE FROM DEPENDENTES WHERE IDDEPENDENTE = -8");
    Executar("UPDATE CALCULO SET VALOR = 100 WHERE COD_VERBA = 31");
    EXPECT_EQ("051 6  33,333333333333336", Pensoes().at(0));
}

TEST_F(TTesteDemonstrativos, VerbaRetidaSemIncidenciaDeRetencaoInterrompeACarga)
{
    Empregado(1);
    Calculo({.Verba = vLiquido});
    Calculo({.Verba = vIrrf});
    Verba(77, "5EX");
    Calculo({.Verba = 77, .Valor = 10});
    EXPECT_EQ("Verba 77 sem incidência de IRRF de retenção (31 a 35, 51 a 55 ou 81 a 83): Verba 77, no demonstrativo "
              "01_000_0_03_2021 pago em 31/03/2021",
              Falha([] { Carregar(); }));
    // Without a value it isn't withheld.
    Executar("UPDATE CALCULO SET VALOR = 0 WHERE COD_VERBA = 77");
    EXPECT_EQ(1U, Unico(Carregar()).retPgtoTot.size());

    // Under a process of income tax the code is that of the process, which withheld tax hasn't.
    Processo(vIrrf, 6);
    EXPECT_EQ("00026P000I031F000C000", Unico(Carregar()).retPgtoTot.at(0)->codRubr.substr(0, 21));
    Executar("UPDATE ES02_SPPROC SET INDMATERIATPTRIB = 1");
    EXPECT_EQ(0U, Falha([] { Carregar(); }).find("Verba 26 sem incidência de IRRF de retenção"));
    Executar("UPDATE ES02_SPPROC SET DATAABERTURA = '02.03.2021'");
    EXPECT_EQ(1U, Unico(Carregar()).retPgtoTot.size());
}

TEST_F(TTesteDemonstrativos, ReciboComImpostoRetido)
{
    Prestador(7);
    Recibo(10, 7, D(2021, 2, 1), D(2021, 3, 10), 500);
    Recibo(11, 7, D(2021, 2, 1), D(2021, 3, 10), 90);
    Inserir("RPATPVALOR", {{"IDRPATPVALOR", 3}, {"NOME", "VLRIRRF"}, {"DESCRICAO", "IRRF retido"}});
    for (const double LValor : {75.0, 0.25})
        Inserir("RPAVALOR", {{"IDRPA", 10}, {"IDRPATPVALOR", 3}, {"VALOR", LValor}});
    EXPECT_EQ("Verba 3 sem incidência de IRRF de retenção (31 a 35, 51 a 55 ou 81 a 83): IRRF retido (RPA), no "
              "demonstrativo 97_0000000010_10_03_2021 pago em 10/03/2021",
              Falha([] { Carregar(); }));

    Codigo(9203, 3, "9203");
    Codigo(7000, 9997, "00");
    Codigo(6000, 9996, "11");
    Codigo(5000, 9995, "31");
    Inserir("FP_RUBRICARELACRPA", {{"IDRPATPVALOR", 3},
                                   {"IDESOCIALTABELA", 9203},
                                   {"IDESOCIALTABELACP", 7000},
                                   {"IDESOCIALTABELAIRRF", 9031},
                                   {"IDESOCIALTABELAFGTS", 6000},
                                   {"IDESOCIALTABELACS", 5000}});
    const auto LPagamento = Carregar();
    const auto& LDetalhes = LPagamento.Pagamentos().at(0)->detPgtoFl;
    ASSERT_EQ(2U, LDetalhes.size());
    ASSERT_EQ(1U, LDetalhes[0]->retPgtoTot.size());
    EXPECT_EQ("00003P000I031F011C031RPA", LDetalhes[0]->retPgtoTot[0]->codRubr);
    EXPECT_EQ(75.25L, LDetalhes[0]->retPgtoTot[0]->vrRubr);
    EXPECT_EQ(3, LDetalhes[0]->retPgtoTot[0]->IdVerba);
    EXPECT_TRUE(LDetalhes[1]->retPgtoTot.empty());
    Executar("UPDATE FP_RUBRICARELACRPA SET IDESOCIALTABELAIRRF = 9011");
    EXPECT_NE("nenhuma", Falha([] { Carregar(); }));
}

} // namespace
} // namespace tarvo::testes
