#include "imports/UnOvraExcecoes.h"
#include "remuneracao/UnCenarioDeFolha.h"
#include "remuneracao/s1200/UnTarvoESocialCamposIdeTrabalhadorS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposinfoComplCont.h"

namespace tarvo::testes {
namespace {

using remuneracao::TTarvoESocialCamposIdeTrabalhadorS1200;
using remuneracao::TTarvoESocialCamposinfoComplCont;
using remuneracao::TTarvoESocialCamposS1200IOP;

class TTesteIdeTrabalhador : public TTesteDeFolha {
protected:
    std::unique_ptr<TTarvoESocialCamposIdeTrabalhadorS1200> Carregar()
    {
        auto LGrupo = std::make_unique<TTarvoESocialCamposIdeTrabalhadorS1200>(Info);
        LGrupo->CarregarDados();
        return LGrupo;
    }

    void Rendimento(const char* AInscricao, double AValor, TCamposSql AOutros = {})
    {
        Inserir("RENDIMENTOS", {{"COD_EMPRESA", 7},
                                {"COD_EMPREGADO", 101},
                                {"TIPOREND", "INSS"},
                                {"TIPOFOLHA", "01"},
                                {"TPINSCRICAO", 1},
                                {"INSCRICAO", AInscricao},
                                {"IDESOCIALTABELA", 101},
                                {"ORDEMCALCULO", 1},
                                {"DATA_INICIO", D(2021, 3, 31)},
                                {"VALOR", AValor}});
        for (const auto& [LColuna, LValor] : AOutros)
            Executar(std::string("UPDATE RENDIMENTOS SET ") + LColuna + " = " + LValor.Texto() +
                     " WHERE INSCRICAO = '" + AInscricao + "'");
    }
    void OutroRendimento(std::int64_t AIdRpa, int AOrigem, const char* AInscricao, double AValor,
                         TValorSql ACategoria = 101)
    {
        Inserir("FP_RPAOUTROSREND", {{"IDRPA", AIdRpa},
                                     {"IDPRESTSERVICO", 5},
                                     {"DATAPAGTO", D(2021, 3, 5)},
                                     {"ORIGEMRENDIMENTO", AOrigem},
                                     {"TPINSCRICAO", 1},
                                     {"INSCRICAO", AInscricao},
                                     {"IDESOCIALTABELA", ACategoria},
                                     {"VALOR", AValor}});
    }
    std::string OutrosRendimentos()
    {
        const auto LGrupo = Carregar();
        std::string LTexto;
        for (const auto& LItem : LGrupo->InfoMV.remunOutrEmpr)
            LTexto += (LTexto.empty() ? "" : " ") + LItem->nrInsc + ":" + std::to_string(LItem->codCateg) + "=" +
                      FloatToStr(LItem->vlrRemunOE);
        return LTexto;
    }
};

TEST_F(TTesteIdeTrabalhador, ParametroNaoInformadoDizQualEh)
{
    TTarvoESocialCamposS1200IOP LInfo;
    const auto Mensagem = [](auto ALer) -> std::string {
        try {
            ALer();
        } catch (const Exception& LErro) {
            return LErro.what();
        }
        return "";
    };
    const auto Esperada = [](const std::string& ANome) {
        return "Parâmetro da classe IOP " + ANome + " Não informado na classes eSocialCampos";
    };
    EXPECT_EQ(Esperada("Cpf"), Mensagem([&] { TTarvoESocialCamposIdeTrabalhadorS1200 LGrupo(LInfo); }));
    // Two of the names aren't the property's.
    EXPECT_EQ(Esperada("Datafim"), Mensagem([&] { LInfo.DataFim(); }));
    EXPECT_EQ(Esperada("DataPagtoInst"), Mensagem([&] { LInfo.DataPagto(); }));
    EXPECT_EQ(Esperada("IdEmpregado"), Mensagem([&] { LInfo.IdEmpregado(); }));
    LInfo.SetIdEmpregado(0);
    LInfo.SetCpf("");
    EXPECT_EQ("", Mensagem([&] { LInfo.IdEmpregado(); }));
    EXPECT_EQ("", Mensagem([&] { TTarvoESocialCamposIdeTrabalhadorS1200 LGrupo(LInfo); }));
    LInfo.SetIdEmpresa(1);
    TTarvoESocialCamposIdeTrabalhadorS1200 LGrupo(LInfo);
    EXPECT_EQ(Esperada("DataInicio"), Mensagem([&] { LGrupo.CarregarDados(); }));
}

TEST_F(TTesteIdeTrabalhador, NisDoContratoVigenteDoPrestadorOuDeQualquerContrato)
{
    EXPECT_EQ("170", Carregar()->nisTrab);
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2}, {"IDEMPRESA", 2}, {"CPF", CPF}, {"PIS", "070"}});
    EXPECT_EQ("170", Carregar()->nisTrab) << "not that of another employer's contract";
    Prestador(5, "11122233396", 701);
    EXPECT_EQ("170", Carregar()->nisTrab) << "a contract that goes on comes before the provider";
    for (const auto& [LDemissao, LSemPrestador, LComPrestador] :
         {std::tuple{D(2021, 3, 2), "170", "170"}, {D(2021, 3, 1), "170", "999"}, {D(2020, 1, 1), "170", "999"}}) {
        Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = " + TValorSql(LDemissao).Texto());
        Executar("DELETE FROM PREST_SERVICO");
        EXPECT_EQ(LSemPrestador, Carregar()->nisTrab);
        Prestador(5, "11122233396", 701);
        EXPECT_EQ(LComPrestador, Carregar()->nisTrab);
    }
    EXPECT_EQ(CPF, Carregar()->cpfTrab);
    // A contract whose CPF is written in another way isn't found.
    Executar("UPDATE EMPREGADOS SET CPF = '11122233396', DATA_DEMISSAO = NULL");
    EXPECT_EQ("999", Carregar()->nisTrab);
    Info.SetCpf(std::string(" ") + CPF);
    EXPECT_EQ("999", Carregar()->nisTrab) << "blanks around it don't hide a provider";
}

