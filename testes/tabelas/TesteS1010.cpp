#include "apoio/UnBancoDeTeste.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"
#include "tabelas/s1010/UnTarvoESocialCamposS1010.h"

namespace tarvo::testes {
namespace {

using regras::TCodigosIncidenciaVerba;
using tabelas::TTarvoESocialCamposS1010;

class TTesteS1010 : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("TAB_VERBAS",
                {{"IDVERBA", 1}, {"CODIGO", 10}, {"NOME", "Salário"}, {"TIPO", "1"}, {"OBSERVACAOESOCIAL", "obs"}});
        for (const int LNatureza : {1000, 1003, 1207})
            Inserir("FP_ESOCIALTABELA",
                    {{"IDESOCIALTABELA", LNatureza}, {"TABELA", 3}, {"CODIGO", std::to_string(LNatureza)}});
    }

    static void Relacionar(int ANatureza, TDateTime AInicio, TValorSql AFim)
    {
        Inserir("FP_RUBRICARELAC",
                {{"IDVERBA", 1}, {"IDESOCIALTABELA", ANatureza}, {"DATAINICIO", AInicio}, {"DATAFIM", AFim}});
    }

    /// A process about the tributes of the bits, for rubric 1.
    static void AbrirProcesso(int AId, int ATributos, TDateTime AAbertura, TValorSql AFilial = nullptr)
    {
        Inserir("ES02_SPPROC", {{"IDSPPROC", AId},
                                {"IDFILIAL", AFilial},
                                {"TPPROCESSO", 2},
                                {"NUMERO", "00" + std::to_string(AId) + "-1.2019"},
                                {"DATAABERTURA", AAbertura},
                                {"INDMATERIATPTRIB", ATributos}});
        Inserir("FP_VERBAPROCESSO", {{"IDVERBA", 1}, {"IDSPPROC", AId}, {"EXTENSAODECISAO", AId % 10}});
    }

    static std::string Natureza(TDateTime AData)
    {
        TTarvoESocialCamposS1010 LEvento(1, 1, 0, AData, nullptr);
        LEvento.CarregarDados();
        const auto& LDados = LEvento.InfoRubrica.DadosRubrica;
        return LDados.natRubr + (LDados.natRubr.empty() == LDados.DataInicioRelacionamento.Vazia() ? "" : " sem data");
    }
};

TEST_F(TTesteS1010, NaturezaEhARelacaoMaisAntigaAindaNaoEncerrada)
{
    EXPECT_EQ("", Natureza(D(2021, 3, 1)));
    Relacionar(1000, D(2018, 1, 1), D(2020, 12, 31));
    Relacionar(1003, D(2021, 1, 1), nullptr);
    Relacionar(1207, D(2021, 2, 1), nullptr);
    EXPECT_EQ("1000", Natureza(D(2020, 12, 31)));
    EXPECT_EQ("1003", Natureza(D(2021, 1, 1)));
    EXPECT_EQ("1003", Natureza(D(2021, 3, 1)));
    // The start doesn't count: a link of the future is taken as well.
    EXPECT_EQ("1000", Natureza(D(2010, 1, 1)));
    // The very start of the test environment means as of now, and a moment beside it doesn't.
    const auto LAmbiente = TTarvoConsultasESocial::BuscarDataInicioAmbienteTeste();
    EXPECT_EQ("1003", Natureza(LAmbiente));
    EXPECT_EQ("1000", Natureza(LAmbiente + 1.0));
}

TEST_F(TTesteS1010, IncidenciasDaVerbaSaoDeQuemChama)
{
    regras::TCodigosIncidenciaVerba LCodigos{11, 12, 13, 0};
    TTarvoESocialCamposS1010 LEvento(1, 1, 0, D(2021, 3, 1), &LCodigos);
    auto& LDados = LEvento.InfoRubrica.DadosRubrica;
    const auto Codigos = [&] {
        return LDados.codIncCP + "," + LDados.codIncIRRF + "," + LDados.codIncFGTS + "," + LDados.codIncSIND;
    };
    EXPECT_EQ(",,,", Codigos());
    LEvento.CarregarDados();
    EXPECT_EQ("11,12,13,0", Codigos());
    LCodigos.codIncCP = 91;
    const TListaCamposModificados LLista{"{380563FD-0740-4378-A5C6-83EF6E32FBDD}"};
    LEvento.CarregarDados(&LLista);
    EXPECT_EQ("11,12,13,0", Codigos());
    LEvento.CarregarDados();
    EXPECT_EQ("91,12,13,0", Codigos());

    TTarvoESocialCamposS1010 LSem(1, 1, 0, D(2021, 3, 1), nullptr);
    LSem.CarregarDados();
    EXPECT_EQ("", LSem.InfoRubrica.DadosRubrica.codIncCP);
    EXPECT_EQ("Salário", LSem.InfoRubrica.DadosRubrica.dscRubr);
    EXPECT_EQ("10", LSem.InfoRubrica.IdeRubrica.codRubr);
}

