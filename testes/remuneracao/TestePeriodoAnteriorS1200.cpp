#include "imports/UnOvraExcecoes.h"
#include "remuneracao/UnCenarioDeFolha.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposinfoPerAntS1200.h"

namespace tarvo::testes {
namespace {

using remuneracao::TTarvoESocialCamposinfoPerAntS1200;

/// An agreement of 10 March 2021 for June 2020; the parameter object stands on its run as the event leaves it there.
class TTestePeriodoAnterior : public TTesteDeFolha {
protected:
    void SetUp() override
    {
        TTesteDeFolha::SetUp();
        Verba(1, "1A");
        Acordo(9, D(2021, 3, 10));
        Complementar(1, 1, JUNHO, D(2020, 6, 30), PAGTO, 9);
        Info.SetListaIdsEmpregado({1});
        Info.SetTipoFolha(1);
        Info.SetSubTipoFolha(4);
        Info.SetTipoFolhaCompl(1);
        Info.SetDataPagto(PAGTO);
        Info.Chave = 5;
        Info.IdAcordo = 9;
        Info.PerRef = JUNHO;
    }

    /// A row of the complementary calculation.
    std::int64_t Diferenca(double AValor, TLinha ALinha)
    {
        ALinha.SubTipo = 4;
        if (ALinha.Inicio == TLinha().Inicio)
            ALinha.Inicio = JUNHO;
        if (ALinha.Fim == TLinha().Fim)
            ALinha.Fim = D(2020, 6, 30);
        return Calculo(1, AValor, ALinha);
    }
    std::int64_t Diferenca(double AValor) { return Diferenca(AValor, TLinha()); }

    std::unique_ptr<TTarvoESocialCamposinfoPerAntS1200> Carregar(const TListaCamposModificados* ALista = nullptr)
    {
        auto LGrupo = std::make_unique<TTarvoESocialCamposinfoPerAntS1200>(Info);
        LGrupo->CarregarDados(ALista);
        EXPECT_EQ(1u, LGrupo->ideAdc.size()) << "the agreement stands in the list in any case";
        EXPECT_EQ(LGrupo->possuiInformacao, !LGrupo->ideAdc[0]->idePeriodo.empty());
        return LGrupo;
    }
    /// "establishment/department:registration=value" of each item.
    std::string Itens(const TListaCamposModificados* ALista = nullptr)
    {
        const auto LGrupo = Carregar(ALista);
        std::string LTexto;
        for (const auto& LPeriodo : LGrupo->ideAdc[0]->idePeriodo)
            for (const auto& LLotacao : LPeriodo->ideEstabLot)
                for (const auto& LRemuneracao : LLotacao->remunPerAnt)
                    for (const auto& LItem : LRemuneracao->itensRemun)
                        LTexto += (LTexto.empty() ? "" : " ") + std::to_string(LLotacao->IdFilial) + "/" +
                                  std::to_string(LLotacao->IdDepto) + ":" + LRemuneracao->matricula + "=" +
                                  FloatToStr(LItem->vrRubr);
        return LTexto;
    }

