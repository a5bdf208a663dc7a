#include <set>

#include "desligamento/s2299/UnTarvoESocialCamposConversoresDesligamento.h"
#include "desligamento/s2299/UnTarvoESocialCamposS2299.h"
#include "desligamento/s2399/UnTarvoESocialCamposS2399.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "remuneracao/UnCenarioDeFolha.h"

namespace tarvo::testes {
namespace {

using namespace desligamento;

TEST(TConversoresDoDesligamento, PelosDigitosIniciais)
{
    const struct {
        const char* Valor;
        const char* Motivo;
        const char* Pensao;
    } LCasos[] = {{"10-Com justa causa", "1", ""},
                  {"11", "2", ""},
                  {"12", "6", ""},
                  {"13", "3", ""},
                  {"14", "4", ""},
                  {"15", "5", ""},
                  {"16", "26", ""},
                  {"20", "17", ""},
                  {"80", "17", ""},
                  {"21", "7", ""},
                  {"33", "33", ""},
                  {"60abc", "10", ""},
                  {"62", "10", ""},
                  {"63", "10", ""},
                  {"64", "10", ""},
                  {"70", "20", ""},
                  {"72", "19", ""},
                  {"75", "18", ""},
                  {"61", "", ""},
                  {"22", "", ""},
                  {"abc", "", "0"},
                  {"", "", "0"},
                  {"0", "", "0"},
                  {"1", "", "0"},
                  {"2", "", "2"},
                  {"3", "", "1"},
                  {"6-x", "", "1"},
                  {"7", "", "2"},
                  {"8", "", ""}};
    for (const auto& LCaso : LCasos) {
        EXPECT_EQ(LCaso.Motivo, TConversorMotivoDesligamento().BuscarValor(LCaso.Valor)) << LCaso.Valor;
        EXPECT_EQ(LCaso.Pensao, TConversorPensAlim().BuscarValor(LCaso.Valor)) << LCaso.Valor;
    }
}

class TTesteDesligamento : public TTesteDeFolha {
protected:
    void SetUp() override
    {
        TTesteDeFolha::SetUp();
        Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '20.03.2021', TIPO_RESCISAO = '11-Sem justa causa'");
        Verba(1, "1A");
    }
    template <class TEvento = TTarvoESocialCamposS2299>
    static std::unique_ptr<TEvento> Carregar(TDateTime AInicio = D(2018, 5, 1))
    {
        auto LEvento = std::make_unique<TEvento>(1, AInicio);
        LEvento->CarregarDados();
        return LEvento;
    }
    template <class TVerbas>
    static std::string Demonstrativos(const TVerbas& AVerbas)
    {
        std::string LTexto;
        for (const auto& LItem : AVerbas.dmDev)
            LTexto += (LTexto.empty() ? "" : " ") + LItem->ideDmDev;
        return LTexto;
    }
    static std::string S2299() { return Demonstrativos(Carregar()->infoDeslig.verbasResc); }
    static std::string S2399()
    {
        return Demonstrativos(Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.verbasResc);
    }
    /// A dismissal with an item of the payroll.
    void Rescisao()
    {
        Calculo(1, 100, {.Tipo = "05", .Fim = D(2021, 3, 20)});
        Calculo(1, 100, {.SubTipo = 104});
    }
    static void RescCompl(TDateTime APagto, TValorSql AAcordo = nullptr)
    {
        Inserir("RESC_COMPL",
                {{"COD_EMPRESA", 7}, {"COD_EMPREGADO", 101}, {"DATA_PGTO", APagto}, {"IDINFOGFIP650660", AAcordo}});
    }
    static void Transferencia(int AMotivo, int AMotivoESocial)
    {
        Inserir("TRANSF_EMPREG", {{"IDTRANSF_EMPREG", 1},
                                  {"COD_EMPRESAORIGEM", 7},
                                  {"COD_EMPRESADESTINO", 7},
                                  {"MOTIVO", AMotivo},
                                  {"MOTIVOESOCIAL", AMotivoESocial},
                                  {"TPINSCRICAO", 2},
                                  {"INSCRICAO", "12345678909"}});
        Inserir("TRANSF_EMPREGDET", {{"IDTRANSF_EMPREG", 1}, {"COD_EMPREGADOORIGEM", 101}});
    }
};

TEST_F(TTesteDesligamento, EscolheOsCalculosDoDesligamento)
{
    EXPECT_EQ("", S2299());
    // The base of the family allowance, or an informative rubric, is no calculation.
    Verba(62, "900A", {{"TIPO", "5"}});
    Verba(61, "8J", {{"TIPO", "5"}});
    Calculo(1, 100, {.SubTipo = 104});
    Calculo(62, 100, {.Tipo = "05"});
    EXPECT_EQ("", S2299());
    EXPECT_EQ("", S2399());
    Calculo(61, 100, {.Tipo = "05"});
    EXPECT_EQ("05_000_01_03_2021", S2299());
    EXPECT_EQ("", S2399());
    Calculo(1, 0, {.Tipo = "05"});
    EXPECT_EQ("05_000_01_03_2021", S2399());
    // An advance goes by its day of payment, and a complementary dismissal without an agreement by none.
    Calculo(1, 5, {.Tipo = "02", .Pagto = D(2021, 3, 1)});
    Calculo(1, 5, {.Tipo = "06", .Pagto = D(2021, 4, 1)});
    Calculo(1, 0, {.Tipo = "06", .Pagto = D(2021, 3, 31)});
    Calculo(1, 5, {.Tipo = "05", .SubTipo = 2, .Inicio = D(2021, 3, 20), .Pagto = D(2021, 6, 10)});
    EXPECT_EQ("05_000_01_03_2021 02_000_0_03_2021", S2299());
    RescCompl(D(2021, 6, 10));
    EXPECT_EQ("05_000_01_03_2021 05_002_20_03_2021 02_000_0_03_2021", S2299());
    EXPECT_EQ("05_000_01_03_2021 05_002_20_03_2021 02_000_0_03_2021", S2399());
    Executar("UPDATE RESC_COMPL SET IDINFOGFIP650660 = 3");
    EXPECT_EQ("05_000_01_03_2021 02_000_0_03_2021", S2299());
    Executar("UPDATE RESC_COMPL SET DATA_PGTO = '31.03.2021'");
    Executar("UPDATE CALCULO SET DATA_PAGTO = '31.03.2021' WHERE SUBTIPO = 2");
    EXPECT_EQ("05_000_01_03_2021 05_002_20_03_2021 02_000_0_03_2021", S2299());
}

TEST_F(TTesteDesligamento, CadaCondicaoDaListaDeDemonstrativosConta)
{
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2}, {"IDEMPRESA", 1}, {"COD_EMPRESA", 7}, {"COD_EMPREGADO", 102}});
    Verba(61, "8J");
    Verba(62, "900A");
    Verba(63, "1B", {{"TIPO", "5"}});
    const auto Fevereiro = [](int ADia) { return D(2021, 2, ADia); };

    Calculo(1, 100, {.SubTipo = 104});
    Calculo(1, 1, {.Tipo = "05"});
    Calculo(1, 1, {.Tipo = "05", .Inicio = Fevereiro(1)});
    Calculo(1, 0, {.Tipo = "05", .Inicio = Fevereiro(2)});
    Calculo(1, 1, {.Tipo = "05", .Inicio = Fevereiro(3), .IdEmpregado = 2});

    RescCompl(D(2021, 3, 31));
    Calculo(1, 1, {.Tipo = "05", .SubTipo = 2, .Inicio = D(2021, 3, 2)});
    Calculo(63, 1, {.Tipo = "05", .SubTipo = 2, .Inicio = Fevereiro(4)});
    Calculo(61, 1, {.Tipo = "05", .SubTipo = 2, .Inicio = Fevereiro(5)});
    Calculo(62, 1, {.Tipo = "05", .SubTipo = 2, .Inicio = Fevereiro(6)});
    Calculo(1, 1, {.Tipo = "02", .SubTipo = 2, .Inicio = Fevereiro(7)});
    // The complementary dismissals of another worker, of another company and of no day.
    for (const auto& [LEmpresa, LEmpregado, LPagto] :
         {std::tuple{7, 102, D(2021, 4, 10)}, {8, 101, D(2021, 4, 11)}, {8, 102, D(2021, 4, 12)}}) {
        Inserir("RESC_COMPL", {{"COD_EMPRESA", LEmpresa}, {"COD_EMPREGADO", LEmpregado}, {"DATA_PGTO", LPagto}});
        for (const int LId : {1, 2})
            Calculo(1, 1, {.Tipo = "05", .SubTipo = 2, .Inicio = Fevereiro(8), .Pagto = LPagto, .IdEmpregado = LId});
    }

    Calculo(1, 1, {.Tipo = "06"});
    Calculo(1, 1, {.Tipo = "02"});
    Calculo(1, 1, {.Tipo = "04"});
    Calculo(1, 0, {.Tipo = "02", .Inicio = Fevereiro(9)});
    Calculo(1, 1, {.Tipo = "02", .Inicio = D(2021, 1, 9), .IdEmpregado = 2});
    for (const int LSubTipo : {0, 3}) // paid later, so that its items can be read
        Calculo(1, 1,
                {.Tipo = "02",
                 .SubTipo = LSubTipo,
                 .Inicio = D(2020, 12, 1),
                 .Pagto = LSubTipo == 0 ? D(2021, 5, 1) : D(2021, 3, 31)});
    Calculo(1, 1, {.Tipo = "02", .Inicio = D(2021, 1, 9), .Pagto = D(2021, 5, 1)});

    // Differences of January by agreement 5, paid in April.
    const auto LInicio = D(2021, 1, 1), LFim = D(2021, 1, 31), LPagto = D(2021, 4, 5);
    Acordo(5, D(2021, 3, 1));
    Complementar(9, 1, LInicio, LFim, LPagto, 5);
    Inserir("FP_CALCCOMPLEMPREG", {{"IDCALCCOMPL", 9}, {"IDEMPREGADO", 2}});
    const auto Diferenca = [&](const TLinha& ALinha, double AValor = 1) { Calculo(1, AValor, ALinha); };
    Diferenca({.SubTipo = 4, .Inicio = LInicio, .Fim = LFim, .Pagto = LPagto});
    Diferenca({.Tipo = "11", .SubTipo = 3, .Inicio = LInicio, .Fim = LFim, .Pagto = LPagto});
    Diferenca({.Tipo = "12", .SubTipo = 4, .Inicio = LInicio, .Fim = LFim, .Pagto = LPagto}, 0);
    Diferenca({.Tipo = "13", .SubTipo = 4, .Inicio = D(2020, 12, 31), .Fim = LFim, .Pagto = LPagto});
    Diferenca({.Tipo = "14", .SubTipo = 4, .Inicio = LInicio, .Fim = Fevereiro(1), .Pagto = LPagto});
    Diferenca({.Tipo = "15", .SubTipo = 4, .Inicio = LInicio, .Fim = LFim, .Pagto = D(2021, 4, 6)});
    Diferenca({.Tipo = "16", .SubTipo = 4, .Inicio = LInicio, .Fim = LFim, .Pagto = LPagto, .IdEmpregado = 2});
    Complementar(10, 2, LInicio, LFim, D(2021, 4, 7), 5);
    Diferenca({.Tipo = "17", .SubTipo = 4, .Inicio = LInicio, .Fim = LFim, .Pagto = D(2021, 4, 7)});
    Complementar(11, 1, LInicio, LFim, D(2021, 4, 8), 5);
    Executar("UPDATE FP_CALCCOMPLEMPREG SET IDEMPREGADO = 2 WHERE IDCALCCOMPL = 11");
    Diferenca({.Tipo = "18", .SubTipo = 4, .Inicio = LInicio, .Fim = LFim, .Pagto = D(2021, 4, 8)});
    // Paid in the month by an agreement of another.
    Acordo(6, D(2021, 2, 28));
    Complementar(12, 1, LInicio, LFim, D(2021, 3, 31), 6);
    Diferenca({.Tipo = "19", .SubTipo = 4, .Inicio = LInicio, .Fim = LFim});

    Calculo(1, 1, {.SubTipo = 3, .Convocacao = 12});
    Calculo(1, 1, {.Convocacao = 13});
    Calculo(1, 1, {.Convocacao = 11});
    Calculo(1, 1, {.Inicio = Fevereiro(28), .Fim = D(2021, 3, 2), .Convocacao = 14});
    Calculo(1, 1, {.Inicio = D(2021, 3, 30), .Fim = D(2021, 4, 1), .Convocacao = 15});
    Calculo(1, 1, {.IdEmpregado = 2, .Convocacao = 16});

    EXPECT_EQ("05_000_01_02_2021 05_000_01_03_2021 05_002_04_02_2021 05_002_05_02_2021 05_002_02_03_2021 "
              "02_000_0_03_2021 06_000_0_03_2021 01_004_1_01_2021 "
              "01_000_0_0000000011_03_2021 01_000_0_0000000013_03_2021 01_003_0_0000000012_03_2021",
              S2299());
    EXPECT_EQ("05_000_01_02_2021 05_000_02_02_2021 05_000_01_03_2021 05_002_02_03_2021 "
              "02_000_0_03_2021 06_000_0_03_2021",
              S2399());
}

