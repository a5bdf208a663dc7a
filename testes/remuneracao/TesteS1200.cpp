#include <array>
#include <random>
#include <regex>
#include <set>
#include <tuple>

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnTarvoUtilsDatas.h"
#include "remuneracao/UnCenarioDeFolha.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200.h"

namespace tarvo::testes {
namespace {

using remuneracao::TTarvoESocialCamposS1200;
using remuneracao::TTarvoESocialCamposS1200IOP;

class TTesteS1200 : public TTesteDeFolha {
protected:
    void SetUp() override
    {
        TTesteDeFolha::SetUp();
        Verba(1, "1A");
        Verba(2, "3T");
    }

    std::unique_ptr<TTarvoESocialCamposS1200> Carregar()
    {
        auto LEvento = std::make_unique<TTarvoESocialCamposS1200>(Info);
        LEvento->CarregarDados();
        return LEvento;
    }
    static std::string Identificadores(const TTarvoESocialCamposS1200& AEvento)
    {
        std::string LTexto;
        for (const auto& LDmDev : AEvento.dmDev)
            LTexto += (LTexto.empty() ? "" : " ") + LDmDev->ideDmDev;
        return LTexto;
    }
    std::string Identificadores() { return Identificadores(*Carregar()); }
    /// "establishment/department:registration=value" of each item.
    static std::string Itens(const TTarvoESocialCamposS1200& AEvento)
    {
        std::string LTexto;
        for (const auto& LDmDev : AEvento.dmDev)
            for (const auto& LLotacao : LDmDev->infoPerApur.ideEstabLot)
                for (const auto& LRemuneracao : LLotacao->remunPerApur)
                    for (const auto& LItem : LRemuneracao->itensRemun)
                        LTexto += (LTexto.empty() ? "" : " ") + std::to_string(LLotacao->IdFilial) + "/" +
                                  std::to_string(LLotacao->IdDepto) + ":" + LRemuneracao->matricula + "=" +
                                  FloatToStr(LItem->vrRubr);
        return LTexto;
    }
    std::string Itens() { return Itens(*Carregar()); }
    void OutroContrato(std::int64_t AId, int ACategoria, const char* AMatricula = "MAT2")
    {
        Inserir("EMPREGADOS", {{"IDEMPREGADO", AId},
                               {"IDEMPRESA", 1},
                               {"COD_EMPRESA", 7},
                               {"COD_EMPREGADO", 100 + AId},
                               {"CPF", CPF},
                               {"CODIGOESOCIAL", AMatricula},
                               {"IDCATEGORIAESOCIAL", ACategoria},
                               {"DATA_ADMISSAO", D(2019, 1, 2)}});
    }
};

TEST_F(TTesteS1200, SemFolhaNemReciboNaoHaDemonstrativo)
{
    EXPECT_EQ("", Identificadores());
    Info.SetCpf("desconhecido");
    EXPECT_EQ("", Identificadores());
}

TEST_F(TTesteS1200, CadaFolhaDoMesEhUmDemonstrativo)
{
    Calculo(1, 100);
    Calculo(1, 1, {.SubTipo = 104});
    for (const auto& [LTipo, LSubTipo] :
         {std::pair{"02", 0}, {"06", 0}, {"03", 0}, {"04", 0}, {"05", 0}, {"01", 2}, {"02", 1}})
        Calculo(1, 50, {.Tipo = LTipo, .SubTipo = LSubTipo});
    // Profit sharing by the day of payment, its own period long past.
    Calculo(2, 900, {.Tipo = "09", .Inicio = D(2020, 1, 1), .Fim = D(2020, 12, 31), .Pagto = D(2021, 3, 15)});
    Calculo(2, 900, {.Tipo = "09", .Inicio = D(2020, 1, 1), .Fim = D(2020, 12, 31), .Pagto = D(2021, 4, 1)});
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Calculo(1, 7, {.SubTipo = 4});
    EXPECT_EQ("01_000_0_03_2021 02_000_0_03_2021 06_000_0_03_2021 09_000_0_03_2021 01_004_2_03_2021",
              Identificadores());
    // A further load adds the same again.
    TTarvoESocialCamposS1200 LEvento(Info);
    LEvento.CarregarDados();
    LEvento.CarregarDados();
    EXPECT_EQ(10u, LEvento.dmDev.size());
    EXPECT_EQ(D(2021, 3, 1), Info.DataInicio());
    EXPECT_EQ(D(2021, 3, 31), Info.DataFim());
    EXPECT_EQ(1, Info.IdEmpregado());
}

TEST_F(TTesteS1200, DiasDePagamentoNaoPartemUmaFolha)
{
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 15));
    Complementar(2, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    for (const auto& [LTipo, LSubTipo] : {std::pair{"01", 0}, {"02", 0}, {"03", 0}, {"01", 4}})
        for (const auto& LPagto : {D(2021, 3, 15), D(2021, 3, 31)})
            Calculo(1, 10, {.Tipo = LTipo, .SubTipo = LSubTipo, .Pagto = LPagto});
    EXPECT_EQ("01_000_0_03_2021 02_000_0_03_2021 01_004_2_03_2021", Identificadores());
    EXPECT_EQ(D(1900, 1, 1), Info.DataPagto());
    Info.SetIndApuracao(tpIndApuracao::Anual);
    EXPECT_EQ("03_000_0_03_2021", Identificadores());
}

TEST_F(TTesteS1200, PeriodoQueCadaFolhaPrecisaTer)
{
    const struct {
        TDateTime Inicio;
        TDateTime Fim;
        bool Normal;
        bool Complementar;
    } LCasos[] = {
        {D(2021, 3, 1), D(2021, 3, 31), true, true},   {D(2021, 3, 10), D(2021, 3, 20), true, true},
        {D(2021, 2, 28), D(2021, 3, 31), false, true}, {D(2021, 3, 1), D(2021, 4, 1), false, true},
        {D(2021, 2, 15), D(2021, 3, 1), false, true},  {D(2021, 3, 31), D(2021, 4, 30), false, true},
        {D(2021, 2, 1), D(2021, 2, 28), false, false}, {D(2021, 4, 1), D(2021, 4, 30), false, false},
    };
    for (const auto& LCaso : LCasos) {
        for (const auto& [LSubTipo, LEsperado] : {std::pair{0, LCaso.Normal}, {4, LCaso.Complementar}}) {
            for (const char* LTabela : {"CALCULO", "CALCCOMPL", "FP_CALCCOMPLEMPREG", "CALCCOMPLPER"})
                Executar(std::string("DELETE FROM ") + LTabela);
            Complementar(1, 2, LCaso.Inicio, LCaso.Fim, D(2021, 3, 31));
            Calculo(1, 10, {.SubTipo = LSubTipo, .Inicio = LCaso.Inicio, .Fim = LCaso.Fim});
            EXPECT_EQ(LEsperado, !Identificadores().empty()) << LSubTipo << " " << DateTimeToStr(LCaso.Inicio);
        }
    }
    // A complementary row has no part in the list of normal payrolls, not even with its period.
    Executar("DELETE FROM CALCCOMPL");
    Calculo(1, 10, {.Fim = D(2021, 3, 10)});
    for (const int LSubTipo : {2, 4})
        Calculo(1, 20, {.SubTipo = LSubTipo, .Fim = D(2021, 3, 15)});
    EXPECT_EQ("01_000_0_03_2021", Identificadores());
}

TEST_F(TTesteS1200, ComplementarDeAcordoNadaTemNoPeriodoAtual)
{
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Calculo(1, 10, {.SubTipo = 4});
    Calculo(1, 10, {.Tipo = "03", .SubTipo = 4});
    Info.SetListaIdsEmpregado({1});
    Info.SetSubTipoFolha(4);
    for (const int LTipo : {1, 3})
        for (const auto& [LCompl, LQuantidade] : {std::pair{1, 0u}, {2, 1u}}) {
            Info.SetTipoFolha(LTipo);
            Info.SetTipoFolhaCompl(LCompl);
            remuneracao::TTarvoESocialCamposInfoPerApurS1200 LGrupo(Info);
            LGrupo.CarregarDados();
            EXPECT_EQ(LQuantidade, LGrupo.ideEstabLot.size()) << LTipo << "/" << LCompl;
        }
}

TEST_F(TTesteS1200, EventoAnualSoTemODecimoTerceiro)
{
    Calculo(1, 100);
    Calculo(1, 40, {.Tipo = "03"});
    Calculo(1, 41, {.Tipo = "03", .SubTipo = 4});
    Prestador(5, "11122233396", 701);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    Info.SetIndApuracao(tpIndApuracao::Anual);
    EXPECT_EQ("03_000_0_03_2021 97_0000001234_05_03_2021", Identificadores());
}

TEST_F(TTesteS1200, FolhaQueNadaTemARelatarSome)
{
    Calculo(1, 0);
    Calculo(1, 10, {.Tipo = "02"});
    EXPECT_EQ("02_000_0_03_2021", Identificadores());
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '31.03.2021'");
    EXPECT_EQ("", Identificadores());
}

TEST_F(TTesteS1200, UmDemonstrativoPorConvocacaoEUmParaORestoDoMes)
{
    Inserir("FP_CONTRAINTERM", {{"IDCONTRAINTERM", 1}, {"IDEMPREGADO", 1}, {"CODIGOESOCIAL", "CONV"}});
    Inserir("FP_DETCONVOCACAO", {{"IDDETCONVOCACAO", 57}, {"IDCONTRAINTERM", 1}});
    Calculo(1, 10, {.Convocacao = 57});
    Calculo(1, 20, {.Convocacao = 58});
    Calculo(1, 5);
    const auto LEvento = Carregar();
    EXPECT_EQ("01_000_0_03_2021 01_000_0_0000000057_03_2021 01_000_0_0000000058_03_2021", Identificadores(*LEvento));
    // The work outside any convocation takes the rows of all of them along.
    EXPECT_EQ("1/0:MAT1=35 1/0:MAT1=10 1/0:MAT1=20", Itens(*LEvento));
    std::string LConvocacoes;
    for (const auto& LDmDev : LEvento->dmDev)
        for (const auto& LConvocacao : LDmDev->infoPerApur.ideEstabLot[0]->remunPerApur[0]->infoTrabInterm)
            LConvocacoes += LDmDev->ideDmDev + ":" + LConvocacao->codConv + ":" + std::to_string(LConvocacao->codCateg);
    EXPECT_EQ("01_000_0_0000000057_03_2021:CONV:101", LConvocacoes) << "none without a code";
}

TEST_F(TTesteS1200, UmaPassagemPorCategoria)
{
    Calculo(1, 100);
    OutroContrato(2, 103);
    Calculo(1, 200, {.IdEmpregado = 2});
    const auto LEvento = Carregar();
    EXPECT_EQ("01_000_0_03_2021_101 01_000_0_03_2021_103", Identificadores(*LEvento));
    EXPECT_EQ("1/0:MAT1=100 1/0:MAT2=200", Itens(*LEvento));
    EXPECT_EQ(103, LEvento->dmDev[1]->codCateg);
    // Of one category: one pass, one demonstrative, no suffix.
    Executar("UPDATE EMPREGADOS SET IDCATEGORIAESOCIAL = 101");
    const auto LDeUma = Carregar();
    EXPECT_EQ("01_000_0_03_2021", Identificadores(*LDeUma));
    EXPECT_EQ("1/0:MAT1=100 1/0:MAT2=200", Itens(*LDeUma));
}

TEST_F(TTesteS1200, ACategoriaDoIdentificadorVaiPelosContratosDoInicioDaFolha)
{
    // The identifier is formed before the parameter object goes back from the agreement's run to the month.
    OutroContrato(2, 103);
    Acordo(9, D(2021, 3, 10));
    Complementar(2, 1, D(2018, 6, 1), D(2018, 6, 30), D(2021, 3, 31), 9);
    Calculo(1, 100);
    Calculo(1, 137.5, {.SubTipo = 4, .Inicio = D(2018, 6, 1), .Fim = D(2018, 6, 30)});
    EXPECT_EQ("01_000_0_03_2021_101 01_004_1_06_2018", Identificadores());
    Executar("UPDATE EMPREGADOS SET DATA_ADMISSAO = '01.06.2018' WHERE IDEMPREGADO = 2");
    EXPECT_EQ("01_000_0_03_2021_101 01_004_1_06_2018_101", Identificadores());
}

TEST_F(TTesteS1200, CodigoLongoDeCategoriaValeParaContratoENaoParaPrestador)
{
    Executar("UPDATE EMPREGADOS SET IDCATEGORIAESOCIAL = 723");
    Calculo(1, 100);
    Prestador(5, "11122233396", 723);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    EXPECT_EQ("01_000_0_03_2021", Identificadores());
    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = 'X23' WHERE IDESOCIALTABELA = 723");
    EXPECT_THROW(Carregar(), EConvertError);
    Executar("DELETE FROM PREST_SERVICO");
    EXPECT_THROW(Carregar(), EConvertError);
    Executar("UPDATE EMPREGADOS SET IDEMPRESA = 2");
    EXPECT_EQ("", Identificadores()) << "another employer's contract gives no category";
}

TEST_F(TTesteS1200, ContratosDeOutraEmpresaNaoContam)
{
    Calculo(1, 100);
    OutroContrato(2, 101);
    Executar("UPDATE EMPREGADOS SET IDEMPRESA = 2 WHERE IDEMPREGADO = 2");
    Calculo(1, 200, {.IdEmpregado = 2});
    EXPECT_EQ("1/0:MAT1=100", Itens());
    Executar("UPDATE SC00_EMPRESA SET EMPRESA = 8");
    EXPECT_EQ("", Itens()) << "the runs are those of the employer's code";
    Info.SetIdEmpresa(99);
    TTarvoESocialCamposS1200 LEvento(Info);
    Executar("UPDATE EMPREGADOS SET IDEMPRESA = 99");
    EXPECT_THROW(LEvento.CarregarDados(), EConvertError) << "an employer without a code";
}

TEST_F(TTesteS1200, FolhaDeOutraEmpresaNaoAbreDemonstrativo)
{
    // A contract keeps its id when it moves to another employer of the group: the run calculated there is wider than
    // this employer's, so that its rows would be read again with it.
    Acordo(9, D(2021, 3, 10));
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Complementar(2, 1, D(2020, 6, 1), D(2020, 6, 30), D(2021, 3, 31), 9);
    const struct {
        const char* Tipo;
        int SubTipo;
        TDateTime Inicio;
        TDateTime Fim;
        TDateTime FimDeLa;
        const char* Esperado;
    } LCasos[] = {
        {"01", 0, D(2021, 3, 1), D(2021, 3, 15), D(2021, 3, 31), "01_000_0_03_2021"},
        {"02", 0, D(2021, 3, 1), D(2021, 3, 15), D(2021, 3, 31), "02_000_0_03_2021"},
        {"09", 0, D(2021, 3, 1), D(2021, 3, 15), D(2021, 3, 31), "09_000_0_03_2021"},
        {"01", 4, D(2021, 3, 1), D(2021, 3, 15), D(2021, 3, 31), "01_004_2_03_2021"},
        {"01", 4, D(2020, 6, 1), D(2020, 6, 15), D(2020, 6, 30), "01_004_1_06_2020"},
    };
    for (const auto& LCaso : LCasos) {
        Executar("DELETE FROM CALCULO");
        Calculo(1, 100, {.Tipo = LCaso.Tipo, .SubTipo = LCaso.SubTipo, .Inicio = LCaso.Inicio, .Fim = LCaso.Fim});
        Calculo(1, 900,
                {.Tipo = LCaso.Tipo,
                 .SubTipo = LCaso.SubTipo,
                 .Inicio = LCaso.Inicio,
                 .Fim = LCaso.FimDeLa,
                 .CodEmpresa = 8});
        EXPECT_EQ(LCaso.Esperado, Identificadores()) << LCaso.Tipo << "/" << LCaso.SubTipo;
    }
}

TEST_F(TTesteS1200, ReciboDeMesmoNumeroDeOutraEmpresa)
{
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 2}, {"EMPRESA", 8}, {"CNPJ", "99888777000166"}});
    Inserir("SC00_FILIAL", {{"IDFILIAL", 3},
                            {"IDEMPRESA", 2},
                            {"FILIAL", 1},
                            {"TPINSCRICAO", 1},
                            {"CNPJ", "99888777000166"},
                            {"CODIGOESOCIAL", "F3"}});
    Prestador(5, "11122233396", 701);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    Recibo(2, 1234, 5, D(2021, 3, 5), 900, 3);
    Recibo(3, 77, 5, D(2021, 3, 8), 900, 3);
    EXPECT_EQ("97_0000001234_05_03_2021", Identificadores());
    EXPECT_EQ("1/0:0=60", Itens());
    // The same receipt over two establishments of this employer is one demonstrative.
    Recibo(4, 1234, 5, D(2021, 3, 5), 40, 2);
    EXPECT_EQ("97_0000001234_05_03_2021", Identificadores());
    EXPECT_EQ("1/0:0=60 2/0:0=40", Itens());
}