TEST_F(TTesteS1010, RubricaDeRpaTemAsIncidenciasDoBancoEPrecisaDeTodas)
{
    Inserir("RPATPVALOR", {{"IDRPATPVALOR", 7}, {"DESCRICAO", "Bruto"}, {"TIPO", "1"}});
    for (const int LTabela : {9995, 9996, 9997, 9998})
        Inserir("FP_ESOCIALTABELA",
                {{"IDESOCIALTABELA", LTabela}, {"TABELA", LTabela}, {"CODIGO", std::to_string(LTabela - 9900)}});
    Inserir("FP_RUBRICARELACRPA", {{"IDRUBRICARELACRPA", 3},
                                   {"IDRPATPVALOR", 7},
                                   {"IDESOCIALTABELA", 1000},
                                   {"IDESOCIALTABELACP", 9997},
                                   {"IDESOCIALTABELAIRRF", 9998},
                                   {"IDESOCIALTABELAFGTS", 9996},
                                   {"IDESOCIALTABELACS", 9995}});
    const regras::TCodigosIncidenciaVerba LCodigos{1, 2, 3, 4};
    const auto Carregar = [&](std::int64_t AIdVerba) {
        auto LEvento = std::make_unique<TTarvoESocialCamposS1010>(AIdVerba, 1, 3, D(2021, 3, 1), &LCodigos);
        EXPECT_EQ("0", LEvento->InfoRubrica.IdeRubrica.IdeTabRubr);
        LEvento->CarregarDados();
        const auto& LDados = LEvento->InfoRubrica.DadosRubrica;
        return LEvento->InfoRubrica.IdeRubrica.codRubr + " " + LDados.natRubr + " " + LDados.dscRubr + " " +
               LDados.codIncCP + " " + LDados.codIncIRRF + " " + LDados.codIncFGTS + " " + LDados.codIncSIND;
    };
    EXPECT_EQ("7 1000 Bruto 97 98 96 95", Carregar(0));
    // With both ids the code is the rubric's and the data are the receipt's.
    EXPECT_EQ("10 1000 Bruto 97 98 96 95", Carregar(1));
    // A code of the wrong table is none, and then nothing is read.
    Executar("UPDATE FP_RUBRICARELACRPA SET IDESOCIALTABELACS = 9996");
    EXPECT_EQ("7      ", Carregar(0));
}

TEST_F(TTesteS1010, TabelaDeRubricasDaEmpresa)
{
    const auto Tabela = [](std::int64_t AIdVerba, std::int64_t AIdEmpresa) {
        TTarvoESocialCamposS1010 LEvento(AIdVerba, AIdEmpresa, 0, D(2021, 3, 1), nullptr);
        LEvento.CarregarDados();
        return LEvento.InfoRubrica.IdeRubrica.codRubr + "/" + LEvento.InfoRubrica.IdeRubrica.IdeTabRubr;
    };
    Inserir("SC00_EMPRESACFG", {{"IDEMPRESA", 2}, {"ORIGEM", 90}, {"ESPECIE", 38}, {"TP", 13}, {"INFORMACAO1", "TAB"}});
    EXPECT_EQ("10/TAB", Tabela(1, 2));
    EXPECT_EQ("10/0", Tabela(1, 1));
    // The statement always has a row, also for a rubric that isn't there.
    EXPECT_EQ("/TAB", Tabela(99, 2));
}

