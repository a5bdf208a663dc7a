#include "UnPagamentoDeTeste.h"

namespace tarvo::testes {
namespace {

/// Vacations (kind 7) and payments of earlier periods (kind 9).
class TTesteFeriasEAnteriores : public TTestePagamento {
protected:
    static void Quitacao(int AEmpregado, int ATipo, int ADias, TDateTime APagto)
    {
        static int LId = 0;
        ++LId;
        Inserir("FERIAS_AQUISITIVO",
                {{"IDFERIAS_AQUISITIVO", LId}, {"COD_EMPRESA", 1}, {"COD_EMPREGADO", 1000 + AEmpregado}});
        Inserir("FERIAS_AVOS", {{"IDFERIAS_AVOS", LId}, {"IDFERIAS_AQUISITIVO", LId}});
        Inserir("FERIAS_QUITACAO",
                {{"IDFERIAS_AVOS", LId}, {"TIPO", ATipo}, {"DIAS_QUITADOS", ADias}, {"DATA_PAGTO", APagto}});
    }
    static TCalculoDeTeste Ferias(int AVerba, double AValor, int AEmpregado = 1, TDateTime AInicio = D(2021, 3, 8))
    {
        return {.Verba = AVerba,
                .Valor = AValor,
                .Empregado = AEmpregado,
                .Tipo = "04",
                .Inicio = AInicio,
                .Fim = D(2021, 4, 6),
                .Pagto = D(2021, 3, 4)};
    }
    /// Category, then code and value of each earlier payment of March 2021; the layout starts on 1 January 2021 unless
    /// told.
    static std::vector<std::string> Anteriores(TDateTime AVigencia = D(2021, 1, 1))
    {
        std::vector<std::string> LTextos;
        const auto LPagamento = Carregar(AVigencia);
        for (const auto& LPgto : LPagamento.Pagamentos())
            for (const auto& LDetalhe : LPgto->detPgtoAnt)
                for (const auto& LInfo : LDetalhe->InfoPgtoAnt)
                    LTextos.push_back(std::to_string(LDetalhe->codCateg) + " " + LInfo->tpBcIRRF + " " +
                                      FloatToStr(static_cast<double>(LInfo->vrBcIRRF)));
        return LTextos;
    }
    using TTextos = std::vector<std::string>;
};

TEST_F(TTesteFeriasEAnteriores, FeriasPorTrabalhadorEInicioComOsDiasQuitados)
{
    Empregado(1);
    Empregado(2);
    Quitacao(1, 1, 20, D(2021, 3, 4));
    Quitacao(1, 4, 10, D(2021, 3, 4)); // kind 4 contributes no days
    Quitacao(1, 1, 30, D(2021, 3, 5)); // paid on another day
    Quitacao(2, 1, 15, D(2021, 3, 4));
    Calculo(Ferias(vLiquidoFerias, 1000.5));
    Calculo(Ferias(vLiquidoFerias, 500, 2));
    Calculo(Ferias(vLiquidoFerias, 70, 2, D(2021, 3, 1)));
    auto LOutra = Ferias(vLiquidoFerias, 3);
    LOutra.Pagto = D(2021, 4, 5);
    Calculo(LOutra);
    LOutra = Ferias(vLiquidoFerias, 4);
    LOutra.Tipo = "01";
    LOutra.Subtipo = 1; // no payment
    Calculo(LOutra);
    const auto LPagamento = Carregar();
    ASSERT_EQ(1U, LPagamento.Pagamentos().size());
    EXPECT_EQ(7, LPagamento.Pagamentos()[0]->tpPgto);
    EXPECT_TRUE(LPagamento.Pagamentos()[0]->detPgtoFl.empty());
    TTextos LTextos;
    for (const auto& LFerias : LPagamento.Pagamentos()[0]->detPgtoFer)
        LTextos.push_back(LFerias->matricula + " " + DateTimeToStr(LFerias->dtIniGoz) + " " +
                          std::to_string(LFerias->qtDias) + " " + std::to_string(LFerias->codCateg) + " " +
                          FloatToStr(static_cast<double>(LFerias->vrLiq)));
    // The net is that of every worker of the date who starts on the day.
    EXPECT_EQ((TTextos{"M2 01/03/2021 15 101 70", "M1 08/03/2021 20 101 1500,5", "M2 08/03/2021 15 101 1500,5"}),
              LTextos);

    // On the same day of payment, one that starts before the layout isn't reported.
    const auto LDoLeiaute = Carregar(D(2021, 3, 8));
    ASSERT_EQ(1U, LDoLeiaute.Pagamentos().size());
    ASSERT_EQ(2U, LDoLeiaute.Pagamentos()[0]->detPgtoFer.size());
    EXPECT_EQ(D(2021, 3, 8), LDoLeiaute.Pagamentos()[0]->detPgtoFer[0]->dtIniGoz);

    // A vacation that is paid on another day of the month is told there alone.
    LOutra = Ferias(vLiquidoFerias, 9);
    LOutra.Inicio = D(2021, 3, 9);
    LOutra.Pagto = D(2021, 3, 5);
    Calculo(LOutra);
    const auto LDeDoisDias = Carregar();
    ASSERT_EQ(2U, LDeDoisDias.Pagamentos().size());
    EXPECT_EQ(3U, LDeDoisDias.Pagamentos()[0]->detPgtoFer.size());
    ASSERT_EQ(1U, LDeDoisDias.Pagamentos()[1]->detPgtoFer.size());
    EXPECT_EQ(30, LDeDoisDias.Pagamentos()[1]->detPgtoFer[0]->qtDias);
}

TEST_F(TTesteFeriasEAnteriores, SoAsIncidenciasDeFeriasSaoRubricas)
{
    Empregado(1);
    Quitacao(1, 1, 30, D(2021, 3, 4));
    IncidenciaIrrf(vFerias, 11);
    Calculo(Ferias(vFerias, 3000));
    const auto Rubricas = [](const std::string& ACodigo) {
        Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '" + ACodigo + "' WHERE IDESOCIALTABELA = 9011");
        return Carregar().Pagamentos().at(0)->detPgtoFer.at(0)->detRubrFer.size();
    };
    for (const char* LCodigo : {"00", "01", "09", "13", "33", "43", "46", "53", "63", "75", "93"})
        EXPECT_EQ(1U, Rubricas(LCodigo)) << LCodigo;
    for (const char* LCodigo : {"11", "12", "15", "31", "41", "47", "51", "55", "61", "74", "83", "91", "95"})
        EXPECT_EQ(0U, Rubricas(LCodigo)) << LCodigo;
}

TEST_F(TTesteFeriasEAnteriores, QuantidadeEFatorDasRubricasDasFerias)
{
    struct TCaso {
        const char* Formula;
        double Referencia;
        TValorSql PercentualDaVerba;
        double Quantidade;
        double Fator;
    };
    const TCaso LCasos[] = {
        {"4TA", 7.3, 8, 7.5, 0}, {"14T", 7.3, 8, 0, 0}, {"99H", 7.3, 8, 0, 7.3},    {"1CB", 7.3, 8.25, 0, 8.25},
        {"3G", 7.3, 8, 0, 8},    {"3GA", 7.3, 8, 0, 0}, {"1Z", 7.3, nullptr, 0, 0},
    };
    Empregado(1);
    Quitacao(1, 1, 30, D(2021, 3, 4));
    IncidenciaIrrf(vFerias, 13);
    auto LFerias = Ferias(vFerias, 3000);
    for (const auto& LCaso : LCasos) {
        Executar("DELETE FROM CALCULO");
        LFerias.Referencia = LCaso.Referencia;
        Calculo(LFerias);
        Executar(std::string("UPDATE TAB_VERBAS SET FORMULA = '") + LCaso.Formula +
                 "', VLR_CALC = " + LCaso.PercentualDaVerba.Texto() + " WHERE IDVERBA = 112");
        const auto LPagamento = Carregar();
        const auto& LVerba = *LPagamento.Pagamentos().at(0)->detPgtoFer.at(0)->detRubrFer.at(0);
        EXPECT_EQ(LCaso.Quantidade, static_cast<double>(LVerba.qtdRubr)) << LCaso.Formula;
        EXPECT_EQ(LCaso.Fator, static_cast<double>(LVerba.fatorRubr)) << LCaso.Formula;
    }
}

TEST_F(TTesteFeriasEAnteriores, RubricasDasFerias)
{
    Empregado(1);
    Quitacao(1, 1, 30, D(2021, 3, 4));
    Dependente(1, "11111111111", 1);
    Dependente(2, "22222222222", 1);
    Verba(70, "97A");
    for (const auto& [LVerba, LCodigo] : {std::pair{int{vFerias}, 13},
                                          {int{vInssFerias}, 43},
                                          {int{vPensaoFerias}, 53},
                                          {int{vIrrfFerias}, 33},
                                          {int{vLiquidoFerias}, 0},
                                          {70, 0},
                                          {int{vSalario}, 11}})
        IncidenciaIrrf(LVerba, LCodigo);
    Calculo(Ferias(vFerias, 3000));
    Calculo(Ferias(vInssFerias, 250));
    Calculo(Ferias(vInssFeriasPago, 240));
    Calculo(Ferias(vPensaoFerias, 301));
    Calculo(Ferias(vIrrfFerias, 0)); // nothing was withheld
    Calculo(Ferias(vIrrfFerias, 6, 1, D(2021, 3, 20)));
    auto LOutra = Ferias(vIrrfFerias, 7);
    LOutra.Tipo = "01";
    LOutra.Subtipo = 1; // no payment
    Calculo(LOutra);
    // The same vacation, paid on another day.
    Verba(71, "7B", "Sim");
    IncidenciaIrrf(71, 13);
    LOutra = Ferias(71, 8);
    LOutra.Pagto = D(2021, 3, 31);
    Calculo(LOutra);
    Calculo(Ferias(vSalario, 5)); // a code that a vacation doesn't report
    Calculo(Ferias(70, 9));       // a total, without incidences
    Calculo(Ferias(vLiquidoFerias, 2449));
    const auto LPagamento = Carregar();
    TTextos LTextos;
    for (const auto& LVerba : LPagamento.Pagamentos().at(0)->detPgtoFer.at(0)->detRubrFer)
        LTextos.push_back(LVerba->codRubr + " " + LVerba->CaracteristicaVerba + " " + std::to_string(LVerba->IdVerba) +
                          " " + FloatToStr(static_cast<double>(LVerba->vrRubr)) + " " +
                          std::to_string(LVerba->penAlim.size()));
    // The social security takes code and value of the rubric that was paid with the vacation.
    EXPECT_EQ((TTextos{"00012P011I013F011C011 7A 112 3000 0", "00025P000I009F000C000 99E 125 240 0",
                       "00032P000I053F000C000 5EA 132 301 2"}),
              LTextos);
    EXPECT_EQ(150.5L, LPagamento.Pagamentos()[0]->detPgtoFer[0]->detRubrFer[2]->penAlim[1]->vlrPensao);

    // Code 53 alone brings pensioners.
    Executar("UPDATE TAB_VERBAS SET FORMULA = '5E' WHERE CODIGO = 32");
    EXPECT_EQ(0U, Carregar().Pagamentos().at(0)->detPgtoFer.at(0)->detRubrFer.at(2)->penAlim.size());
}

TEST_F(TTesteFeriasEAnteriores, SinalDoDescontoETesteDaSomaSimples)
{
    Empregado(1);
    Verba(40, "5A");
    Verba(41, "5B");
    IncidenciaIrrf(vSalario, 11);
    IncidenciaIrrf(40, 11);
    IncidenciaIrrf(41, 31);
    const auto FolhaDeDezembro = [](int AVerba, double AValor) {
        return TCalculoDeTeste{.Verba = AVerba, .Valor = AValor, .Inicio = D(2020, 12, 1), .Fim = D(2020, 12, 31)};
    };
    Calculo(FolhaDeDezembro(vSalario, 100));
    Calculo(FolhaDeDezembro(40, 250)); // a discount of code 11 is subtracted
    Calculo(FolhaDeDezembro(41, 30));  // of another code it isn't
    EXPECT_EQ((TTextos{"101 11 -150", "101 31 30"}), Anteriores());
    // The signed sum is 350 now, the plain one 0 or less: the code goes.
    Executar("UPDATE CALCULO SET VALOR = -250 WHERE COD_VERBA = 40");
    EXPECT_EQ((TTextos{"101 31 30"}), Anteriores());
    Executar("UPDATE CALCULO SET VALOR = -100 WHERE COD_VERBA = 40");
    EXPECT_EQ((TTextos{"101 31 30"}), Anteriores());
    Executar("UPDATE CALCULO SET VALOR = -99.99 WHERE COD_VERBA = 40");
    EXPECT_EQ((TTextos{"101 11 199,99", "101 31 30"}), Anteriores());
    // A category without an income isn't told, nor then the date.
    Executar("UPDATE CALCULO SET VALOR = 0");
    EXPECT_TRUE(Carregar(D(2021, 1, 1)).Pagamentos().empty());
    // A payment of March that isn't before the layout is none.
    Executar("UPDATE CALCULO SET DATA_INICIO = '01.01.2021', VALOR = 1");
    EXPECT_TRUE(Anteriores().empty());
}

TEST_F(TTesteFeriasEAnteriores, CadaRamoTomaOsSeusCodigos)
{
    Empregado(1);
    const auto MAR31 = D(2021, 3, 31);
    // One rubric of each code: 11 and 31 of every payment, 15 to 55 accumulated, 81 and 91 of suspensions.
    Codigo(9035, 9998, "35");
    Codigo(9055, 9998, "55");
    int LVerba = 50;
    for (const int LCodigo : {11, 31, 15, 35, 44, 55, 81, 91}) {
        Verba(++LVerba, "1Z", "Sim");
        IncidenciaIrrf(LVerba, LCodigo);
    }
    const auto Calcular = [&](const char* ATipo, int ASubtipo, TDateTime AInicio) {
        Executar("DELETE FROM CALCULO");
        for (int i = 51; i <= 58; ++i)
            Calculo({.Verba = i, .Valor = i - 50.0, .Tipo = ATipo, .Subtipo = ASubtipo, .Inicio = AInicio});
    };
    const TTextos COMUNS{"101 11 1", "101 31 2"};
    const TTextos ACUMULADOS{"101 15 3", "101 35 4", "101 44 5", "101 55 6"};
    const auto DEZ20 = D(2020, 12, 1);
    const auto FEV21 = D(2021, 2, 1);

    for (const char* LTipo : {"01", "02", "03", "05", "06"}) {
        Calcular(LTipo, 0, DEZ20);
        EXPECT_EQ(COMUNS, Anteriores()) << LTipo;
    }
    Calcular("04", 0, DEZ20);
    EXPECT_TRUE(Anteriores().empty());
    Calcular("09", 0, FEV21);
    EXPECT_EQ(COMUNS, Anteriores(D(2021, 4, 1)));

    // Complementary: of an earlier year the accumulated codes, of the same year the others.
    Complementar(2, MAR31, nullptr, 2);
    Calcular("01", 4, DEZ20);
    EXPECT_EQ(ACUMULADOS, Anteriores());
    // A discount takes its sign in the income alone.
    Executar("UPDATE TAB_VERBAS SET TIPO = '2' WHERE CODIGO IN (53, 54)");
    EXPECT_EQ((TTextos{"101 15 -3", "101 35 4", "101 44 5", "101 55 6"}), Anteriores());
    Executar("UPDATE TAB_VERBAS SET TIPO = '1' WHERE CODIGO IN (53, 54)");
    Calcular("01", 4, FEV21);
    EXPECT_TRUE(Anteriores().empty()) << "de competência no leiaute é remuneração";
    Executar("UPDATE CALCCOMPL SET FORMATRIBUTACAO = 1");
    Calcular("01", 4, DEZ20);
    EXPECT_TRUE(Anteriores().empty());
    Executar("DELETE FROM CALCCOMPL");
    Executar("DELETE FROM FP_CALCCOMPLEMPREG");
    Executar("DELETE FROM CALCCOMPLPER");
    Acordo(D(2021, 3, 10));
    Complementar(1, MAR31, 1, 2);
    Calcular("01", 4, DEZ20);
    EXPECT_EQ(ACUMULADOS, Anteriores());

    // Same year, below a date of change of layout in the year.
    Calcular("01", 4, FEV21);
    EXPECT_EQ(COMUNS, Anteriores(MAR31));

    // A complementary dismissal by itself, paid before the layout.
    Inserir("RESC_COMPL", {{"COD_EMPRESA", 1}, {"COD_EMPREGADO", 1001}, {"DATA_PGTO", MAR31}});
    Calcular("05", 2, FEV21);
    EXPECT_EQ(COMUNS, Anteriores(D(2021, 4, 1)));
}

TEST_F(TTesteFeriasEAnteriores, ValoresIguaisDeDoisRamosContamUmaVez)
{
    Empregado(1);
    IncidenciaIrrf(vSalario, 11);
    Inserir("RESC_COMPL", {{"COD_EMPRESA", 1}, {"COD_EMPREGADO", 1001}, {"DATA_PGTO", D(2021, 3, 31)}});
    Calculo({.Verba = vSalario, .Valor = 50, .Inicio = D(2020, 12, 1)});
    Calculo({.Verba = vSalario, .Valor = 50, .Tipo = "05", .Subtipo = 2, .Inicio = D(2020, 12, 1)});
    // A complementary dismissal that is paid after the layout is no earlier payment, but its value goes along.
    EXPECT_EQ((TTextos{"101 11 50"}), Anteriores());
    Executar("UPDATE CALCULO SET VALOR = 50.01 WHERE TIPO = '05'");
    EXPECT_EQ((TTextos{"101 11 100,01"}), Anteriores());
}

TEST_F(TTesteFeriasEAnteriores, UmDetalhePorCategoriaPeloComecoDoCodigo)
{
    Empregado(1);
    Empregado(2, 103);
    Codigo(7231, 1, "723.1");
    Codigo(723, 1, "723");
    Empregado(3, 723);
    Empregado(4, 7231);
    IncidenciaIrrf(vSalario, 11);
    for (int i = 1; i <= 4; ++i)
        Calculo({.Verba = vSalario, .Valor = 10.0 * i, .Empregado = i, .Inicio = D(2020, 12, 1)});
    Empregado(5, 101, nullptr, "20211222305"); // another worker
    Calculo({.Verba = vSalario, .Valor = 1000, .Empregado = 5, .Inicio = D(2020, 12, 1)});
    // Both 723 and 723.1 are told as 723, each with the values of both.
    EXPECT_EQ((TTextos{"101 11 10", "103 11 20", "723 11 70", "723 11 70"}), Anteriores());
    // Workers without a category of table 1 have none.
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 2 WHERE TABELA = 1");
    EXPECT_TRUE(Anteriores().empty());
}

} // namespace
} // namespace tarvo::testes