TEST_F(TTesteS1200, CategoriaDeOutraTabelaNaoEhCategoria)
{
    Calculo(1, 100);
    Prestador(5, "11122233396", 701);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    EXPECT_EQ("01_000_0_03_2021 97_0000001234_05_03_2021", Identificadores());
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 2 WHERE IDESOCIALTABELA = 101");
    EXPECT_EQ("97_0000001234_05_03_2021", Identificadores());
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 2 WHERE IDESOCIALTABELA = 701");
    EXPECT_EQ("", Identificadores());
}

TEST_F(TTesteS1200, LinhaForaDoComplementarNaoAbreDemonstrativo)
{
    Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
    Calculo(1, 100, {.SubTipo = 4});
    for (const auto& [LInicio, LFim] : {std::pair{D(2021, 2, 28), D(2021, 3, 31)}, {D(2021, 3, 1), D(2021, 4, 1)}}) {
        Calculo(1, 900, {.SubTipo = 4, .Inicio = LInicio, .Fim = LFim});
        EXPECT_EQ("01_004_2_03_2021", Identificadores()) << "a period that the complementary doesn't hold";
    }
}

TEST_F(TTesteS1200, SoAComplementarPagaNoDiaVaiComOAcordo)
{
    Acordo(9, D(2021, 3, 10));
    Complementar(2, 1, D(2020, 6, 1), D(2020, 6, 30), D(2021, 3, 31), 9);
    const TLinha LJunho{.SubTipo = 4, .Inicio = D(2020, 6, 1), .Fim = D(2020, 6, 30)};
    Calculo(1, 137.5, LJunho);
    auto LOutra = LJunho;
    LOutra.Pagto = D(2021, 3, 30);
    Calculo(1, 900, LOutra);
    LOutra = LJunho;
    LOutra.SubTipo = 0;
    Calculo(1, 900, LOutra);
    EXPECT_EQ("01_004_1_06_2020", Identificadores());
    Executar("UPDATE CALCCOMPL SET TIPOCALCULO = 2");
    EXPECT_EQ("", Identificadores());
}

