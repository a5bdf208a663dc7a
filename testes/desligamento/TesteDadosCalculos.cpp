#include "desligamento/s2299/UnTS2299DadosCalculos.h"
#include "desligamento/s2399/UnTS2399DadosCalculos.h"
#include "imports/valores/UnOvraConversoes.h"
#include "remuneracao/UnCenarioDeFolha.h"

namespace tarvo::testes {
namespace {

using namespace desligamento;

class TTesteLeitorDoDesligamento : public TTesteDeFolha {
protected:
    template <class TDados>
    static void Alimentar(TDados& ADados, TTipoCalculoDesligamento ATipo, const char* ATipoFolha, int AQuebra)
    {
        ADados.IDEmpregado = 1;
        ADados.TipoCalculo = ATipo;
        ADados.TipoFolha = ATipoFolha;
        ADados.DataInicio = D(2021, 3, 1);
        ADados.DataFim = D(2021, 3, 31);
        ADados.DataPagamento = D(2021, 3, 31);
        ADados.DataDemissao = D(2021, 3, 20);
        ADados.TipoQuebraEmpresa = static_cast<TTipoQuebraGpsGfip>(AQuebra);
    }
    /// "rubric@establishment/department=value" of each amount.
    static std::string Texto(const TDadosCalculosDesligamento& ALeitor)
    {
        std::string LTexto;
        for (const auto& A : ALeitor.ListaDadosCalculo())
            LTexto += (LTexto.empty() ? "" : " ") + std::to_string(A.IDVerba - 1000) + "@" +
                      std::to_string(A.IDEstabelecimento) + "/" + std::to_string(A.IdDepto) + "=" + CurrToStr(A.Valor);
        return LTexto;
    }
    std::string S2299(TTipoCalculoDesligamento ATipo, const char* ATipoFolha = "01", int AQuebra = 0,
                      std::int64_t AConvocacao = 0)
    {
        TdmDevS2299IOP LDados;
        Alimentar(LDados, ATipo, ATipoFolha, AQuebra);
        LDados.IdDetConvocacaoTrabInterm = AConvocacao;
        TS2299DadosCalculos LLeitor(LDados);
        LLeitor.CarregarRegistrosCalculo();
        return Texto(LLeitor);
    }
    std::string S2399(TTipoCalculoDesligamento ATipo, const char* ATipoFolha = "01", int AQuebra = 0)
    {
        TdmDevS2399IOP LDados;
        Alimentar(LDados, ATipo, ATipoFolha, AQuebra);
        TS2399DadosCalculos LLeitor(LDados);
        LLeitor.CarregarRegistrosCalculo();
        return Texto(LLeitor);
    }
};

using enum TTipoCalculoDesligamento;

TEST_F(TTesteLeitorDoDesligamento, RetidoNasFeriasVaiParaOLiquidoSoNoS2299)
{
    Verba(1, "99H");
    Verba(2, "5EA");
    Verba(3, "7L");
    for (const char* LFormula : {"5E", "5EC", "5EB", "99F", "99G", "99GA", "99HA", "99I", "99K", "99M"}) {
        static int LCodigo = 10;
        Verba(++LCodigo, LFormula);
        Calculo(LCodigo, 1, {.SubTipo = 104});
    }
    Calculo(1, 10.5, {.SubTipo = 104});
    Calculo(2, 20, {.SubTipo = 105});
    // Without a net the sum is lost.
    EXPECT_EQ("", S2299(Rescisao));
    Calculo(3, 1000, {.SubTipo = 104});
    EXPECT_EQ("3@1/0=1030,5", S2299(Rescisao));
    EXPECT_EQ("3@1/0=1000", S2399(Rescisao));
    EXPECT_EQ("", S2299(Nenhum));
    EXPECT_EQ("", S2399(Intermitente));
}

TEST_F(TTesteLeitorDoDesligamento, SoLinhasVizinhasSeJuntam)
{
    Verba(1, "1A");
    Verba(2, "1B");
    Calculo(1, 10, {.SubTipo = 104, .Base = 5, .Referencia = 3});
    Calculo(1, 20, {.SubTipo = 105, .Base = 7, .Referencia = 4});
    Calculo(2, 1, {.SubTipo = 104});
    Calculo(1, 30, {.SubTipo = 104, .Filial = 2});
    TdmDevS2299IOP LDados;
    Alimentar(LDados, Rescisao, "01", 0);
    TS2299DadosCalculos LLeitor(LDados);
    LLeitor.CarregarRegistrosCalculo();
    EXPECT_EQ("1@1/0=30 2@1/0=1 1@2/0=30", Texto(LLeitor));
    EXPECT_EQ(R("12"), LLeitor.ListaDadosCalculo()[0].Base);
    const auto LReferencia = LLeitor.ListaDadosCalculo()[0].Referencia;
    EXPECT_TRUE(LReferencia == R("3") || LReferencia == R("4"));
    ASSERT_EQ(2u, LLeitor.LotacoesDoCalculo().size());
    EXPECT_EQ((TDadosLotacao{2, 0}), LLeitor.LotacoesDoCalculo()[1]);
    // A second reading starts anew.
    LLeitor.CarregarRegistrosCalculo();
    EXPECT_EQ(3u, LLeitor.ListaDadosCalculo().size());
    EXPECT_EQ(2u, LLeitor.LotacoesDoCalculo().size());
    Executar("DELETE FROM CALCULO WHERE COD_FILIAL = 1");
    LLeitor.CarregarRegistrosCalculo();
    EXPECT_EQ("1@2/0=30", Texto(LLeitor));
    EXPECT_EQ(1u, LLeitor.LotacoesDoCalculo().size());
}

TEST_F(TTesteLeitorDoDesligamento, OutraVerbaNoMeioSeparaAMesmaLotacao)
{
    // Without a split by department both departments are one lotação, but the rows still come by department.
    Verba(1, "1A");
    Verba(2, "1B");
    Calculo(1, 20, {.SubTipo = 104, .Depto = 20});
    Calculo(2, 1, {.SubTipo = 104, .Depto = 10});
    Calculo(1, 10, {.SubTipo = 104, .Depto = 10});
    EXPECT_EQ("1@1/0=10 2@1/0=1 1@1/0=20", S2299(Rescisao));
    EXPECT_EQ("1@1/0=10 2@1/0=1 1@1/0=20", S2399(Rescisao));
    // By code in S-2299, by id in S-2399.
    Executar("UPDATE TAB_VERBAS SET CODIGO = 9 WHERE CODIGO = 1");
    Executar("UPDATE CALCULO SET COD_VERBA = 9 WHERE COD_VERBA = 1");
    EXPECT_EQ("2@1/0=1 1@1/0=30", S2299(Rescisao));
    EXPECT_EQ("1@1/0=10 2@1/0=1 1@1/0=20", S2399(Rescisao));
}

TEST_F(TTesteLeitorDoDesligamento, OrdemEGemeasNaFormaComQuebra)
{
    Verba(1, "1A");
    Verba(2, "1B");
    // By lotação in S-2299, by rubric in S-2399.
    Quebra(Calculo(1, 5, {.SubTipo = 104}), 2, 20, 5, 9);
    Quebra(Calculo(2, 7, {.SubTipo = 104}), 1, 10, 7, 9);
    EXPECT_EQ("2@1/10=7 1@2/20=5", S2299(Rescisao, "01", 3));
    EXPECT_EQ("1@2/20=5 2@1/10=7", S2399(Rescisao, "01", 3));
    // Two rows alike in every column count once in a UNION; that is meant.
    Quebra(Calculo(2, 7, {.SubTipo = 105}), 1, 10, 7, 9);
    EXPECT_EQ("2@1/10=14 1@2/20=5", S2299(Rescisao, "01", 3));
    EXPECT_EQ("1@2/20=5 2@1/10=7", S2399(Rescisao, "01", 3));
}

TEST_F(TTesteLeitorDoDesligamento, NaturezaInformativaMostraABaseDesdeOInicioDoCalculo)
{
    Verba(1, "1A");
    Verba(2, "99H");
    Verba(3, "7L");
    Natureza(1, "9905");
    Natureza(2, "9931");
    Calculo(1, 1, {.SubTipo = 104, .Base = 50});
    Calculo(2, 2, {.SubTipo = 104, .Base = 60});
    Calculo(3, 100, {.SubTipo = 104});
    EXPECT_EQ("1@1/0=50 3@1/0=160", S2299(Rescisao));
    EXPECT_EQ("1@1/0=50 3@1/0=100", S2399(Rescisao));
    Executar("UPDATE FP_RUBRICARELAC SET DATAINICIO = '02.03.2021'");
    EXPECT_EQ("1@1/0=1 3@1/0=102", S2299(Rescisao));
}

TEST_F(TTesteLeitorDoDesligamento, QuebraMostraSoAsLinhasQuebradasNoS2299ETodasNoS2399)
{
    Verba(1, "1A");
    Verba(2, "1B");
    const auto LQuebrada = Calculo(1, 100, {.SubTipo = 104, .Depto = 10});
    Quebra(LQuebrada, 2, 20, 60, 12);
    Quebra(LQuebrada, 1, 10, 40, 8);
    Calculo(2, 7, {.SubTipo = 104, .Depto = 10});
    EXPECT_EQ("1@1/10=40 1@2/20=60", S2299(Rescisao, "01", 3));
    EXPECT_EQ("1@1/0=40 1@2/0=60", S2299(Rescisao, "01", 1));
    EXPECT_EQ("1@1/0=100 2@1/0=7", S2299(Rescisao, "01", 0));
    const auto LTodas = S2399(Rescisao, "01", 3);
    for (const char* LParte : {"1@1/10=40", "1@2/20=60", "2@1/10=7"})
        EXPECT_NE(std::string::npos, LTodas.find(LParte)) << LTodas;
    // A department that isn't there leaves the establishment.
    Executar("UPDATE SC00_DEPTO SET DEPTO = 99 WHERE IDDEPTO = 20");
    EXPECT_EQ("1@1/10=40 1@2/0=60", S2299(Rescisao, "01", 3));
}

TEST_F(TTesteLeitorDoDesligamento, LinhaQuebradaValePorInteiro)
{
    Verba(1, "1A");
    const auto LIdCalculo = Calculo(1, 70, {.Filial = 2, .Depto = 20, .Convocacao = 5, .Base = 50, .Referencia = 30});
    Quebra(LIdCalculo, 2, 20, 7, 9);
    const auto Ler = [](auto ADados, auto ACriar, TTipoCalculoDesligamento ATipo, const char* ATipoFolha) {
        Alimentar(ADados, ATipo, ATipoFolha, 3);
        if constexpr (requires { ADados.IdDetConvocacaoTrabInterm; })
            ADados.IdDetConvocacaoTrabInterm = 5;
        auto LLeitor = ACriar(ADados);
        LLeitor->CarregarRegistrosCalculo();
        auto LTexto = Texto(*LLeitor);
        for (const auto& A : LLeitor->ListaDadosCalculo())
            LTexto +=
                " " + CurrToStr(A.Base) + " " + CurrToStr(A.Referencia) + " " + std::to_string(A.DiasTrabNaLotacao);
        return LTexto;
    };
    const auto Criar2299 = [](TdmDevS2299IOP& A) { return std::make_unique<TS2299DadosCalculos>(A); };
    const auto Criar2399 = [](TdmDevS2399IOP& A) { return std::make_unique<TS2399DadosCalculos>(A); };
    const auto Conferir = [&](const char* AEsperado) {
        EXPECT_EQ(AEsperado, Ler(TdmDevS2299IOP(), Criar2299, Intermitente, "01"));
        Executar("UPDATE CALCULO SET SUBTIPO = 104");
        EXPECT_EQ(AEsperado, Ler(TdmDevS2299IOP(), Criar2299, Rescisao, "05"));
        EXPECT_EQ(AEsperado, Ler(TdmDevS2399IOP(), Criar2399, Rescisao, "05"));
        Executar("UPDATE CALCULO SET SUBTIPO = 0");
        EXPECT_EQ(AEsperado, Ler(TdmDevS2299IOP(), Criar2299, OutroDaCompetencia, "01"));
        EXPECT_EQ(AEsperado, Ler(TdmDevS2399IOP(), Criar2399, OutroDaCompetencia, "01"));
    };
    Executar("UPDATE CALC_QUEBRA SET BASE = 5, REFERENCIA = 3");
    Conferir("1@2/20=7 5 3 9");
    // What it leaves out isn't taken from the calculation.
    Executar("UPDATE CALC_QUEBRA SET COD_DEPTO = NULL, BASE = NULL, REFERENCIA = NULL, VALOR = NULL, DIASTRAB = NULL");
    Conferir("1@2/0=0 0 0 0");
    Executar("UPDATE CALC_QUEBRA SET COD_FILIAL = NULL");
    Conferir("1@0/0=0 0 0 0");
}

TEST_F(TTesteLeitorDoDesligamento, CadaTipoLeSuasLinhas)
{
    for (int LCodigo = 1; LCodigo <= 9; ++LCodigo)
        Verba(LCodigo, "1A");
    Calculo(1, 1, {.Tipo = "01", .SubTipo = 104});
    Calculo(1, 99, {.Tipo = "01", .SubTipo = 104, .Inicio = D(2021, 2, 1), .Fim = D(2021, 2, 28)});
    Calculo(2, 2, {.Tipo = "05", .SubTipo = 2});
    // The day of payment alone counts.
    Calculo(2, 3, {.Tipo = "05", .SubTipo = 1, .Inicio = D(2020, 1, 1), .Fim = D(2020, 1, 5)});
    Calculo(2, 99, {.Tipo = "05", .SubTipo = 2, .Pagto = D(2021, 3, 30)});
    const auto LAdiantamento = Calculo(3, 4, {.Tipo = "02", .Depto = 10});
    Quebra(LAdiantamento, 2, 20, 4, 9);
    Calculo(4, 5, {.Tipo = "02", .Pagto = D(2021, 3, 10), .Depto = 10});
    Calculo(5, 6, {.Tipo = "01", .SubTipo = 4});
    Calculo(5, 99, {.Tipo = "01", .SubTipo = 4, .Pagto = D(2021, 3, 30)});
    Calculo(6, 7, {.Convocacao = 5});
    Calculo(6, 99, {.Convocacao = 6});
    // Of another period by one of its days.
    for (const auto& [LInicio, LFim] : {std::pair{D(2021, 3, 1), D(2021, 3, 30)}, {D(2021, 3, 2), D(2021, 3, 31)}}) {
        Calculo(1, 99, {.SubTipo = 104, .Inicio = LInicio, .Fim = LFim});
        Calculo(3, 99, {.Tipo = "02", .Inicio = LInicio, .Fim = LFim});
        Calculo(5, 99, {.SubTipo = 4, .Inicio = LInicio, .Fim = LFim});
        Calculo(6, 99, {.Inicio = LInicio, .Fim = LFim, .Convocacao = 5});
    }
    // Of another kind of payroll, or of another worker.
    for (const int LVerba : {1, 2}) {
        const auto LDeOutroTipo = Calculo(LVerba, 99, {.Tipo = "06", .SubTipo = 104, .Convocacao = 5});
        if (LVerba == 2)
            Quebra(LDeOutroTipo, 2, 20, 99, 9);
    }
    Calculo(2, 99, {.Tipo = "05"});
    Calculo(2, 99, {.Tipo = "02", .SubTipo = 2});
    Calculo(3, 99, {.Tipo = "02", .SubTipo = 3});
    Calculo(5, 99, {.Tipo = "02", .SubTipo = 4});
    Calculo(1, 99, {.SubTipo = 104, .IdEmpregado = 2});
    Calculo(2, 99, {.Tipo = "05", .SubTipo = 2, .IdEmpregado = 2});
    Calculo(3, 99, {.Tipo = "02", .IdEmpregado = 2});
    Calculo(5, 99, {.SubTipo = 4, .IdEmpregado = 2});
    Calculo(6, 99, {.IdEmpregado = 2, .Convocacao = 5});

    EXPECT_EQ("1@1/0=1", S2299(Rescisao, "05"));
    EXPECT_EQ("1@1/0=1", S2399(Rescisao, "05"));
    EXPECT_EQ("1@1/0=1", S2399(Rescisao, "05", 3));
    EXPECT_EQ("2@1/0=5", S2299(RescisaoComplementar, "05"));
    EXPECT_EQ("2@1/0=5", S2399(RescisaoComplementar, "05"));
    EXPECT_EQ("4@1/10=5 3@2/20=4", S2299(OutroDaCompetencia, "02", 3));
    EXPECT_EQ("4@1/0=5 3@2/0=4", S2399(OutroDaCompetencia, "02"));
    EXPECT_EQ("5@1/0=6", S2299(ComplementarPagoNaCompet));
    EXPECT_EQ("6@1/0=7", S2299(Intermitente, "01", 0, 5));
    EXPECT_EQ("6@1/0=7", S2299(Intermitente, "01", 3, 5));
}

TEST_F(TTesteLeitorDoDesligamento, FeriasPagasAntesTrazemAsComplementares)
{
    Verba(1, "7A");
    Verba(2, "7D");
    Verba(3, "7B");
    Calculo(1, 100, {.SubTipo = 104, .Base = 10});
    // The first counts; each of the others differs in one point.
    const struct {
        int Empresa = 7;
        const char* Tipo = "04";
        const char* TipoDoPeriodo = "01";
        TDateTime Inicio = D(2021, 3, 1);
        TDateTime Fim = D(2021, 3, 31);
        int Empregado = 101;
        double Valor = 90;
    } LComplementares[] = {
        {.Valor = 2.25},           {.Empresa = 8},          {.Tipo = "03"},    {.TipoDoPeriodo = "02"},
        {.Inicio = D(2021, 3, 2)}, {.Fim = D(2021, 3, 30)}, {.Empregado = 102}};
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2}, {"COD_EMPRESA", 7}, {"COD_EMPREGADO", 102}});
    Verba(4, "99C");
    int LId = 0;
    for (const auto& A : LComplementares) {
        Inserir("CALCCOMPL", {{"IDCALCCOMPL", ++LId}, {"COD_EMPRESA", A.Empresa}, {"TIPO", A.Tipo}});
        Inserir("CALCCOMPLPER", {{"IDCALCCOMPLPER", LId},
                                 {"IDCALCCOMPL", LId},
                                 {"TIPO", A.TipoDoPeriodo},
                                 {"DATA_INICIO", A.Inicio},
                                 {"DATA_FIM", A.Fim}});
        for (const int LVerba : {1, 3, 4})
            Inserir("CALCCOMPLDET", {{"IDCALCCOMPLPER", LId},
                                     {"COD_EMPREGADO", A.Empregado},
                                     {"COD_VERBA", LVerba},
                                     {"BASE", 5},
                                     {"VALOR", A.Valor}});
    }
    EXPECT_EQ("1@1/0=100", S2299(Rescisao));
    Calculo(2, 50, {.SubTipo = 104});
    Calculo(4, 1, {.SubTipo = 104});
    EXPECT_EQ("1@1/0=102,25 2@1/0=50 4@1/0=1", S2299(Rescisao));
    EXPECT_EQ("1@1/0=100 2@1/0=50 4@1/0=1", S2399(Rescisao));
}

} // namespace
} // namespace tarvo::testes