TEST_F(TTesteDesligamento, AcordoVaiParaOPeriodoAnteriorComUmIdeADC)
{
    Acordo(5, D(2021, 3, 31));
    Complementar(9, 1, D(2021, 1, 1), D(2021, 1, 31), D(2021, 4, 5), 5);
    Calculo(1, 80, {.SubTipo = 4, .Inicio = D(2021, 1, 1), .Fim = D(2021, 1, 31), .Pagto = D(2021, 4, 5)});
    const auto LEvento = Carregar();
    ASSERT_EQ(1u, LEvento->infoDeslig.verbasResc.dmDev.size());
    const auto& LDmDev = *LEvento->infoDeslig.verbasResc.dmDev[0];
    EXPECT_EQ("01_004_1_01_2021", LDmDev.ideDmDev);
    EXPECT_TRUE(LDmDev.infoPerApur.ideEstabLot.empty());
    ASSERT_EQ(1u, LDmDev.infoPerAnt.ideADC.size());
    const auto& LAcordo = *LDmDev.infoPerAnt.ideADC[0];
    EXPECT_EQ("2021-04", LAcordo.compAcConv);
    EXPECT_EQ(D(2021, 3, 31), LAcordo.dtAcConv);
    EXPECT_EQ(D(2021, 1, 1), LAcordo.idePeriodoS2299.perRef);
    ASSERT_EQ(1u, LAcordo.idePeriodoS2299.ideEstabLot.size());
    EXPECT_EQ(R("80"), LAcordo.idePeriodoS2299.ideEstabLot[0]->detVerbas[0]->vrRubr);
    EXPECT_EQ("", S2399());
    Executar("UPDATE FP_INFOGFIP650660 SET DATAOCORRENCIA = '01.04.2021'");
    EXPECT_EQ("", S2299());
}