TEST_F(TTesteS1200, LotacoesPeloTipoDeQuebra)
{
    Calculo(1, 100);
    Calculo(1, 200, {.Depto = 10});
    const auto LPartido = Calculo(1, 300, {.Filial = 2, .Depto = 20});
    Quebra(LPartido, 1, 10, 120, 10);
    Quebra(LPartido, 2, nullptr, 180, 21);
    for (const int LTipo : {0, 2}) {
        TipoDeQuebra(LTipo);
        const auto LItens = Itens();
        // Whatever isn't split by department goes to the establishments.
        EXPECT_EQ(LTipo == 0 ? "1/0:MAT1=300 2/0:MAT1=300" : "1/0:MAT1=100 2/0:MAT1=180", LItens) << LTipo;
    }
    TipoDeQuebra(3);
    const auto LEvento = Carregar();
    EXPECT_EQ("1/0:MAT1=100 2/0:MAT1=180 0/10:MAT1=320", Itens(*LEvento));
    const auto& LLotacoes = LEvento->dmDev[0]->infoPerApur.ideEstabLot;
    EXPECT_EQ("11222333000181/F1 11222333000182/F2 11222333000181/D10",
              LLotacoes[0]->nrInsc + "/" + LLotacoes[0]->codLotacao + " " + LLotacoes[1]->nrInsc + "/" +
                  LLotacoes[1]->codLotacao + " " + LLotacoes[2]->nrInsc + "/" + LLotacoes[2]->codLotacao);
    EXPECT_EQ(0, LLotacoes[2]->qtdDiasAv);
    // A department of kind 2 or 3 has a registration of its own.
    for (const auto& [LTipoDepto, LInscricao] : {std::pair{2, "999"}, {3, "999"}, {4, "11222333000181"}}) {
        Executar("UPDATE SC00_DEPTO SET TIPODEPTO = " + std::to_string(LTipoDepto));
        EXPECT_EQ(LInscricao, Carregar()->dmDev[0]->infoPerApur.ideEstabLot[2]->nrInsc);
    }
}

