#include <algorithm>
#include <optional>

#include "imports/UnOvraExcecoes.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"
#include "remuneracao/UnCenarioDeFolha.h"
#include "remuneracao/periodo/UnTarvoESocialCamposS1200DadosCalculo.h"

namespace tarvo::testes {
namespace {

using remuneracao::TTagOrigem;
using remuneracao::TTarvoESocialCamposS1200DadosCalculo;

class TTesteDadosCalculo : public TTesteDeFolha {
protected:
    void SetUp() override
    {
        TTesteDeFolha::SetUp();
        Info.SetIdEmpregado(1);
        Info.SetTipoEmpregado(TTipoTrabalhador::Empregado);
        Info.SetDataPagto(D(2021, 3, 31));
        Folha(1, 0);
    }

    void Folha(int ATipo, int ASubTipo)
    {
        Info.SetTipoFolha(ATipo);
        Info.SetSubTipoFolha(ASubTipo);
    }

    std::vector<remuneracao::TDadosCalculo> Lista(std::int64_t AIdFilial = 1, std::int64_t AIdDepto = 0,
                                                  TTagOrigem ATag = TTagOrigem::toRemunPerApur)
    {
        TTarvoESocialCamposS1200DadosCalculo LLeitor(Info, AIdFilial, AIdDepto, ATag);
        LLeitor.CarregarListaDadosCalculo();
        return LLeitor.ListaDadosCalculo;
    }