TEST_F(TTesteDesligamento, IntermitenteContaAsConvocacoesDoMes)
{
    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '111' WHERE IDESOCIALTABELA = 101");
    Inserir("FP_CONTRAINTERM", {{"IDCONTRAINTERM", 3}, {"IDEMPREGADO", 1}, {"CODIGOESOCIAL", "CV3"}});
    const std::pair<TDateTime, TDateTime> LPeriodos[] = {{D(2021, 3, 1), D(2021, 3, 3)},
                                                         {D(2021, 3, 31), D(2021, 3, 31)},
                                                         {D(2021, 2, 28), D(2021, 3, 2)},
                                                         {D(2021, 3, 30), D(2021, 4, 1)}};
    int LId = 10;
    for (const auto& [LInicio, LFim] : LPeriodos)
        Inserir("FP_DETCONVOCACAO",
                {{"IDDETCONVOCACAO", ++LId}, {"IDCONTRAINTERM", 3}, {"DATAINICIO", LInicio}, {"DATAFIM", LFim}});
    Calculo(1, 30, {.Convocacao = 11});
    const auto LEvento = Carregar();
    EXPECT_EQ(4, LEvento->infoDeslig.QteDiasinterm);
    ASSERT_EQ("01_000_0_0000000011_03_2021", Demonstrativos(LEvento->infoDeslig.verbasResc));
    EXPECT_EQ("CV3", LEvento->infoDeslig.verbasResc.dmDev[0]->infoTrabInterm[0]->codConv);
    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '101' WHERE IDESOCIALTABELA = 101");
    EXPECT_EQ(-1, Carregar()->infoDeslig.QteDiasinterm);
}