TEST_F(TTesteS1200, EstabelecimentoQueSoAQuebraConhece)
{
    TipoDeQuebra(2);
    const auto LPartido = Calculo(1, 300);
    Quebra(LPartido, 2, nullptr, 300, 31);
    EXPECT_EQ("2/0:MAT1=300", Itens());
    Executar("UPDATE CALC_QUEBRA SET IDDEPARTAMENTO = 20, COD_DEPTO = 20");
    TipoDeQuebra(3);
    EXPECT_EQ("0/20:MAT1=300", Itens());
}

TEST_F(TTesteS1200, NoDepartamentoOCalculoContaPeloUltimoDiaDoPeriodo)
{
    TipoDeQuebra(3);
    OutroContrato(2, 101);
    // The run of the month ends on the 31st; the second contract's advance ends on the 15th.
    Calculo(1, 100, {.Depto = 10});
    Calculo(1, 200, {.Fim = D(2021, 3, 15), .IdEmpregado = 2, .Depto = 10});
    EXPECT_EQ("0/10:MAT2=200 0/10:MAT1=100", Itens()) << "each run with the contract that ends with it";
    Executar("UPDATE CALCULO SET COD_DEPTO = NULL, IDDEPARTAMENTO = NULL");
    EXPECT_EQ("1/0:MAT2=200 1/0:MAT1=100 1/0:MAT2=200", Itens()) << "in an establishment any date within counts";
}