    /// "code=value" of each entry.
    std::string Texto(const std::vector<remuneracao::TDadosCalculo>& ALista)
    {
        std::string LTexto;
        for (const auto& LDados : ALista)
            LTexto += (LTexto.empty() ? "" : " ") + std::to_string(LDados.Cod_Verba) + "=" +
                      CurrToStr(Currency(LDados.Valor));
        return LTexto;
    }
};

TEST_F(TTesteDadosCalculo, DemitidoNoMesSoTemDecimoTerceiroELucros)
{
    Verba(1, "1A");
    for (const char* LTipo : {"01", "02", "03", "09"})
        Calculo(1, 10, {.Tipo = LTipo});
    const struct {
        std::optional<TDateTime> Demissao;
        bool DoMes;
    } LCasos[] = {{std::nullopt, false},
                  {D(2021, 2, 28), false},
                  {D(2021, 3, 1), true},
                  {D(2021, 3, 31), true},
                  {D(2021, 4, 1), false}};
    for (const auto& LCaso : LCasos) {
        Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = " +
                 (LCaso.Demissao ? TValorSql(*LCaso.Demissao).Texto() : "NULL"));
        for (const auto& [LTipo, LFica] : {std::pair{1, false}, {2, false}, {3, true}, {9, true}}) {
            Folha(LTipo, 0);
            EXPECT_EQ(LFica || !LCaso.DoMes ? "1=10" : "", Texto(Lista())) << LTipo;
        }
    }
}

TEST_F(TTesteDadosCalculo, DemissaoDoEmpregadoDeMesmoIdNaoTocaOPrestador)
{
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '15.03.2021'");
    Prestador(1, "99988877766", 701);
    Recibo(1, 1234, 1, D(2021, 3, 5), 100);
    Info.SetTipoEmpregado(TTipoTrabalhador::Prestador);
    Info.NrReciboRpa = 1234;
    Folha(97, 0);
    EXPECT_EQ("1=100", Texto(Lista()));
}

TEST_F(TTesteDadosCalculo, ALinhaTrazOsCamposDaVerbaEAsQuantiasEmCentavos)
{
    Verba(1, "1Z", {{"HORAS", "Sim"}, {"VLR_CALC", 1.005}});
    const auto LId = Calculo(1, 3.335, {.Base = 100.005, .Referencia = 7.305});
    const auto LLista = Lista();
    ASSERT_EQ(1u, LLista.size());
    EXPECT_EQ(LId, LLista[0].IdCalculo);
    EXPECT_EQ(1001, LLista[0].IdVerba);
    EXPECT_EQ("Sim 1Z", LLista[0].Horas + " " + LLista[0].Formula);
    EXPECT_EQ(100.01, LLista[0].Base);
    EXPECT_EQ(7.31, LLista[0].Referencia);
    EXPECT_EQ(3.34, LLista[0].Valor);
    EXPECT_EQ(1.01, LLista[0].Vlr_Calc);
}

TEST_F(TTesteDadosCalculo, OValorDasRetencoesDeFeriasVaiParaOLiquidoDeFerias)
{
    Verba(1, "1A");
    Verba(2, "99H");
    Verba(3, "5EA");
    Verba(4, "7L");
    Verba(5, "7L");
    Calculo(1, 1000);
    Calculo(2, 10.004);
    Calculo(3, 2.004);
    EXPECT_EQ("1=1000 3=2", Texto(Lista())) << "without the net the value of 99H is lost with its row";
    Calculo(4, 100);
    EXPECT_EQ("1=1000 3=2 4=112,01", Texto(Lista())) << "summed before it is rounded, once";
    Calculo(5, 50);
    EXPECT_EQ("1=1000 3=2 4=112,01 5=50", Texto(Lista())) << "only the first net takes the sum";
    // Only the normal payroll sums; elsewhere the row is simply kept out.
    Info.IdDetConvocacao = 9;
    Executar("UPDATE CALCULO SET IDDETCONVOCACAO = 9");
    EXPECT_EQ("1=1000 3=2 4=100 5=50", Texto(Lista()));
}

TEST_F(TTesteDadosCalculo, FeriasComplementaresSomamNaPrimeiraVerbaIgual)
{
    Verba(1, "1A");
    Verba(2, "7D");
    Verba(3, "99B");
    Calculo(1, 1000, {.Base = 100, .Referencia = 30});
    Calculo(3, 5);
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Executar("UPDATE CALCCOMPL SET TIPO = '04'");
    for (const auto& [LVerba, LValor] : {std::pair{1, 75.255}, {1, 0.1}, {2, 9.0}, {3, 7.0}})
        Inserir("CALCCOMPLDET", {{"IDCALCCOMPLPER", 1},
                                 {"COD_EMPREGADO", 101},
                                 {"COD_VERBA", LVerba},
                                 {"BASE", LValor},
                                 {"REFERENCIA", 15},
                                 {"VALOR", LValor}});
    EXPECT_EQ("1=1000 3=5", Texto(Lista())) << "without 7D nothing is added";
    Calculo(2, 0);
    const auto LLista = Lista();
    EXPECT_EQ("1=1075,355 2=9 3=5", Texto(LLista)) << "unrounded; totals of the family 99 are left out";
    EXPECT_EQ(175.355, LLista[0].Base);
    EXPECT_EQ(30, LLista[0].Referencia);
    // Of another contract, payroll or period.
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2}, {"IDEMPRESA", 1}, {"COD_EMPRESA", 7}, {"COD_EMPREGADO", 102}});
    Inserir("CALCCOMPLDET",
            {{"IDCALCCOMPLPER", 1}, {"COD_EMPREGADO", 102}, {"COD_VERBA", 1}, {"BASE", 500}, {"VALOR", 500}});
    EXPECT_EQ("1=1075,355 2=9 3=5", Texto(Lista()));
    for (const auto& [LOutro, LProprio] : {std::pair{"TIPO = '02'", "TIPO = '01'"},
                                           {"DATA_INICIO = '02.03.2021'", "DATA_INICIO = '01.03.2021'"},
                                           {"DATA_FIM = '30.03.2021'", "DATA_FIM = '31.03.2021'"}}) {
        Executar(std::string("UPDATE CALCCOMPLPER SET ") + LOutro);
        EXPECT_EQ("1=1000 2=0 3=5", Texto(Lista())) << LOutro;
        Executar(std::string("UPDATE CALCCOMPLPER SET ") + LProprio);
    }
}