TEST_F(TTesteDesligamento, CategoriaEncerraAIdentificacaoDeVariosContratos)
{
    Rescisao();
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2},
                           {"IDEMPRESA", 1},
                           {"COD_EMPRESA", 7},
                           {"COD_EMPREGADO", 102},
                           {"CPF", CPF},
                           {"IDCATEGORIAESOCIAL", 723},
                           {"DATA_ADMISSAO", D(2019, 1, 1)}});
    EXPECT_EQ("05_000_01_03_2021_101", S2299());
    EXPECT_EQ("05_000_01_03_2021_101", S2399());
    Executar("UPDATE CALCULO SET TIPO = '02' WHERE TIPO = '05'");
    EXPECT_EQ("02_000_0_03_2021_101", S2299());
    // Of a category with a fraction its first three digits.
    Executar("UPDATE EMPREGADOS SET IDCATEGORIAESOCIAL = 723 + 101 - IDCATEGORIAESOCIAL");
    EXPECT_EQ("02_000_0_03_2021_723", S2299());
    // Ended before the calculation: no longer active.
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '28.02.2021' WHERE IDEMPREGADO = 2");
    EXPECT_EQ("02_000_0_03_2021", S2299());
}

TEST_F(TTesteDesligamento, FolhaSemNumeroNaoSeIdentifica)
{
    Calculo(1, 30, {.Tipo = "AB", .Convocacao = 11});
    EXPECT_THROW(Carregar(), EConvertError);
}

TEST_F(TTesteDesligamento, OsItensSaoDoMesDoDesligamentoMesmoDeRescisaoCalculadaEmOutro)
{
    Calculo(1, 100, {.Tipo = "05", .Inicio = D(2021, 2, 1), .Fim = D(2021, 2, 20)});
    Calculo(1, 80, {.SubTipo = 105});
    const auto LEvento = Carregar();
    ASSERT_EQ("05_000_01_02_2021", Demonstrativos(LEvento->infoDeslig.verbasResc));
    const auto& LItens = LEvento->infoDeslig.verbasResc.dmDev[0]->infoPerApur.ideEstabLot[0]->detVerbas;
    ASSERT_EQ(1u, LItens.size());
    EXPECT_EQ(R("80"), LItens[0]->vrRubr);
}

TEST_F(TTesteDesligamento, QuantidadeEFatorPelaVerba)
{
    const struct {
        const char* Formula;
        const char* Horas;
        const char* Quantidade;
        const char* Fator;
    } LCasos[] = {{"1B", "Nao", "0", "0"},      {"1D", "Sim", "10,3", "0"},  {"4TA", "Nao", "10,3", "0"},
                  {"9X", "Nao", "0", "10,3"},   {"99C", "Nao", "0", "10,3"}, {"1Z", "Nao", "0", "1,5"},
                  {"3G", "Sim", "10,3", "1,5"}, {"3C", "Nao", "0", "1,5"},   {"1CA", "Nao", "0", "1,5"},
                  {"3GA", "Nao", "0", "0"}};
    for (const auto& [LOrigem, LEspecie, LTp] : {std::tuple{91, 38, 13}, {90, 39, 13}, {90, 38, 14}})
        Inserir("SC00_EMPRESACFG",
                {{"IDEMPRESA", 1}, {"ORIGEM", LOrigem}, {"ESPECIE", LEspecie}, {"TP", LTp}, {"INFORMACAO1", "x"}});
    Calculo(1, 100, {.Tipo = "05"});
    int LCodigo = 10;
    for (const auto& LCaso : LCasos) {
        Verba(++LCodigo, LCaso.Formula, {{"HORAS", LCaso.Horas}, {"VLR_CALC", 1.5}});
        Calculo(LCodigo, 7, {.SubTipo = 104, .Referencia = 10.3});
    }
    const auto LEvento = Carregar();
    const auto LTermino = Carregar<TTarvoESocialCamposS2399>();
    const auto& LVerbas = LEvento->infoDeslig.verbasResc.dmDev[0]->infoPerApur.ideEstabLot[0]->detVerbas;
    const auto& LVerbasSemVinculo = LTermino->infoTSVTermino.verbasResc.dmDev[0]->ideEstabLot[0]->detVerbas;
    ASSERT_EQ(std::size(LCasos), LVerbas.size());
    ASSERT_EQ(std::size(LCasos), LVerbasSemVinculo.size());
    for (std::size_t I = 0; I < LVerbas.size(); ++I) {
        EXPECT_EQ(R(LCasos[I].Quantidade), LVerbas[I]->qtdRubr) << LCasos[I].Formula;
        EXPECT_EQ(R(LCasos[I].Fator), LVerbas[I]->fatorRubr) << LCasos[I].Formula;
        EXPECT_EQ(LVerbas[I]->qtdRubr, LVerbasSemVinculo[I]->qtdRubr);
        EXPECT_EQ(LVerbas[I]->fatorRubr, LVerbasSemVinculo[I]->fatorRubr);
        EXPECT_EQ("0", LVerbas[I]->ideTabRubr);
    }
}