TEST_F(TTesteS1200, ContratoQueComecaDepoisDoPeriodoFicaDeFora)
{
    Calculo(1, 100);
    Executar("UPDATE EMPREGADOS SET DATA_ADMISSAO = '31.03.2021'");
    EXPECT_EQ("1/0:MAT1=100", Itens());
    Executar("UPDATE EMPREGADOS SET DATA_ADMISSAO = '01.04.2021'");
    EXPECT_EQ("", Itens());
}

TEST_F(TTesteS1200, RecibosDoPrestadorComOContratoNaMesmaPassagem)
{
    Prestador(5, "11122233396", 101);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    Recibo(2, 1235, 5, D(2021, 3, 31), 70, 2);
    Recibo(3, 1236, 5, D(2021, 4, 1), 80);
    Calculo(1, 100);
    const auto LEvento = Carregar();
    EXPECT_EQ("01_000_0_03_2021 97_0000001234_05_03_2021 97_0000001235_31_03_2021", Identificadores(*LEvento));
    EXPECT_EQ("1/0:MAT1=100 1/0:0=60 2/0:0=70", Itens(*LEvento));
    const auto& LDmDev = *LEvento->dmDev[1];
    EXPECT_TRUE(LDmDev.DataInicioOriginal.Vazia());
    EXPECT_EQ(101, LDmDev.codCateg);
    EXPECT_EQ(0, LDmDev.infoPerApur.ideEstabLot[0]->remunPerApur[0]->codCateg);
    EXPECT_EQ(1235, Info.NrReciboRpa);
    EXPECT_EQ(97, Info.TipoFolha());
    EXPECT_EQ(1, Info.Chave) << "of the last run";
}

TEST_F(TTesteS1200, ReciboHerdaAConvocacaoDaUltimaFolha)
{
    Inserir("FP_CONTRAINTERM", {{"IDCONTRAINTERM", 1}, {"IDEMPREGADO", 1}, {"CODIGOESOCIAL", "CONV"}});
    Inserir("FP_DETCONVOCACAO", {{"IDDETCONVOCACAO", 57}, {"IDCONTRAINTERM", 1}});
    Calculo(1, 100, {.Convocacao = 57});
    Prestador(5, "11122233396", 101);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    const auto LEvento = Carregar();
    ASSERT_EQ("01_000_0_0000000057_03_2021 97_0000001234_05_03_2021", Identificadores(*LEvento));
    EXPECT_EQ(1u, LEvento->dmDev[1]->infoPerApur.ideEstabLot[0]->remunPerApur[0]->infoTrabInterm.size());
}