TEST_F(TTesteS1010, CadaTributoTemOSeuProcesso)
{
    Inserir("SC00_FILIAL", {{"IDFILIAL", 5}, {"IDEMPRESA", 2}});
    AbrirProcesso(21, 2, D(2019, 1, 1));
    AbrirProcesso(22, 4, D(2019, 1, 1));
    AbrirProcesso(23, 1, D(2019, 1, 1));
    AbrirProcesso(24, 8, D(2019, 1, 1), 5);
    for (const auto& [LId, LProcesso, LData] :
         {std::tuple{1, 21, D(2019, 2, 1)}, {2, 21, D(2020, 2, 1)}, {3, 23, D(2019, 2, 1)}, {4, 22, D(2019, 2, 1)}})
        Inserir("ES02_SPPROCDET", {{"IDSPPROCDET", LId}, {"IDSPPROC", LProcesso}, {"DATA", LData}});
    const auto Processos = [](std::int64_t AIdEmpresa, TDateTime AData,
                              const TListaCamposModificados* ALista = nullptr) {
        TTarvoESocialCamposS1010 LEvento(1, AIdEmpresa, 0, AData, nullptr);
        LEvento.CarregarDados(ALista);
        const auto& LDados = LEvento.InfoRubrica.DadosRubrica;
        return LDados.IdeProcessoCP.TpProc + "/" + LDados.IdeProcessoCP.NrProc + "/" + LDados.IdeProcessoCP.CodSusp +
               "/" + LDados.IdeProcessoCP.ExtDecisao + " " + LDados.IdeProcessoFGTS.NrProc + " " +
               LDados.IdeProcessoIRRF.NrProc + "/" + LDados.IdeProcessoIRRF.CodSusp + " " +
               LDados.IdeProcessoSIND.NrProc;
    };
    // The same process of another rubric, with another extent.
    Inserir("FP_VERBAPROCESSO", {{"IDVERBA", 99}, {"IDSPPROC", 21}, {"EXTENSAODECISAO", 9}});
    Executar("UPDATE FP_VERBAPROCESSO SET IDVERBA = 100 - IDVERBA WHERE IDSPPROC = 21");
    EXPECT_EQ("2/002112019/2/9 002212019 002312019/3 ", Processos(1, D(2019, 1, 1)));
    Executar("UPDATE FP_VERBAPROCESSO SET IDVERBA = 100 - IDVERBA WHERE IDSPPROC = 21");
    EXPECT_EQ("2/002112019/2/1 002212019 002312019/3 ", Processos(1, D(2019, 1, 1)));
    EXPECT_EQ("2/002112019/2/1 002212019 002312019/3 002412019", Processos(2, D(2019, 1, 1)));
    EXPECT_EQ("///  / ", Processos(2, D(2018, 12, 31)));
    const TListaCamposModificados LSoIrrf{"{FAEA57A6-60F4-46FB-A371-0D2FF4DC533D}"};
    EXPECT_EQ("///  002312019/3 ", Processos(2, D(2019, 1, 1), &LSoIrrf));
    Executar("DELETE FROM ES02_SPPROCDET");
    EXPECT_EQ("2/002112019//1 002212019 002312019/ ", Processos(1, D(2019, 1, 1)));
    // Social security asks for the link to the rubric itself.
    Executar("UPDATE FP_VERBAPROCESSO SET EXTENSAODECISAO = NULL");
    EXPECT_EQ("2/002112019// 002212019 002312019/ ", Processos(1, D(2019, 1, 1)));
}

class TTesteIncidenciasDoExemplo : public TTesteComExemplo {};

TEST_F(TTesteIncidenciasDoExemplo, AsGravadasSaoAsDaBusca)
{
    const auto LVerbas = Conexao().Consultar("SELECT IDVERBA FROM TAB_VERBAS ORDER BY IDVERBA");
    ASSERT_GT(LVerbas.QuantidadeDeLinhas(), 70U);
    for (std::size_t i = 0; i < LVerbas.QuantidadeDeLinhas(); ++i) {
        const auto LId = LVerbas.Inteiro(i, 0);
        const auto LIncid = regras::TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(LId);
        for (const auto& [LTributo, LLista] : {std::pair{"CP", LIncid.FListInss},
                                               {"IRRF", LIncid.FListIrrf},
                                               {"FGTS", LIncid.FListFgts},
                                               {"CSIND", LIncid.FListCs}}) {
            const std::string LTabela = std::string("FP_ESOCIALINCID") + LTributo;
            std::vector<std::int32_t> LGravadas;
            const auto LLinhas = Conexao().Consultar("SELECT CODIGO FROM " + LTabela + " JOIN FP_ESOCIALTABELA USING " +
                                                     "(IDESOCIALTABELA) WHERE IDVERBA = " + std::to_string(LId) +
                                                     " ORDER BY IDESOCIALINCID" + LTributo);
            for (std::size_t j = 0; j < LLinhas.QuantidadeDeLinhas(); ++j)
                LGravadas.push_back(static_cast<std::int32_t>(LLinhas.Inteiro(j, 0)));
            // A rubric without incidence is stored with code 0.
            EXPECT_EQ(LLista.empty() ? std::vector<std::int32_t>{0} : LLista, LGravadas) << LId << " " << LTributo;
        }
    }
}

} // namespace
} // namespace tarvo::testes