TEST_F(TTesteDesligamento, VerbasSoDesdeOInicioDosEventosPeriodicos)
{
    Rescisao();
    for (const auto& [LInicio, LQuantas] : {std::pair{D(2021, 3, 20), 1u}, {D(2021, 3, 21), 0u}}) {
        EXPECT_EQ(LQuantas, Carregar(LInicio)->infoDeslig.verbasResc.dmDev.size());
        EXPECT_EQ(LQuantas, Carregar<TTarvoESocialCamposS2399>(LInicio)->infoTSVTermino.verbasResc.dmDev.size());
    }
    EXPECT_EQ("2", Carregar(D(2021, 3, 21))->infoDeslig.mtvDeslig);
    EXPECT_EQ("MAT1", Carregar(D(2021, 3, 21))->ideVinculo.matricula);
    // Nobody dismissed: no day, and no amounts.
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = NULL");
    EXPECT_TRUE(Carregar()->infoDeslig.dtDeslig.Vazia());
    EXPECT_TRUE(Carregar()->infoDeslig.verbasResc.dmDev.empty());
}

TEST_F(TTesteDesligamento, TransferenciaDaOMotivoEDispensaAsVerbas)
{
    Rescisao();
    Transferencia(1, 11);
    EXPECT_EQ("2", Carregar()->infoDeslig.mtvDeslig);
    Executar("UPDATE EMPREGADOS SET TIPO_RESCISAO = '61', DATA_DEMISSAO = NULL");
    Inserir("MOV_TRANSF", {{"IDEMPREGADO", 1},
                           {"COD_EMPRESA", 8},
                           {"DATAINICIOMOV", D(2021, 3, 15)},
                           {"MOTIVOINICIAL", "TRANSFERENCIA DEFINITIVA"}});
    auto LEvento = Carregar();
    EXPECT_EQ(D(2021, 3, 15), LEvento->infoDeslig.dtDeslig);
    EXPECT_EQ("11", LEvento->infoDeslig.mtvDeslig);
    EXPECT_EQ("11222333000181", LEvento->infoDeslig.sucessaoVincS2299.cnpjSucessora);
    // Of the company of destination alone, and from the worker's own.
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 2}, {"EMPRESA", 9}, {"CNPJ", "99222333000181"}});
    Executar("UPDATE TRANSF_EMPREG SET COD_EMPRESADESTINO = 9");
    EXPECT_EQ("99222333000181", Carregar()->infoDeslig.sucessaoVincS2299.cnpjSucessora);
    Executar("UPDATE TRANSF_EMPREG SET COD_EMPRESAORIGEM = 9");
    EXPECT_EQ("", Carregar()->infoDeslig.mtvDeslig);
    Executar("UPDATE TRANSF_EMPREG SET COD_EMPRESAORIGEM = 7");
    EXPECT_EQ("", LEvento->infoDeslig.transfTit.motivoAfast);
    EXPECT_TRUE(LEvento->infoDeslig.verbasResc.dmDev.empty());

    Executar("UPDATE TRANSF_EMPREG SET MOTIVO = 3, MOTIVOESOCIAL = 34");
    LEvento = Carregar();
    EXPECT_EQ("34", LEvento->infoDeslig.mtvDeslig);
    EXPECT_EQ("", LEvento->infoDeslig.sucessaoVincS2299.motivoAfast);
    EXPECT_EQ("12345678909", LEvento->infoDeslig.transfTit.cpfSubstituto);
    Executar("UPDATE TRANSF_EMPREG SET MOTIVO = 2");
    EXPECT_EQ("", Carregar()->infoDeslig.mtvDeslig);
}

TEST_F(TTesteDesligamento, PensaoPelaConfiguracaoDoDesligamento)
{
    const auto Configurar = [](TDateTime AInicio, TValorSql AFim) {
        Executar("DELETE FROM SC00_EMPREGADOCFG");
        Inserir("SC00_EMPREGADOCFG", {{"IDEMPREGADO", 1},
                                      {"ORIGEM", 90},
                                      {"ESPECIE", 14},
                                      {"TP", 3},
                                      {"DATAINICIO", AInicio},
                                      {"DATAFIM", AFim},
                                      {"INFORMACAO1", "12,5"}});
    };
    EXPECT_EQ("0", Carregar()->infoDeslig.pensAlim);
    Configurar(D(2021, 3, 1), D(2021, 3, 1));
    EXPECT_EQ("1", Carregar()->infoDeslig.pensAlim);
    EXPECT_EQ("12,5", Carregar()->infoDeslig.percAliment);
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '01.03.2021'");
    EXPECT_EQ("1", Carregar()->infoDeslig.pensAlim) << "since the very day";
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '20.03.2021'");
    // In force on the first day of the month.
    Configurar(D(2021, 3, 2), nullptr);
    EXPECT_EQ("0", Carregar()->infoDeslig.pensAlim);

    // S-2399 takes the open row, and says nothing of the alimony.
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 7}, {"COD_EMPREGADO", 101}, {"MTVDESLIGTSV", "03"}});
    auto LTermino = Carregar<TTarvoESocialCamposS2399>();
    EXPECT_EQ(12.5, LTermino->infoTSVTermino.percAliment);
    EXPECT_EQ("", LTermino->infoTSVTermino.pensAlim);
    EXPECT_EQ("03", LTermino->infoTSVTermino.mtvDesligTSV);
    Configurar(D(2021, 3, 1), D(2021, 12, 31));
    EXPECT_EQ(0, Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.percAliment);
    Configurar(D(2021, 1, 1), D(2021, 2, 28));
    EXPECT_EQ("", Carregar()->infoDeslig.percAliment);
    // Settings of another contract, origin, kind or type.
    for (const char* LOutro : {"IDEMPREGADO = 2", "ORIGEM = 91", "ESPECIE = 13", "TP = 2"}) {
        Configurar(D(2021, 3, 1), nullptr);
        EXPECT_EQ(12.5, Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.percAliment);
        Executar(std::string("UPDATE SC00_EMPREGADOCFG SET ") + LOutro);
        EXPECT_EQ("0", Carregar()->infoDeslig.pensAlim) << LOutro;
        EXPECT_EQ("", Carregar()->infoDeslig.percAliment) << LOutro;
        EXPECT_EQ(0, Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.percAliment) << LOutro;
    }
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 2");
    EXPECT_EQ("", Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.mtvDesligTSV) << "without a category nothing";
}