TEST_F(TTesteIdeTrabalhador, IndicadorDoContratoVenceOMaior)
{
    EXPECT_EQ(3, Carregar()->InfoMV.indMV) << "nothing known";
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 3}, {"IDEMPRESA", 2}, {"CPF", CPF}, {"INDICADORDESCINSS", 1}});
    EXPECT_EQ(3, Carregar()->InfoMV.indMV) << "another employer's contract";
    Executar("UPDATE EMPREGADOS SET INDICADORDESCINSS = 1");
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 2}, {"IDEMPRESA", 1}, {"CPF", CPF}, {"INDICADORDESCINSS", 2}});
    EXPECT_EQ(2, Carregar()->InfoMV.indMV);
    for (const auto& [LDemissao, LEsperado] : {std::pair{D(2021, 3, 1), 2}, {D(2021, 2, 28), 1}}) {
        Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = " + TValorSql(LDemissao).Texto() + " WHERE IDEMPREGADO = 2");
        EXPECT_EQ(LEsperado, Carregar()->InfoMV.indMV);
    }
    Executar("UPDATE EMPREGADOS SET INDICADORDESCINSS = 0");
    const auto LGrupo = Carregar();
    EXPECT_EQ(3, LGrupo->InfoMV.indMV) << "an indicator of 0 decides nothing";
    EXPECT_TRUE(LGrupo->InfoMV.PossuiInformacao());
}