TEST_F(TTesteDadosCalculo, ASomaDeQuantiasNaoArredonda)
{
    const struct {
        double A;
        double B;
        double Soma;
    } LCasos[] = {
        {483.33, 25.08, 508.41},       {0.1, 0.2, 0.3},           {1000.01, -1000, 0.01},           {10, -10.01, -0.01},
        {1000, 0.123456, 1000.123456}, {0.00004, 0.00004, 8e-05}, {1e9, 0.00049, 1000000000.00049}, {0.3, -0.3, 0},
    };
    for (const auto& LCaso : LCasos)
        EXPECT_EQ(LCaso.Soma, regras::SomarQuantias(LCaso.A, LCaso.B)) << LCaso.A << " " << LCaso.B;

    std::vector<remuneracao::TDadosCalculo> LLista(1);
    LLista[0].IdVerba = 1001;
    LLista[0].Valor = 1000;
    regras::SomarFeriasComplementares(LLista, &remuneracao::TDadosCalculo::IdVerba, &remuneracao::TDadosCalculo::Base,
                                      &remuneracao::TDadosCalculo::Valor,
                                      "SELECT 1001 AS IDVERBA, 0 AS BASE, CAST(0.123456 AS DOUBLE PRECISION) AS VALOR "
                                      "FROM RDB$DATABASE");
    EXPECT_EQ(1000.123456, LLista[0].Valor) << "of a column with more decimals than money has";
}

TEST_F(TTesteDadosCalculo, AQuebraSubstituiALinhaDoCalculo)
{
    Verba(1, "1A");
    Verba(2, "1B");
    const auto LPartido = Calculo(1, 300, {.Depto = 10});
    Quebra(LPartido, 1, 10, 100.005, 10);
    Quebra(LPartido, 2, nullptr, 199.995, 21);
    Calculo(2, 50, {.Depto = 10});
    Calculo(2, 70);
    Quebra(Calculo(2, 900, {.Tipo = "02", .Depto = 10}), 1, 10, 900, 10); // of an advance

    TipoDeQuebra(3);
    const auto LPorDepto = Lista(0, 10);
    EXPECT_EQ("1=100,01 2=50", Texto(LPorDepto));
    EXPECT_EQ(10, LPorDepto[0].DiasTrab);
    EXPECT_EQ(0, LPorDepto[1].DiasTrab);
    EXPECT_EQ("2=70", Texto(Lista(1, 0))) << "by establishment only rows without a department";
    EXPECT_EQ("1=200", Texto(Lista(2, 0)));
    EXPECT_EQ("", Texto(Lista(2, 20)));

    TipoDeQuebra(0);
    EXPECT_EQ("1=300 2=50", Texto(Lista(0, 10)));
    EXPECT_EQ("2=70 1=300 2=50", Texto(Lista(1, 0))) << "by establishment, department, rubric";
}