TEST_F(TTesteDesligamento, DadosDaRescisaoSoDoContratoEDaSuaEspecie)
{
    Inserir("ES02_SPPROC", {{"IDSPPROC", 7}, {"NUMERO", "0001.234"}});
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 8}, {"COD_EMPREGADO", 101}, {"DIAS_INDEN", 90}});
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 7}, {"COD_EMPREGADO", 102}, {"DIAS_INDEN", 60}});
    const auto Detalhar = [](int AIdEmpregado, int AEspecie, int ATipo, const char* APrefixo) {
        const auto Texto = [&](const char* AValor) { return std::string(APrefixo) + AValor; };
        Inserir("FP_EMPREGADOSDET", {{"IDEMPREGADO", AIdEmpregado},
                                     {"ESPECIE", AEspecie},
                                     {"TP", ATipo},
                                     {"INFORMACAO1", Texto("1")},
                                     {"INFORMACAO2", "7"},
                                     {"INFORMACAO3", Texto("3")},
                                     {"INFORMACAO5", Texto("5")},
                                     {"INFORMACAO6", Texto("6")},
                                     {"INFORMACAO10", Texto("10")}});
    };
    const auto Dados = [] {
        const auto LEvento = Carregar();
        const auto& LInfo = LEvento->infoDeslig;
        return LInfo.nrCertObito + "/" + LInfo.nrProcTrab + "/" + LInfo.indCumprParc + "/" + LInfo.observacao + " " +
               LInfo.ConsigFGTS.insConsig + "/" + LInfo.ConsigFGTS.nrContr + " " + LInfo.mtvDeslig;
    };
    Detalhar(2, 4, 1, "o");
    Detalhar(1, 3, 1, "e");
    Detalhar(1, 4, 2, "t");
    EXPECT_EQ("/// / 2", Dados());
    EXPECT_EQ("", Carregar()->infoDeslig.dtProjFimAPI);
    // S-2399 has neither reason nor category without its own.
    const auto Categoria = [] { return Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.CategoriaEmpregado; };
    EXPECT_EQ("", Categoria());
    Detalhar(1, 4, 1, "");
    EXPECT_EQ("1/0001.234/3/10 5/6 2", Dados());
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 7}, {"COD_EMPREGADO", 101}, {"DIAS_INDEN", 30}});
    EXPECT_EQ("19/04/2021", Carregar()->infoDeslig.dtProjFimAPI);
    EXPECT_EQ("101", Categoria());
    // A contract without a category has all the same its dismissal.
    Executar("UPDATE EMPREGADOS SET IDCATEGORIAESOCIAL = NULL");
    EXPECT_EQ("1/0001.234/3/10 5/6 2", Dados());
}

TEST_F(TTesteDesligamento, PlanoDeSaudeDaRescisaoENaoDaComplementar)
{
    Rescisao();
    Verba(38, "5S");
    Verba(39, "5SA");
    for (const int LOperadora : {1, 2})
        Inserir("PSAUDE_OPER", {{"IDPSAUDE_OPER", LOperadora}, {"CNPJ", "x"}, {"TIPO", LOperadora}});
    Inserir("PSAUDE_VERBAS", {{"IDPSAUDE_OPER", 1}, {"IDVERBA", 1001}});
    Inserir("PSAUDE_VERBAS", {{"IDPSAUDE_OPER", 1}, {"IDVERBA", 1038}});
    Inserir("PSAUDE_VERBAS", {{"IDPSAUDE_OPER", 2}, {"IDVERBA", 1039}});
    Inserir("DEPENDENTES", {{"IDDEPENDENTE", 1}, {"NOME", "Dependente"}});
    // In force on a day of the calculation, from the first to the last.
    for (const auto& [LInicio, LFim, LValor] : {std::tuple{D(2021, 3, 20), TValorSql(nullptr), 70},
                                                {D(2021, 1, 1), TValorSql(D(2021, 3, 1)), 60},
                                                {D(2021, 3, 21), TValorSql(nullptr), 9},
                                                {D(2021, 1, 1), TValorSql(D(2021, 2, 28)), 9}})
        Inserir("FP_PSAUDEVLRMESDEP", {{"IDPSAUDEOPER", 1},
                                       {"IDEMPREGADO", 1},
                                       {"IDDEPENDENTE", 1},
                                       {"DATAINICIO", LInicio},
                                       {"DATAFIM", LFim},
                                       {"VALOR", LValor}});
    Calculo(38, 20, {.SubTipo = 104});
    Calculo(39, 7, {.SubTipo = 104});
    Calculo(38, 20, {.Tipo = "05", .SubTipo = 2, .Inicio = D(2021, 3, 20)});
    RescCompl(D(2021, 3, 31));

    const auto LEvento = Carregar();
    ASSERT_EQ(2u, LEvento->infoDeslig.verbasResc.dmDev.size());
    const auto& LSaude = LEvento->infoDeslig.verbasResc.dmDev[0]->infoPerApur.ideEstabLot[0]->infoSaudeColet;
    ASSERT_EQ(1u, LSaude.detOper.size());
    // Below zero after the dependant, then the second rubric's whole amount.
    EXPECT_EQ(R("-10"), LSaude.detOper[0]->vrPgTit);
    EXPECT_EQ(2u, LSaude.detOper[0]->detPlano.size());
    EXPECT_TRUE(LEvento->infoDeslig.verbasResc.dmDev[1]->infoPerApur.ideEstabLot[0]->infoSaudeColet.detOper.empty());

    // Every kind of operator counts in S-2399.
    const auto LTermino = Carregar<TTarvoESocialCamposS2399>();
    const auto& LVerbas = LTermino->infoTSVTermino.verbasResc;
    ASSERT_EQ(2u, LVerbas.dmDev.size());
    EXPECT_EQ(2u, LVerbas.dmDev[0]->ideEstabLot[0]->infoSaudeColet.detOper.size());
    EXPECT_TRUE(LVerbas.dmDev[1]->ideEstabLot[0]->infoSaudeColet.detOper.empty());
}