TEST_F(TTesteIdeTrabalhador, IndicadorPelosOutrosRendimentosEPeloInssDosRecibos)
{
    Prestador(5, "11122233396", 701);
    Recibo(1, 10, 5, D(2021, 3, 31), 100);
    Inserir("RPATPVALOR", {{"IDRPATPVALOR", 2}, {"SEQUENCIA", 2}, {"NOME", "VLRINSS"}});
    const auto ComInss = [](double AValor) {
        Executar("DELETE FROM RPAVALOR WHERE IDRPATPVALOR = 2");
        Inserir("RPAVALOR", {{"IDRPA", 1}, {"IDRPATPVALOR", 2}, {"VALOR", AValor}});
    };
    const int LEsperados[3][2] = {{3, 2}, {0, 1}, {3, 2}}; // by number of incomes: without and with INSS
    for (int LQuantidade = 0; LQuantidade < 3; ++LQuantidade) {
        ComInss(0);
        const auto LGrupo = Carregar();
        EXPECT_EQ(LEsperados[LQuantidade][0], LGrupo->InfoMV.indMV) << LQuantidade;
        EXPECT_EQ(LGrupo->InfoMV.indMV > 0, LGrupo->InfoMV.PossuiInformacao());
        ComInss(0.01);
        EXPECT_EQ(LEsperados[LQuantidade][1], Carregar()->InfoMV.indMV) << LQuantidade;
        OutroRendimento(1, 2, "333", 1);
    }
    // Another provider's incomes aren't this worker's.
    Executar("DELETE FROM FP_RPAOUTROSREND");
    OutroRendimento(1, 2, "333", 1);
    OutroRendimento(1, 2, "444", 1);
    EXPECT_EQ(2, Carregar()->InfoMV.indMV);
    Prestador(6, "99988877766", 701);
    Executar("UPDATE FP_RPAOUTROSREND SET IDPRESTSERVICO = 6 WHERE INSCRICAO = '444'");
    EXPECT_EQ(1, Carregar()->InfoMV.indMV);
    Executar("UPDATE FP_RPAOUTROSREND SET IDPRESTSERVICO = 5");
    // Nor is an income of another month.
    Executar("UPDATE FP_RPAOUTROSREND SET DATAPAGTO = '01.04.2021' WHERE INSCRICAO = '444'");
    EXPECT_EQ(1, Carregar()->InfoMV.indMV);
    Executar("UPDATE FP_RPAOUTROSREND SET DATAPAGTO = '05.03.2021'");
    // Neither another month's receipt nor another employer's counts.
    for (const char* LMudanca : {"UPDATE RPA SET DATAPAGTO = '01.04.2021'", "UPDATE SC00_FILIAL SET IDEMPRESA = 2"}) {
        Executar("UPDATE RPA SET DATAPAGTO = '31.03.2021'");
        EXPECT_EQ(2, Carregar()->InfoMV.indMV);
        Executar(LMudanca);
        EXPECT_EQ(3, Carregar()->InfoMV.indMV);
    }
}

TEST_F(TTesteIdeTrabalhador, OutrosRendimentosDosContratos)
{
    Rendimento("333", 1500);
    Rendimento("444", 700, {{"ORDEMCALCULO", 2}, {"IDESOCIALTABELA", nullptr}});
    Rendimento("555", 1, {{"TIPOREND", "IRRF"}});
    Rendimento("666", 1, {{"DATA_INICIO", D(2021, 4, 1)}});
    Rendimento("777", 1, {{"DATA_FIM", D(2021, 2, 28)}});
    Rendimento("888", 2, {{"DATA_FIM", D(2021, 3, 1)}});
    Rendimento("999", 13, {{"TIPOFOLHA", "03"}});
    Rendimento("11222333000181", 5);
    Rendimento("11222333000182", 6);
    Rendimento("100", 1, {{"COD_EMPREGADO", 100}});
    // Another company of the suite is another employer; its own contracts' incomes, one under the same code, the other
    // of the same CPF, are no concern of this one.
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 2}, {"EMPRESA", 8}, {"CNPJ", "888"}});
    Inserir("EMPREGADOS",
            {{"IDEMPREGADO", 2}, {"IDEMPRESA", 2}, {"COD_EMPRESA", 8}, {"COD_EMPREGADO", 102}, {"CPF", CPF}});
    Rendimento("101", 1, {{"COD_EMPRESA", 8}});
    Rendimento("102", 1, {{"COD_EMPRESA", 8}, {"COD_EMPREGADO", 102}});
    EXPECT_EQ("333:101=1500 444:-2=700 888:101=2", OutrosRendimentos());
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 2 WHERE IDESOCIALTABELA = 101");
    EXPECT_EQ("333:-2=1500 444:-2=700 888:-2=2", OutrosRendimentos()) << "a code of another table is no category";
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 1 WHERE IDESOCIALTABELA = 101");
    // Withheld in order: only the incomes up to this employer's turn.
    Executar("UPDATE EMPREGADOS SET INDICADORDESCINSS = 2, ORDEMDESCINSS = 1");
    EXPECT_EQ("333:101=1500 888:101=2", OutrosRendimentos());
    Executar("UPDATE EMPREGADOS SET INDICADORDESCINSS = 1");
    EXPECT_EQ("333:101=1500 444:-2=700 888:101=2", OutrosRendimentos());
    Info.SetIndApuracao(tpIndApuracao::Anual);
    EXPECT_EQ("999:101=13", OutrosRendimentos());
}