TEST_F(TTesteDadosCalculo, CadaTipoDeFolhaLeAsSuasLinhas)
{
    // Rubric by kind of row, so that a list tells what was read.
    const char* LFormulas[] = {"1A", "99F", "99G", "99GA", "99H", "99HA", "99I", "99K", "99M", "99C"};
    for (int LIndice = 0; LIndice < 10; ++LIndice)
        Verba(LIndice + 1, LFormulas[LIndice]);
    const auto Todas = [&](const TLinha& ALinha) {
        for (int LIndice = 1; LIndice <= 10; ++LIndice)
            Calculo(LIndice, ALinha.SubTipo + LIndice / 10.0, ALinha);
    };
    for (const char* LTipo : {"01", "02", "03", "06", "09", "04", "05"})
        Todas({.Tipo = LTipo});
    for (const int LSubTipo : {1, 104, 105, 3})
        Calculo(1, LSubTipo, {.SubTipo = LSubTipo});
    Calculo(1, 57, {.Convocacao = 57});
    Calculo(1, 999, {.SubTipo = 105, .Convocacao = 57});
    Calculo(1, 999, {.Inicio = D(2021, 2, 28)});
    Calculo(1, 999, {.Fim = D(2021, 4, 1)});
    Calculo(1, 20, {.Tipo = "02", .SubTipo = 4});
    Calculo(1, 88, {.Tipo = "09", .Inicio = D(2021, 3, 2)});
    Calculo(1, 88, {.Tipo = "09", .Fim = D(2021, 3, 30)});

    const struct {
        int Tipo;
        int SubTipo;
        std::int64_t Convocacao;
        const char* Esperado;
    } LCasos[] = {
        {1, 0, 0, "1=0,1 1=1 1=57 1=104 10=1"},
        {1, 0, 57, "1=57"},
        {2, 0, 0, "1=0,1 1=20 10=1"},
        {2, 4, 0, "1=0,1 1=20 10=1"}, // only normal payroll and thirteenth salary have a complementary reader
        {3, 0, 0, "1=0,1 10=1"},
        {6, 0, 0, "1=0,1 10=1"},
        {9, 0, 0, "1=0,1 10=1"},
        {4, 0, 0, ""},
        {5, 0, 0, ""},
        {97, 0, 0, ""},
    };
    for (const auto& LCaso : LCasos) {
        Folha(LCaso.Tipo, LCaso.SubTipo);
        Info.IdDetConvocacao = LCaso.Convocacao;
        auto LLista = Lista();
        std::stable_sort(LLista.begin(), LLista.end(), [](const auto& A, const auto& B) {
            return std::pair(A.Cod_Verba, A.Valor) < std::pair(B.Cod_Verba, B.Valor);
        });
        EXPECT_EQ(LCaso.Esperado, Texto(LLista)) << LCaso.Tipo << "/" << LCaso.SubTipo << "/" << LCaso.Convocacao;
    }
}

TEST_F(TTesteDadosCalculo, ComplementarDoMesEDeAcordoLeemCadaUmaOSeu)
{
    Verba(1, "1A");
    Verba(2, "99F");
    Verba(3, "99H");
    Acordo(1, D(2021, 3, 10));
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Complementar(2, 1, D(2020, 6, 1), D(2020, 6, 30), D(2021, 3, 31), 1);
    for (const char* LTipo : {"01", "03"})
        for (const int LVerba : {1, 2, 3}) {
            Calculo(LVerba, LVerba, {.Tipo = LTipo, .SubTipo = 4, .Depto = 10});
            Calculo(LVerba, LVerba * 10,
                    {.Tipo = LTipo, .SubTipo = 4, .Inicio = D(2020, 6, 1), .Fim = D(2020, 6, 30), .Depto = 10});
        }
    for (const auto& [LQuebra, LDepto, LTipo, LDoMes, LDeAcordo] :
         {std::tuple{0, 0, 1, "1=1 2=2", "1=10 2=20"},
          {0, 10, 1, "1=1 2=2", "1=10 2=20"},
          {0, 20, 1, "", ""},
          // By department the split form leaves the establishment's side, without a department, empty.
          {3, 0, 1, "", ""},
          {3, 10, 1, "1=1 2=2", "1=10 2=20"},
          // The thirteenth salary is never split.
          {3, 0, 3, "1=1 2=2", "1=10 2=20"}}) {
        TipoDeQuebra(LQuebra);
        Folha(LTipo, 4);
        const auto LFilial = LDepto == 0 ? 1 : 0;
        EXPECT_EQ(LDoMes, Texto(Lista(LFilial, LDepto))) << "no list of exclusions, but 99H";
        Info.PerRef = D(2020, 6, 1);
        EXPECT_EQ(LDeAcordo, Texto(Lista(LFilial, LDepto, TTagOrigem::toRemunPerAnt)));
        Info.PerRef = D(2020, 7, 1);
        EXPECT_EQ("", Texto(Lista(LFilial, LDepto, TTagOrigem::toRemunPerAnt)));
    }
    Info.PerRef = D(2020, 6, 1);
    Executar("UPDATE FP_INFOGFIP650660 SET DATAOCORRENCIA = '01.04.2021'");
    EXPECT_EQ("", Texto(Lista(1, 0, TTagOrigem::toRemunPerAnt)));
}