TEST_F(TTesteS1200, ReciboDepoisDeUmAcordoVaiParaOPeriodoAnterior)
{
    Acordo(9, D(2021, 3, 10));
    Complementar(2, 1, D(2020, 6, 1), D(2020, 6, 30), D(2021, 3, 31), 9);
    Calculo(1, 137.5, {.SubTipo = 4, .Inicio = D(2020, 6, 1), .Fim = D(2020, 6, 30)});
    EXPECT_EQ("01_004_1_06_2020", Identificadores()) << "named by the month of the run, not of the event";
    EXPECT_EQ(D(2020, 6, 1), Info.PerRef);
    EXPECT_EQ(D(2021, 3, 1), Info.DataInicio());
    EXPECT_EQ(9, Info.IdAcordo);

    Prestador(5, "11122233396", 101);
    Recibo(1, 1234, 5, D(2021, 3, 5), 60);
    const auto LEvento = Carregar();
    EXPECT_EQ("01_004_1_06_2020", Identificadores(*LEvento)) << "where it finds nothing";
    EXPECT_TRUE(LEvento->dmDev[0]->GerarInfoPerAnt);
    EXPECT_FALSE(LEvento->dmDev[0]->GerarInfoPerApur);
    EXPECT_EQ(5, Info.Chave);
    EXPECT_TRUE(Info.DataInicio().Vazia()) << "a receipt has no month to go back to";
    EXPECT_TRUE(Info.DataFim().Vazia());
    EXPECT_EQ(D(2021, 3, 1), Info.PerRef);
}

TEST_F(TTesteS1200, RescisaoComplementarDeAcordoTemODiaNoIdentificador)
{
    Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '15.01.2019'");
    Calculo(1, 10,
            {.Tipo = "05", .SubTipo = 2, .Inicio = D(2019, 1, 15), .Fim = D(2019, 1, 15), .Pagto = D(2021, 3, 20)});
    Inserir("RESC_COMPL",
            {{"COD_EMPRESA", 7}, {"COD_EMPREGADO", 101}, {"DATA_PGTO", D(2021, 3, 20)}, {"IDINFOGFIP650660", nullptr}});
    EXPECT_EQ("", Identificadores()) << "without an agreement it belongs to the dismissal";
    Acordo(9, D(2021, 3, 10));
    Executar("UPDATE RESC_COMPL SET IDINFOGFIP650660 = 9");
    // Another kind of dismissal that is paid on the same day.
    Calculo(1, 10,
            {.Tipo = "05", .SubTipo = 1, .Inicio = D(2019, 1, 15), .Fim = D(2019, 1, 15), .Pagto = D(2021, 3, 20)});
    EXPECT_EQ("05_002_15_01_2019", Identificadores());
    EXPECT_EQ(6, Info.Chave);
    // That of another contract, or of another day.
    for (const auto& [LOutro, LProprio] : {std::pair{"COD_EMPREGADO = 102", "COD_EMPREGADO = 101"},
                                           {"DATA_PGTO = '19.03.2021'", "DATA_PGTO = '20.03.2021'"}}) {
        Executar(std::string("UPDATE RESC_COMPL SET ") + LOutro);
        EXPECT_EQ("", Identificadores()) << LOutro;
        Executar(std::string("UPDATE RESC_COMPL SET ") + LProprio);
    }
    // Calculated under another employer's code it is a run all the same; there is nothing of it to report here.
    Executar("UPDATE CALCULO SET COD_EMPRESA = 8");
    Executar("UPDATE RESC_COMPL SET COD_EMPRESA = 8");
    Info.Chave = 0;
    EXPECT_EQ("", Identificadores());
    EXPECT_EQ(6, Info.Chave);
    Executar("UPDATE CALCULO SET COD_EMPRESA = 7");
    Executar("UPDATE RESC_COMPL SET COD_EMPRESA = 7");
    Executar("UPDATE TAB_VERBAS SET CODIGO = CODIGO + 100");
    Info.Chave = 0;
    EXPECT_EQ("", Identificadores());
    EXPECT_EQ(0, Info.Chave) << "of rubrics that nobody knows there is no run";
    Executar("UPDATE TAB_VERBAS SET CODIGO = CODIGO - 100");
    Executar("UPDATE CALCULO SET DATA_PAGTO = '01.04.2021'");
    Executar("UPDATE RESC_COMPL SET DATA_PGTO = '01.04.2021'");
    EXPECT_EQ("", Identificadores());
}

TEST_F(TTesteS1200, ALotacaoESeusFilhosCarregamComQualquerLista)
{
    Calculo(1, 100);
    TTarvoESocialCamposS1200 LEvento(Info);
    const TListaCamposModificados LNenhum{"{nenhum}"};
    LEvento.CarregarDados(&LNenhum);
    EXPECT_EQ("01_000_0_03_2021", Identificadores(LEvento));
    EXPECT_EQ("1/0:MAT1=100", Itens(LEvento));
    EXPECT_EQ("", LEvento.IdeTrabalhador.nisTrab);
}