TEST_F(TTesteDesligamento, PlanoDeSaudePelosDiasDeCadaLotacao)
{
    TipoDeQuebra(3);
    Inserir("PSAUDE_OPER", {{"IDPSAUDE_OPER", 1}, {"CNPJ", "x"}, {"TIPO", 1}});
    Inserir("PSAUDE_VERBAS", {{"IDPSAUDE_OPER", 1}, {"IDVERBA", 1001}});
    Inserir("DEPENDENTES", {{"IDDEPENDENTE", 1}, {"NOME", "Dependente"}});
    Inserir(
        "FP_PSAUDEVLRMESDEP",
        {{"IDPSAUDEOPER", 1}, {"IDEMPREGADO", 1}, {"IDDEPENDENTE", 1}, {"DATAINICIO", D(2021, 1, 1)}, {"VALOR", 31.1}});
    const auto LItem = Calculo(1, 150, {.SubTipo = 104});
    Quebra(LItem, 1, 10, 90, 8);
    Quebra(LItem, 2, 20, 60, 0);
    Calculo(1, 100, {.Tipo = "05"});
    const struct {
        TDateTime Inicio;
        TDateTime Fim;
        const char* Dependente;
        const char* Titular;
    } LCasos[] = {{D(2021, 3, 1), D(2021, 3, 15), "16,5867", "73,4133"},
                  {D(2021, 3, 1), D(2021, 3, 20), "12,44", "77,56"},
                  // A period that doesn't go forward counts from the first day of its end's month.
                  {D(2021, 3, 20), D(2021, 3, 20), "12,44", "77,56"},
                  {D(2021, 3, 25), D(2021, 3, 20), "12,44", "77,56"}};
    const auto Operadora = [](const auto& ALotacoes, std::size_t AIndice) -> const auto&
    {
        return *ALotacoes[AIndice]->infoSaudeColet.detOper[0];
    };
    for (const auto& LCaso : LCasos) {
        Executar("UPDATE CALCULO SET DATA_INICIO = " + FormatarDataDB(LCaso.Inicio, true) +
                 ", DATA_FIM = " + FormatarDataDB(LCaso.Fim, true) + " WHERE TIPO = '05'");
        const auto LEvento = Carregar();
        const auto& LLotacoes = LEvento->infoDeslig.verbasResc.dmDev[0]->infoPerApur.ideEstabLot;
        ASSERT_EQ(2u, LLotacoes.size());
        EXPECT_EQ(R(LCaso.Dependente), Operadora(LLotacoes, 0).detPlano[0]->vlrPgDep);
        EXPECT_EQ(R(LCaso.Titular), Operadora(LLotacoes, 0).vrPgTit);
        // Without days the dependant counts whole.
        EXPECT_EQ(R("28,9"), Operadora(LLotacoes, 1).vrPgTit);
        // The same shares in S-2399, whose lotações may come in another order.
        const auto LTermino = Carregar<TTarvoESocialCamposS2399>();
        const auto& LSemVinculo = LTermino->infoTSVTermino.verbasResc.dmDev[0]->ideEstabLot;
        ASSERT_EQ(2u, LSemVinculo.size());
        EXPECT_EQ((std::set<Currency>{R(LCaso.Titular), R("28,9")}),
                  (std::set<Currency>{Operadora(LSemVinculo, 0).vrPgTit, Operadora(LSemVinculo, 1).vrPgTit}));
    }
}

/// With a statement that names the alimony's rubric, which the system's own doesn't.
class TInfoDesligComVerbaDaPensao : public TTarvoESocialCamposinfoDeslig {
public:
    using TTarvoESocialCamposinfoDeslig::TTarvoESocialCamposinfoDeslig;

protected:
    std::string BuscarSQLDados() override { return "SELECT 31 AS COD_VERBA_CFG_PENSAO FROM RDB$DATABASE"; }
};

TEST_F(TTesteDesligamento, ValorDaPensaoPelaVerbaDaConfiguracao)
{
    const auto Valor = [] {
        TInfoDesligComVerbaDaPensao LInfo(1, D(2030, 1, 1));
        LInfo.CarregarDados();
        return LInfo.vrAlim;
    };
    Calculo(31, 99, {.Tipo = "05", .SubTipo = 2});
    Calculo(31, 99, {.Tipo = "01"});
    Calculo(31, 99, {.Tipo = "05", .IdEmpregado = 2});
    Calculo(30, 99, {.Tipo = "05"});
    EXPECT_EQ("", Valor());
    Calculo(31, 301.5, {.Tipo = "05"});
    EXPECT_EQ("301,5", Valor());
}