TEST_F(TTesteDadosCalculo, OComplementarEscolheAsSuasLinhas)
{
    Verba(1, "1A");
    Folha(1, 4);
    Acordo(1, D(2021, 3, 10));
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Complementar(2, 1, D(2020, 6, 1), D(2020, 6, 30), D(2021, 3, 31), 1);
    Info.PerRef = D(2020, 6, 1);
    for (const std::int64_t LEmpregado : {1, 2}) {
        const double LValor = LEmpregado == 1 ? 10 : 900;
        Calculo(1, LValor, {.SubTipo = 4, .IdEmpregado = LEmpregado});
        Calculo(1, LValor + 1,
                {.SubTipo = 4, .Inicio = D(2020, 6, 1), .Fim = D(2020, 6, 30), .IdEmpregado = LEmpregado});
        if (LEmpregado == 2)
            for (const int LId : {1, 2})
                Inserir("FP_CALCCOMPLEMPREG", {{"IDCALCCOMPL", LId}, {"IDEMPREGADO", 2}});
    }
    const auto Listas = [&] { return Texto(Lista()) + "|" + Texto(Lista(1, 0, TTagOrigem::toRemunPerAnt)); };
    EXPECT_EQ("1=10|1=11", Listas()) << "each contract its own";
    const std::tuple<const char*, const char*, const char*> LMudancas[] = {
        {"CALCCOMPLPER SET DATA_INICIO", "DATA_INICIO + 1", "DATA_INICIO - 1"},
        {"CALCCOMPLPER SET DATA_FIM", "DATA_FIM - 1", "DATA_FIM + 1"},
        {"CALCCOMPLPER SET COMPET_PGTO", "COMPET_PGTO - 1", "COMPET_PGTO + 1"},
        {"CALCCOMPL SET TIPOCALCULO", "3 - TIPOCALCULO", "3 - TIPOCALCULO"},
        {"FP_CALCCOMPLEMPREG SET IDEMPREGADO", "IDEMPREGADO + 2", "IDEMPREGADO - 2"},
    };
    for (const auto& [LColuna, LOutro, LProprio] : LMudancas) {
        Executar(std::string("UPDATE ") + LColuna + " = " + LOutro);
        EXPECT_EQ("|", Listas()) << LColuna;
        Executar(std::string("UPDATE ") + LColuna + " = " + LProprio);
    }
    EXPECT_EQ("1=10|1=11", Listas());
    // A normal run of the earlier month, and a complementary one whose period ends before the month does.
    Calculo(1, 900, {.Inicio = D(2020, 6, 1), .Fim = D(2020, 6, 30)});
    EXPECT_EQ("1=10|1=11", Listas());
    Calculo(1, 20, {.SubTipo = 4, .Fim = D(2021, 3, 15)});
    Info.SetDataFim(D(2021, 3, 15));
    EXPECT_EQ("1=20|1=11", Listas());
}

TEST_F(TTesteDadosCalculo, RescisaoComplementarVaiPeloDiaDoPagamento)
{
    Verba(1, "8C");
    Verba(2, "99F");
    for (const int LSubTipo : {0, 1, 2, 3})
        Calculo(1, 10 + LSubTipo,
                {.Tipo = "05", .SubTipo = LSubTipo, .Inicio = D(2019, 1, 1), .Fim = D(2019, 1, 9), .Depto = 10});
    Calculo(2, 7, {.Tipo = "05", .SubTipo = 2, .Filial = 2});
    Calculo(1, 99, {.Tipo = "05", .SubTipo = 2, .Pagto = D(2021, 3, 30)});
    Calculo(1, 99, {.Tipo = "01", .SubTipo = 1, .Depto = 10});
    Calculo(2, 8, {.Tipo = "05", .SubTipo = 2});
    Info.Chave = 6;
    EXPECT_EQ("1=11 1=12", Texto(Lista(0, 10, TTagOrigem::toRemunPerAnt)));
    EXPECT_EQ("2=8 1=11 1=12", Texto(Lista(1, 0, TTagOrigem::toRemunPerAnt))) << "by department before the rubric";
    EXPECT_EQ("2=7", Texto(Lista(2, 0, TTagOrigem::toRemunPerAnt)));
}