TEST_F(TTesteS1200, OPeriodoAnteriorEOComplementoSeguemALista)
{
    Acordo(9, D(2021, 3, 10));
    Complementar(2, 1, D(2020, 6, 1), D(2020, 6, 30), D(2021, 3, 31), 9);
    Calculo(1, 137.5, {.SubTipo = 4, .Inicio = D(2020, 6, 1), .Fim = D(2020, 6, 30)});
    Prestador(5, "11122233396", 701);
    const TListaCamposModificados LNenhum{"{nenhum}"};
    for (const auto& [LLista, LEsperado] :
         {std::pair{static_cast<const TListaCamposModificados*>(nullptr), "F1 2611-10"}, {&LNenhum, " "}}) {
        TTarvoESocialCamposS1200 LEvento(Info);
        LEvento.CarregarDados(LLista);
        ASSERT_EQ("01_004_1_06_2020", Identificadores(LEvento));
        const auto& LDmDev = *LEvento.dmDev[0];
        const auto& LLotacao = *LDmDev.infoPerAnt.ideAdc[0]->idePeriodo[0]->ideEstabLot[0];
        EXPECT_EQ(LEsperado, LLotacao.codLotacao + " " + LDmDev.infoComplCont.codCBO);
        EXPECT_EQ(137.5, LLotacao.remunPerAnt[0]->itensRemun[0]->vrRubr) << "what lies below loads in any case";
    }
}

/// What holds for every worker of the sample company, in every month in which it calculated or paid.
class TTesteS1200Exemplo : public TTesteComExemplo {
protected:
    using TItens = TListaDeGrupos<remuneracao::TTarvoESocialCamposItensRemunS1200>;

    void ConferirItens(const TItens& AItens)
    {
        EXPECT_FALSE(AItens.empty());
        for (const auto& LItem : AItens) {
            ++FQuantidade;
            EXPECT_TRUE(std::regex_match(LItem->codRubr, FCodigo)) << LItem->codRubr;
            EXPECT_GT(LItem->vrRubr, 0) << LItem->codRubr;
        }
    }
    void Conferir(const remuneracao::TTarvoESocialCamposDmDevS1200& ADmDev)
    {
        EXPECT_TRUE(ADmDev.infoPerApur.ideEstabLot.empty() != ADmDev.infoPerAnt.ideAdc.empty()) << ADmDev.ideDmDev;
        for (const auto& LLotacao : ADmDev.infoPerApur.ideEstabLot) {
            EXPECT_FALSE(LLotacao->remunPerApur.empty());
            for (const auto& LRemuneracao : LLotacao->remunPerApur) {
                ConferirItens(LRemuneracao->itensRemun);
                Mostrar("infoTrabInterm", !LRemuneracao->infoTrabInterm.empty());
                Mostrar("recibo", LRemuneracao->matricula == "0");
                Mostrar("exposto", LRemuneracao->infoAgNocivo.grauExp > 1);
                Mostrar("departamento", LRemuneracao->IdDepto != 0);
                Mostrar("estabelecimento", LRemuneracao->IdFilial != 0);
                for (const auto& LOperadora : LRemuneracao->InfoSaudeColet.detOper)
                    Mostrar("detPlano", !LOperadora->detPlano.empty());
            }
        }
        for (const auto& LAcordo : ADmDev.infoPerAnt.ideAdc)
            for (const auto& LPeriodo : LAcordo->idePeriodo)
                for (const auto& LLotacao : LPeriodo->ideEstabLot)
                    for (const auto& LRemuneracao : LLotacao->remunPerAnt) {
                        ConferirItens(LRemuneracao->itensRemun);
                        Mostrar(LAcordo->tpAcConv == 6 ? "rescisão complementar" : "acordo", true);
                    }
    }
    void Mostrar(const char* ARamo, bool AMostra)
    {
        if (AMostra)
            FRamos.insert(ARamo);
    }

    const std::regex FCodigo{"[0-9]{5}P[0-9]{3}I[0-9]{3}F[0-9]{3}C[0-9]{3}(RPA)?"};
    std::set<std::string> FRamos;
    int FQuantidade = 0;
};