    const TDateTime JUNHO = D(2020, 6, 1);
    const TDateTime PAGTO = D(2021, 3, 31);
};

TEST_F(TTestePeriodoAnterior, OAcordoEOMesDeReferencia)
{
    EXPECT_FALSE(Carregar()->possuiInformacao) << "nothing calculated in the month";
    Diferenca(137.5);
    Executar("UPDATE FP_INFOGFIP650660 SET CARACTERISTICA = 3, DTEFACCONV = '01.05.2020'");
    const auto LGrupo = Carregar();
    ASSERT_TRUE(LGrupo->possuiInformacao);
    const auto& LAcordo = *LGrupo->ideAdc[0];
    EXPECT_EQ(D(2021, 3, 10), LAcordo.dtAcConv);
    EXPECT_EQ(D(2020, 5, 1), LAcordo.dtEfAcConv);
    EXPECT_EQ(PAGTO, LAcordo.compAcConv);
    EXPECT_EQ(3, LAcordo.tpAcConv);
    EXPECT_EQ("Acordo", LAcordo.dsc);
    EXPECT_EQ("", LAcordo.remunSuc);
    EXPECT_EQ(JUNHO, LAcordo.idePeriodo[0]->perRef);
    EXPECT_EQ("F1", LAcordo.idePeriodo[0]->ideEstabLot[0]->codLotacao);
    EXPECT_EQ("1/0:MAT1=137,5", Itens());
    EXPECT_EQ(D(2021, 3, 1), Info.DataInicio()) << "the month of the event stays";
    EXPECT_EQ(1, Info.IdEmpregado());
}

TEST_F(TTestePeriodoAnterior, SoVeOMesDeReferencia)
{
    Diferenca(10);
    const struct {
        TDateTime PerRef;
        bool Conta;
    } CASOS[] = {{D(2020, 6, 30), true}, {D(2020, 5, 31), false}, {D(2020, 7, 1), false}};
    for (const auto& [LPerRef, LConta] : CASOS) {
        Info.PerRef = LPerRef;
        EXPECT_EQ(LConta ? "1/0:MAT1=10" : "", Itens()) << LPerRef.Valor();
    }
    // A calculation that crosses the month's limit is seen from both sides.
    Executar("UPDATE CALCCOMPLPER SET DATA_FIM = '31.07.2020'");
    Executar("UPDATE CALCULO SET DATA_INICIO = '20.06.2020', DATA_FIM = '10.07.2020'");
    for (const auto& LPerRef : {D(2020, 6, 20), D(2020, 7, 10)}) {
        Info.PerRef = LPerRef;
        EXPECT_EQ("1/0:MAT1=10", Itens()) << LPerRef.Valor();
    }
    Executar("UPDATE FP_INFOGFIP650660 SET DATAOCORRENCIA = '01.04.2021'");
    EXPECT_EQ("", Itens()) << "an agreement of another month than the event's";
}

TEST_F(TTestePeriodoAnterior, RescisaoComplementarVaiParaOMesDaRescisao)
{
    Info.SetTipoFolha(5);
    Info.SetSubTipoFolha(2);
    Info.Chave = 6;
    const TLinha LComplementar{
        .Tipo = "05", .SubTipo = 2, .Inicio = D(2020, 6, 20), .Fim = D(2020, 6, 20), .Pagto = PAGTO};
    Calculo(1, 50, LComplementar);
    Info.PerRef = D(2020, 6, 20);
    const auto PerRef = [&] { return Carregar()->ideAdc[0]->idePeriodo.at(0)->perRef; };
    EXPECT_EQ(D(2020, 6, 20), PerRef()) << "without a normal dismissal";
    EXPECT_EQ(6, Carregar()->ideAdc[0]->tpAcConv) << "whatever the agreement's kind";
    EXPECT_EQ("1/0:MAT1=50", Itens());
    Calculo(1, 999, {.Tipo = "05", .Inicio = D(2017, 3, 1), .Fim = D(2017, 3, 15), .IdEmpregado = 2});
    EXPECT_EQ(D(2020, 6, 20), PerRef()) << "that of another contract doesn't count";
    Calculo(1, 999,
            {.Tipo = "05", .SubTipo = 1, .Inicio = D(2018, 1, 1), .Fim = D(2018, 1, 15), .Pagto = D(2018, 1, 20)});
    EXPECT_EQ(D(2020, 6, 20), PerRef()) << "nor a complementary one";
    Calculo(1, 999, {.Tipo = "05", .Inicio = D(2019, 3, 1), .Fim = D(2019, 3, 15)});
    EXPECT_EQ(D(2019, 3, 1), PerRef());
    Calculo(1, 999, {.Inicio = D(2016, 1, 1), .Fim = D(2016, 1, 31)});
    EXPECT_EQ(D(2019, 3, 1), PerRef()) << "nor a payroll";
    // A dismissed contract without a complementary dismissal (2) paid on the day: neither another kind of it, nor a
    // payroll, nor one of another day or of another contract stands for it.
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2}, {"IDEMPRESA", 1}, {"CODIGOESOCIAL", "MAT2"}});
    auto LOutra = LComplementar;
    LOutra.IdEmpregado = 2;
    LOutra.SubTipo = 1;
    Calculo(1, 50, LOutra);
    LOutra.SubTipo = 2;
    LOutra.Tipo = "01";
    Calculo(1, 999, LOutra);
    LOutra.Tipo = "05";
    LOutra.Pagto = PAGTO + 30;
    Calculo(1, 999, LOutra);
    Info.SetListaIdsEmpregado({2});
    EXPECT_EQ(D(2020, 6, 20), PerRef());
    Info.SetListaIdsEmpregado({1});
    Info.Chave = 5;
    Info.SetTipoFolha(1);
    Info.SetSubTipoFolha(4);
    Info.PerRef = JUNHO;
    Diferenca(7);
    EXPECT_EQ(JUNHO, PerRef()) << "only a dismissal moves it";
    EXPECT_EQ(2, Carregar()->ideAdc[0]->tpAcConv);
}