TEST_F(TTesteDadosCalculo, ReciboTemCodigoCompostoEValorPositivo)
{
    Prestador(5, "11122233396", 701);
    Recibo(1, 1234, 5, D(2021, 3, 5), 2000.005, 1, 10);
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 9203}, {"TABELA", 3}, {"CODIGO", "9203"}});
    TipoDeValor(2, 9, 9203);
    Inserir("RPAVALOR", {{"IDRPA", 1}, {"IDRPATPVALOR", 2}, {"VALOR", 30}});
    Inserir("RPAVALOR", {{"IDRPA", 1}, {"IDRPATPVALOR", 1}, {"VALOR", 0}});
    Info.SetTipoEmpregado(TTipoTrabalhador::Prestador);
    Info.SetIdEmpregado(5);
    Info.NrReciboRpa = 1234;
    Folha(97, 0);
    const auto LLista = Lista(0, 10);
    ASSERT_EQ(1u, LLista.size());
    EXPECT_EQ("00001P011I012F000C001RPA", LLista[0].Cod_Rubr);
    EXPECT_EQ(2000.01, LLista[0].Valor);
    EXPECT_EQ(1, LLista[0].Cod_Verba);
    EXPECT_EQ(0, LLista[0].IdVerba);
    EXPECT_EQ(1u, Lista(1, 0).size());
    EXPECT_TRUE(Lista(2, 0).empty());
    EXPECT_TRUE(Lista(0, 20).empty());
    // A code of another table is no code.
    for (const char* LId : {"3501", "9997", "9998", "9996", "9995"}) {
        const auto DaTabela = [&](const std::string& ATabela) {
            Executar("UPDATE FP_ESOCIALTABELA SET TABELA = " + ATabela + " WHERE IDESOCIALTABELA = " + LId);
        };
        DaTabela("1");
        EXPECT_TRUE(Lista(1, 0).empty()) << LId;
        DaTabela(LId == std::string("3501") ? "3" : LId);
        EXPECT_EQ(1u, Lista(1, 0).size()) << LId;
    }
    // The nature alone kept the other value out; the values go by their sequence.
    Executar("UPDATE FP_RUBRICARELACRPA SET IDESOCIALTABELA = 3501 WHERE IDRPATPVALOR = 2");
    Executar("UPDATE RPATPVALOR SET SEQUENCIA = 10 WHERE IDRPATPVALOR = 1");
    EXPECT_EQ("9=30 10=2000,01", Texto(Lista(1, 0)));
    Info.NrReciboRpa = 1235;
    EXPECT_TRUE(Lista(1, 0).empty());
}

TEST_F(TTesteDadosCalculo, IdsQueCoincidemEntreEmpregadoEPrestadorFalhamComOCampoDaOutraTabela)
{
    Verba(1, "1A");
    Calculo(1, 10);
    Prestador(1, "11122233396", 701);
    Recibo(1, 1234, 1, D(2021, 3, 5), 100);
    Info.NrReciboRpa = 1234;
    Info.SetTipoEmpregado(TTipoTrabalhador::Prestador);
    EXPECT_THROW(Lista(), EDatabaseError);
    Info.SetTipoEmpregado(TTipoTrabalhador::Empregado);
    Folha(97, 0);
    EXPECT_THROW(Lista(), EDatabaseError);
}

} // namespace
} // namespace tarvo::testes