TEST_F(TTesteS1200Exemplo, TodoItemTemCodigoBemFormadoEValorPositivo)
{
    const auto LCasos = Conexao().Consultar(R"(SELECT MESES.IDEMPRESA, MESES.CPF, MESES.MES
FROM (
  SELECT EMPREGADOS.IDEMPRESA, EMPREGADOS.CPF, CALCULO.DATA_INICIO AS MES
  FROM CALCULO
  JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = CALCULO.IDEMPREGADO)
  UNION SELECT EMPREGADOS.IDEMPRESA, EMPREGADOS.CPF, CALCULO.DATA_PAGTO
  FROM CALCULO
  JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = CALCULO.IDEMPREGADO)
  UNION SELECT SC00_FILIAL.IDEMPRESA, PREST_SERVICO.CPF, RPA.DATAPAGTO
  FROM RPA
  JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = RPA.IDFILIAL)
  JOIN PREST_SERVICO ON (PREST_SERVICO.IDPRESTSERVICO = RPA.IDPRESTSERVICO)
) AS MESES)");
    std::set<std::tuple<std::int64_t, std::string, TDateTime>> LMeses;
    for (std::size_t LLinha = 0; LLinha < LCasos.QuantidadeDeLinhas(); ++LLinha)
        LMeses.emplace(LCasos.Inteiro(LLinha, 0), LCasos.Texto(LLinha, 1), PrimeiroDiaDoMes(LCasos.Data(LLinha, 2)));
    for (const auto& [LIdEmpresa, LCpf, LMes] : LMeses)
        for (const auto LIndApuracao : {tpIndApuracao::Mensal, tpIndApuracao::Anual}) {
            TTarvoESocialCamposS1200IOP LInfo;
            LInfo.SetIdEmpresa(LIdEmpresa);
            LInfo.SetCpf(LCpf);
            LInfo.SetDataInicio(LMes);
            LInfo.SetDataFim(UltimoDiaDoMes(LMes));
            LInfo.SetIndApuracao(LIndApuracao);
            TTarvoESocialCamposS1200 LEvento(LInfo);
            LEvento.CarregarDados();
            for (const auto& LDmDev : LEvento.dmDev)
                Conferir(*LDmDev);
            Mostrar("procJudTrab", !LEvento.IdeTrabalhador.procJudTrab.empty());
            Mostrar("remunOutrEmpr", !LEvento.IdeTrabalhador.InfoMV.remunOutrEmpr.empty());
            Mostrar("infoComplem", LEvento.IdeTrabalhador.infoComplem.PossuiInformacao());
            Mostrar("infoInterm", LEvento.IdeTrabalhador.infoInterm.qtdDiasInterm > 0);

            // A second load adds the same demonstratives behind the first.
            const auto LQuantos = LEvento.dmDev.size();
            LEvento.CarregarDados();
            ASSERT_EQ(2 * LQuantos, LEvento.dmDev.size()) << LCpf;
            for (std::size_t LIndice = 0; LIndice < LQuantos; ++LIndice)
                EXPECT_EQ(LEvento.dmDev[LIndice]->ToJson().AsJSON(),
                          LEvento.dmDev[LQuantos + LIndice]->ToJson().AsJSON());
        }
    EXPECT_GT(FQuantidade, 100);
    const std::set<std::string> LTodos{"acordo",      "departamento", "detPlano",      "estabelecimento",
                                       "exposto",     "infoComplem",  "infoInterm",    "infoTrabInterm",
                                       "procJudTrab", "recibo",       "remunOutrEmpr", "rescisão complementar"};
    EXPECT_EQ(LTodos, FRamos) << "the sample company shows every branch";
}

// Rows of the sample's rubrics at random, each prefix of a list against the one before it.
TEST_F(TTesteS1200Exemplo, SoAPrimeiraLinhaDecideDoItem)
{
    const auto LVerbas = Conexao().Consultar("SELECT IDVERBA, CODIGO, FORMULA, HORAS FROM TAB_VERBAS "
                                             "WHERE CODIGO IN (1, 3, 9, 17, 26, 46, 59) ORDER BY CODIGO");
    ASSERT_EQ(7u, LVerbas.QuantidadeDeLinhas());
    TTarvoESocialCamposS1200IOP LInfo;
    LInfo.SetIdEmpresa(1);
    LInfo.SetTipoEmpregado(TTipoTrabalhador::Empregado);
    LInfo.SetDataInicio(D(2021, 3, 1));
    std::mt19937 LSorteio(20210301);
    const auto Sortear = [&](std::size_t AQuantos) { return std::size_t{LSorteio()} % AQuantos; };
    const auto Texto = [](const TItens& AItens) {
        std::vector<std::string> LTextos;
        for (const auto& LItem : AItens)
            LTextos.push_back(LItem->ToJson().AsJSON());
        return LTextos;
    };
    for (int LVez = 0; LVez < 40; ++LVez) {
        LInfo.SetIdEmpregado(LVez % 2 == 0 ? 1 : 8); // with and without a bond
        std::vector<remuneracao::TDadosCalculo> LLinhas;
        std::vector<std::string> LAntes;
        std::size_t LVerba = 0;
        while (LLinhas.size() < 6) {
            if (LLinhas.empty() || Sortear(2) == 0)
                LVerba = Sortear(LVerbas.QuantidadeDeLinhas());
            remuneracao::TDadosCalculo LDados;
            LDados.IdVerba = LVerbas.Inteiro(LVerba, 0);
            LDados.Cod_Verba = static_cast<std::int32_t>(LVerbas.Inteiro(LVerba, 1));
            LDados.Formula = LVerbas.Texto(LVerba, 2);
            LDados.Horas = LVerbas.Texto(LVerba, 3);
            LDados.Valor = std::array{-12.5, 0.0, 0.01, 30.0}[Sortear(4)];
            LDados.Base = -LDados.Valor;
            LLinhas.push_back(LDados);

            TItens LItens;
            remuneracao::GerarListaItensRemun(LInfo, LLinhas, nullptr, LItens);
            auto LAgora = Texto(LItens);
            if (LItens.size() > LAntes.size()) {
                ASSERT_EQ(LAntes.size() + 1, LItens.size());
                EXPECT_GT(LItens.back()->vrRubr, 0);
                EXPECT_TRUE(std::regex_match(LItens.back()->codRubr, FCodigo)) << LItens.back()->codRubr;
            } else {
                ASSERT_EQ(LAntes.size(), LItens.size()) << "no item goes again";
            }
            // Only the last item may have grown.
            for (std::size_t LIndice = 0; LIndice + 1 < LAntes.size(); ++LIndice)
                EXPECT_EQ(LAntes[LIndice], LAgora[LIndice]);
            LAntes = std::move(LAgora);
        }
    }
}

} // namespace
} // namespace tarvo::testes