TEST_F(TTestePeriodoAnterior, LotacoesPeloTipoDeQuebra)
{
    Diferenca(100);
    TipoDeQuebra(2);
    EXPECT_EQ("1/0:MAT1=100", Itens()) << "nothing was calculated in the other establishment";
    // Nor does a contract stand in the establishment of another one.
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2}, {"IDEMPRESA", 1}, {"CODIGOESOCIAL", "MAT2"}});
    Inserir("FP_CALCCOMPLEMPREG", {{"IDCALCCOMPL", 1}, {"IDEMPREGADO", 2}});
    Diferenca(50, {.IdEmpregado = 2, .Filial = 2});
    Info.SetListaIdsEmpregado({1, 2});
    EXPECT_EQ("1/0:MAT1=100 2/0:MAT2=50", Itens());
    Info.SetListaIdsEmpregado({1});
    TipoDeQuebra(0);
    Diferenca(200, {.Depto = 10});
    const auto LPartida = Diferenca(300, {.Filial = 2, .Depto = 20});
    Quebra(LPartida, 1, 10, 120, 10);
    Quebra(LPartida, 2, nullptr, 180, 20);
    // Without a split the whole rows by their establishment.
    EXPECT_EQ("1/0:MAT1=300 2/0:MAT1=300", Itens());
    // By establishment the split form reads the rows without a department, with no test of the establishment.
    TipoDeQuebra(2);
    EXPECT_EQ("1/0:MAT1=280 2/0:MAT1=280", Itens());
    TipoDeQuebra(3);
    EXPECT_EQ("1/0:MAT1=280 2/0:MAT1=280 0/10:MAT1=320", Itens());
}

TEST_F(TTestePeriodoAnterior, DepartamentoDeInscricaoPropriaContaComoEstabelecimento)
{
    TipoDeQuebra(3);
    Diferenca(100, {.Tipo = "03", .Depto = 10});
    Info.SetTipoFolha(3);
    const struct {
        int TipoDepto;
        const char* Itens;
    } CASOS[] = {{1, "0/10:MAT1=100"}, {2, "1/0:MAT1=100"}, {3, "1/0:MAT1=100"}, {4, "0/10:MAT1=100"}};
    for (const auto& [LTipoDepto, LItens] : CASOS) {
        Executar("UPDATE SC00_DEPTO SET TIPODEPTO = " + std::to_string(LTipoDepto));
        EXPECT_EQ(LItens, Itens()) << LTipoDepto;
    }
    // A payroll that is split by department has nothing at the establishment.
    Executar("UPDATE CALCULO SET TIPO = '01'");
    Executar("UPDATE SC00_DEPTO SET TIPODEPTO = 3");
    Info.SetTipoFolha(1);
    EXPECT_EQ("", Itens());
}

TEST_F(TTestePeriodoAnterior, NoDepartamentoContaOMesInteiroENaoHaTesteDeAdmissao)
{
    TipoDeQuebra(3);
    Diferenca(100, {.Fim = D(2020, 6, 15), .Depto = 10});
    Info.PerRef = D(2020, 6, 10);
    EXPECT_EQ("0/10:MAT1=100", Itens());
    Executar("UPDATE EMPREGADOS SET DATA_ADMISSAO = '01.05.2021'");
    EXPECT_EQ("0/10:MAT1=100", Itens());
    Info.SetListaIdsEmpregado({});
    EXPECT_EQ("", Itens());
    Info.SetListaIdsEmpregado({1});
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 2}, {"EMPRESA", 8}});
    Executar("UPDATE SC00_FILIAL SET IDEMPRESA = 2");
    Executar("UPDATE CALCULO SET COD_EMPRESA = 8");
    EXPECT_EQ("", Itens()) << "the establishments of another employer";
}