TEST_F(TTesteIdeTrabalhador, OutrosRendimentosSomamAsDuasFontes)
{
    Prestador(5, "11122233396", 701);
    Rendimento("333", 100);
    OutroRendimento(1, 1, "333", 10.5);
    OutroRendimento(1, 1, "333", 7, 721);
    OutroRendimento(2, 1, "333", 1000);
    OutroRendimento(2, 2, "444", 40);
    OutroRendimento(1, 2, "11222333000181", 9);
    OutroRendimento(1, 2, "666", 3);
    Executar("UPDATE FP_RPAOUTROSREND SET DATAPAGTO = '28.02.2021' WHERE INSCRICAO = '666'");
    EXPECT_EQ("333:101=100", OutrosRendimentos()) << "without a receipt in the month its incomes don't count";
    Recibo(1, 10, 5, D(2021, 3, 5), 1);
    Recibo(2, 11, 5, D(2021, 3, 31), 1);
    Recibo(3, 12, 5, D(2021, 4, 1), 1);
    EXPECT_EQ("333:101=110,5 333:721=7 444:101=40", OutrosRendimentos()) << "of the newest receipt only origin 2";
    Rendimento("333", 100);
    EXPECT_EQ("333:101=110,5 333:721=7 444:101=40", OutrosRendimentos()) << "an income that stands twice counts once";
    OutroRendimento(1, 1, "333", 10.5);
    EXPECT_EQ("333:101=121 333:721=7 444:101=40", OutrosRendimentos()) << "but of the receipts each";
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 2 WHERE IDESOCIALTABELA = 721");
    EXPECT_EQ("333:-2=7 333:101=121 444:101=40", OutrosRendimentos());
    Executar("UPDATE FP_ESOCIALTABELA SET TABELA = 1 WHERE IDESOCIALTABELA = 721");
    // A newer receipt of another provider, or at another employer, moves nothing; his incomes aren't this worker's.
    Prestador(6, "99988877766", 701);
    Recibo(7, 70, 6, D(2021, 3, 31), 1);
    OutroRendimento(1, 1, "555", 900);
    Executar("UPDATE FP_RPAOUTROSREND SET IDPRESTSERVICO = 6 WHERE INSCRICAO = '555'");
    Recibo(8, 80, 5, D(2021, 3, 31), 1, 9);
    Inserir("SC00_FILIAL", {{"IDFILIAL", 9}, {"IDEMPRESA", 2}, {"FILIAL", 9}});
    EXPECT_EQ("333:101=121 333:721=7 444:101=40", OutrosRendimentos());
}

TEST_F(TTesteIdeTrabalhador, ComplementoEContribuinteSoDeQuemEhPrestador)
{
    const auto Natureza = [this] {
        TTarvoESocialCamposinfoComplCont LGrupo(Info);
        LGrupo.CarregarDados();
        return LGrupo.codCBO + "/" + LGrupo.natAtividade;
    };
    auto LGrupo = Carregar();
    EXPECT_FALSE(LGrupo->infoComplem.PossuiInformacao());
    EXPECT_EQ("/", Natureza());
    Prestador(5, "11122233396", 701);
    LGrupo = Carregar();
    EXPECT_TRUE(LGrupo->infoComplem.PossuiInformacao());
    EXPECT_EQ(D(1980, 5, 6), LGrupo->infoComplem.dtNascto);
    EXPECT_EQ("2611-10/", Natureza()) << "without a classification";
    // The newest row of the employer decides, even one that starts later.
    for (const auto& [LAno, LClassificacao, LEsperado] : {std::tuple{2018, "06", "2611-10/1"},
                                                          {2019, "1", "2611-10/"},
                                                          {2020, "7", "2611-10/1"},
                                                          {2021, "9", "2611-10/"},
                                                          {2022, "8", "2611-10/1"},
                                                          {2023, "x", "2611-10/"},
                                                          {2024, "21", "2611-10/1"},
                                                          {2025, "22", "2611-10/1"}}) {
        Inserir("SC00_EMPRESACFG", {{"IDEMPRESA", 1},
                                    {"ORIGEM", 90},
                                    {"ESPECIE", 38},
                                    {"TP", 1},
                                    {"DATAINICIO", D(LAno, 1, 1)},
                                    {"INFORMACAO1", LClassificacao}});
        EXPECT_EQ(LEsperado, Natureza()) << LClassificacao;
    }
}