TEST_F(TTesteDesligamento, ExposicaoNoFimDoCalculo)
{
    Rescisao();
    for (const auto& [LData, LOcorrencia] :
         {std::pair{D(2021, 3, 21), "depois"}, {D(2018, 1, 2), "antes"}, {D(2021, 3, 20), "no dia"}})
        Inserir("CARGOS", {{"IDEMPREGADO", 1}, {"DATA", LData}, {"OCORRENCIA", LOcorrencia}});
    EXPECT_EQ("no dia", Carregar()->infoDeslig.verbasResc.dmDev[0]->infoPerApur.ideEstabLot[0]->infoAgNocivo.grauExp);
    EXPECT_EQ(
        "no dia",
        Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.verbasResc.dmDev[0]->ideEstabLot[0]->infoAgNocivo.grauExp);
}

TEST_F(TTesteDesligamento, OutrosEmpregadoresDoMesSemOProprio)
{
    const auto Rendimento = [](const char* AInscricao, int AOrdem, TDateTime AInicio, double AValor) {
        Inserir("RENDIMENTOS", {{"COD_EMPRESA", 7},
                                {"COD_EMPREGADO", 101},
                                {"TIPOREND", "INSS"},
                                {"TPINSCRICAO", 1},
                                {"INSCRICAO", AInscricao},
                                {"IDESOCIALTABELA", 101},
                                {"ORDEMCALCULO", AOrdem},
                                {"DATA_INICIO", AInicio},
                                {"VALOR", AValor}});
    };
    Rendimento("99", 1, D(2021, 3, 31), 10.25);
    Rendimento("99", 2, D(2021, 1, 1), 5);
    Rendimento("99", 1, D(2021, 4, 1), 77);
    Rendimento("11222333000181", 1, D(2021, 1, 1), 77);
    Rendimento("11222333000182", 1, D(2021, 1, 1), 77);
    Rendimento("11222333000199", 1, D(2021, 1, 1), 77);
    Executar("UPDATE SC00_EMPRESA SET CNPJ = '11222333000199'");
    Rendimento("96", 1, D(2021, 1, 1), 77);
    Executar("UPDATE RENDIMENTOS SET COD_EMPRESA = 8 WHERE INSCRICAO = '96'");
    Rendimento("98", 1, D(2021, 1, 1), 77);
    Executar("UPDATE RENDIMENTOS SET TIPOREND = 'IRRF' WHERE INSCRICAO = '98'");
    Rendimento("97", 1, D(2021, 1, 1), 77);
    Executar("UPDATE RENDIMENTOS SET DATA_FIM = '28.02.2021' WHERE INSCRICAO = '97'");
    Executar("UPDATE EMPREGADOS SET ORDEMDESCINSS = 1, INDICADORDESCINSS = 1");
    auto LEvento = Carregar();
    const auto& LMV = LEvento->infoDeslig.verbasResc.infoMV;
    EXPECT_EQ("1", LMV.indMV);
    ASSERT_EQ(1u, LMV.remunOutrEmpr.size());
    EXPECT_EQ("15,25", LMV.remunOutrEmpr[0]->vlrRemunOE);
    EXPECT_EQ("101", LMV.remunOutrEmpr[0]->codCateg);
    // Withheld in a fixed order: those after this employer's turn don't count.
    Executar("UPDATE EMPREGADOS SET INDICADORDESCINSS = 2");
    EXPECT_EQ("10,25",
              Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.verbasResc.infoMV.remunOutrEmpr[0]->vlrRemunOE);
    // Until the first day of the month, and without a category.
    Executar("UPDATE RENDIMENTOS SET DATA_FIM = '01.03.2021', IDESOCIALTABELA = NULL WHERE INSCRICAO = '97'");
    LEvento = Carregar();
    const auto& LOutros = LEvento->infoDeslig.verbasResc.infoMV.remunOutrEmpr;
    ASSERT_EQ(2u, LOutros.size());
    EXPECT_EQ("97/", LOutros[0]->nrInsc + "/" + LOutros[0]->codCateg);
}

TEST_F(TTesteDesligamento, ProcessoDoEstabelecimentoENaoOsDosEmpregados)
{
    const auto Processo = [] { return Carregar()->infoDeslig.verbasResc.procCs.nrProcJud; };
    // The second place came after the dismissal.
    for (const auto& [LFilial, LInicio] : {std::pair{1, D(2018, 1, 2)}, {2, D(2021, 3, 21)}})
        Inserir("MOV_TRANSF",
                {{"IDEMPREGADO", 1}, {"IDFILIAL", LFilial}, {"COD_EMPRESA", 7}, {"DATAINICIOMOV", LInicio}});
    for (const auto& [LId, LMateria, LFilial, LEmpregado] :
         {std::tuple{1, 1, 1, TValorSql(2)}, {2, 2, 1, nullptr}, {3, 7, 2, nullptr}})
        Inserir("ES02_SPPROC", {{"IDSPPROC", LId},
                                {"INDMATERIA", LMateria},
                                {"IDFILIAL", LFilial},
                                {"IDEMPREGADO", LEmpregado},
                                {"NUMERO", "P" + std::to_string(LId)}});
    EXPECT_EQ("", Processo());
    Executar("UPDATE ES02_SPPROC SET IDFILIAL = 1");
    EXPECT_EQ("P3", Processo());
    Executar("DELETE FROM ES02_SPPROC WHERE IDSPPROC = 3");
    Executar("UPDATE ES02_SPPROC SET IDEMPREGADO = NULL WHERE IDSPPROC = 1");
    EXPECT_EQ("P1", Processo());
}

} // namespace
} // namespace tarvo::testes