TEST_F(TTestePeriodoAnterior, OQueCadaContratoLeva)
{
    // The regime at the end of the event's month counts, not that of the earlier one.
    for (const auto& [LInicio, LFim, LInd] :
         {std::tuple{D(2018, 1, 1), TValorSql(D(2021, 3, 30)), "1"}, {D(2021, 3, 31), TValorSql(nullptr), "2"}})
        Inserir("SC00_FILIALCFG", {{"IDFILIAL", 1},
                                   {"ORIGEM", 90},
                                   {"ESPECIE", 60},
                                   {"TP", 1},
                                   {"DATAINICIO", LInicio},
                                   {"DATAFIM", LFim},
                                   {"INFORMACAO1", LInd}});
    Inserir("CARGOS", {{"IDEMPREGADO", 1}, {"DATA", D(2021, 1, 1)}, {"OCORRENCIA", "4-Exposição"}});
    Inserir("FP_CONTRAINTERM", {{"IDCONTRAINTERM", 57},
                                {"IDEMPREGADO", 1},
                                {"CODIGOESOCIAL", "CONV"},
                                {"DATAINICIO", D(2021, 3, 5)},
                                {"DATAFIM", D(2021, 3, 7)}});
    Inserir("FP_DETCONVOCACAO", {{"IDDETCONVOCACAO", 57}, {"IDCONTRAINTERM", 57}});
    Diferenca(100);
    Diferenca(-40);
    Diferenca(0.01);
    const auto LGrupo = Carregar();
    const auto& LRemuneracao = *LGrupo->ideAdc[0]->idePeriodo[0]->ideEstabLot[0]->remunPerAnt[0];
    EXPECT_EQ(2, LRemuneracao.indSimples);
    EXPECT_EQ(4, LRemuneracao.infoAgNocivo.grauExp);
    EXPECT_TRUE(LRemuneracao.infoTrabInterm.empty());
    ASSERT_EQ(1u, LRemuneracao.itensRemun.size());
    EXPECT_DOUBLE_EQ(60.01, LRemuneracao.itensRemun[0]->vrRubr);

    // A provider has nothing here.
    Info.SetTipoEmpregado(TTipoTrabalhador::Prestador);
    remuneracao::TTarvoESocialCamposRemunPerAnt LPrestador(Info);
    LPrestador.IdFilial = 1;
    LPrestador.CarregarDados();
    EXPECT_EQ("", LPrestador.matricula);
    EXPECT_EQ(2, LPrestador.indSimples);
    EXPECT_TRUE(LPrestador.itensRemun.empty());
    EXPECT_EQ(0, LPrestador.infoAgNocivo.grauExp);
}

TEST_F(TTestePeriodoAnterior, AListaEscolheOsGruposAteALotacao)
{
    Diferenca(100);
    const struct {
        const char* Guid;
        const char* Dsc;
        const char* NrInsc;
    } CASOS[] = {
        {"{nenhum}", "", ""},
        {"{D11CC5E8-A4DA-48EE-9B44-60EDAACFE982}", "Acordo", ""},
        {"{4F4E70CA-8CEC-4C54-96CA-D2574558832C}", "", "11222333000181"},
    };
    for (const auto& LCaso : CASOS) {
        const TListaCamposModificados LLista{LCaso.Guid};
        const auto LGrupo = Carregar(&LLista);
        ASSERT_TRUE(LGrupo->possuiInformacao);
        EXPECT_EQ(LCaso.Dsc, LGrupo->ideAdc[0]->dsc);
        EXPECT_EQ(LCaso.NrInsc, LGrupo->ideAdc[0]->idePeriodo[0]->ideEstabLot[0]->nrInsc);
        EXPECT_EQ("1/0:MAT1=100", Itens(&LLista)) << "below a lotação everything loads";
    }
}

TEST_F(TTestePeriodoAnterior, ParametroQueFaltaEhDito)
{
    remuneracao::TTarvoESocialCamposS1200IOP LVazio;
    EXPECT_THROW(remuneracao::TTarvoESocialCamposIdePeriodoS1200{LVazio}, Exception) << "reads the employer at once";
    LVazio.SetIdEmpresa(1);
    try {
        TTarvoESocialCamposinfoPerAntS1200(LVazio).CarregarDados();
        FAIL() << "without the day of payment";
    } catch (const Exception& LErro) {
        EXPECT_STREQ("Parâmetro da classe IOP DataPagtoInst Não informado na classes eSocialCampos", LErro.what());
    }
}

} // namespace
} // namespace tarvo::testes