TEST_F(TTesteIdeTrabalhador, SucessaoEhSempreLimpa)
{
    TTarvoESocialCamposIdeTrabalhadorS1200 LGrupo(Info);
    auto& LSucessao = LGrupo.infoComplem.sucessaoVinc;
    LSucessao.cnpjEmpregAnt = "1";
    LSucessao.dtAdm = D(2020, 1, 1);
    EXPECT_TRUE(LSucessao.PossuiInformcao());
    const TListaCamposModificados LNenhum{"{nenhum}"};
    LGrupo.CarregarDados(&LNenhum);
    EXPECT_FALSE(LSucessao.PossuiInformcao()) << "cleared even where the list leaves it out";
}

TEST_F(TTesteIdeTrabalhador, ProcessosDoTrabalhadorComOUltimoDetalhe)
{
    Inserir("ES02_SPPROC", {{"IDSPPROC", 3},
                            {"IDEMPREGADO", 1},
                            {"NUMERO", "0001.234-5"},
                            {"DATAABERTURA", D(2021, 3, 1)},
                            {"INDMATERIA", 1},
                            {"INDMATERIATPTRIB", 5}});
    Inserir("ES02_SPPROC", {{"IDSPPROC", 2}, {"IDEMPREGADO", 1}, {"NUMERO", "77"}, {"DATAABERTURA", D(2021, 3, 2)}});
    Inserir("ES02_SPPROCDET", {{"IDSPPROCDET", 8}, {"IDSPPROC", 3}, {"DATA", D(2021, 1, 1)}});
    Inserir("ES02_SPPROCDET", {{"IDSPPROCDET", 7}, {"IDSPPROC", 3}, {"DATA", D(2021, 5, 1)}});
    auto LGrupo = Carregar();
    ASSERT_EQ(1u, LGrupo->procJudTrab.size());
    const auto& LProcesso = *LGrupo->procJudTrab[0];
    EXPECT_EQ("00012345/7", LProcesso.nrProcJud + "/" + LProcesso.codSusp);
    EXPECT_EQ(1, LProcesso.tpTrib);
    EXPECT_EQ(5, LProcesso.DetalhamentoIndMat);
    LGrupo->CarregarDados();
    EXPECT_EQ(2u, LGrupo->procJudTrab.size()) << "a further load adds";
}

TEST_F(TTesteIdeTrabalhador, DiasDeConvocacaoContamOsDoisExtremos)
{
    Inserir("FP_CONTRAINTERM", {{"IDCONTRAINTERM", 1}, {"IDEMPREGADO", 1}});
    const auto Convocar = [](TDateTime AInicio, TDateTime AFim) {
        Inserir("FP_DETCONVOCACAO", {{"IDCONTRAINTERM", 1}, {"DATAINICIO", AInicio}, {"DATAFIM", AFim}});
    };
    EXPECT_EQ(0, Carregar()->infoInterm.qtdDiasInterm);
    Convocar(D(2021, 3, 1), D(2021, 3, 3));
    Convocar(D(2021, 3, 31), D(2021, 3, 31));
    EXPECT_EQ(4, Carregar()->infoInterm.qtdDiasInterm);
    Convocar(D(2021, 3, 30), D(2021, 4, 1));
    Convocar(D(2021, 2, 28), D(2021, 3, 1));
    EXPECT_EQ(4, Carregar()->infoInterm.qtdDiasInterm) << "across the month's limits not at all";
    Executar("UPDATE EMPREGADOS SET IDEMPRESA = 2");
    EXPECT_EQ(0, Carregar()->infoInterm.qtdDiasInterm) << "another employer's convocations";
}

} // namespace
} // namespace tarvo::testes
