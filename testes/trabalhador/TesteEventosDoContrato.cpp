#include "apoio/UnBancoDeTeste.h"
#include "trabalhador/s2100/UnTarvoESocialCamposS2100.h"
#include "trabalhador/s2200/UnTarvoESocialCamposS2200.h"
#include "trabalhador/s2206/UnTarvoESocialCamposS2206.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

constexpr const char* GUID_INFO_CONTRATO = "{712789EA-2C22-4064-A4CD-89F4DA93E950}";
constexpr const char* GUID_INFO_CONTRATO_S2206 = "{2C934625-AC03-442E-984F-1A8CC288EDD3}";
constexpr const char* GUID_SERV_PUBL = "{C7DAD221-8DD2-43BF-9FF2-C5C46FB1B175}";

class TTesteEventosDoContrato : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("EMPREGADOS", {{"IDEMPREGADO", 7},
                               {"COD_EMPRESA", 1},
                               {"COD_EMPREGADO", 70},
                               {"NOME", "Ana"},
                               {"CPF", "101.112.223-54"},
                               {"IDCATEGORIAESOCIAL", 1}});
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 1}, {"TABELA", 1}, {"CODIGO", "101"}});
        Regime(D(2020, 1, 1), D(2020, 12, 31), "2");
        Regime(D(2021, 1, 1), nullptr, "1");
    }

    void Regime(TDateTime AInicio, TValorSql AFim, const char* ARegime)
    {
        Inserir("SC00_EMPREGADOCFG", {{"IDEMPREGADO", 7},
                                      {"COD_EMPRESA", 1},
                                      {"COD_EMPREGADO", 70},
                                      {"ORIGEM", 90},
                                      {"ESPECIE", 38},
                                      {"TP", 7},
                                      {"DATAINICIO", AInicio},
                                      {"DATAFIM", AFim},
                                      {"INFORMACAO2", ARegime}});
    }

    void Salario(TDateTime AInicio, double AValor, int AEmpregado = 7)
    {
        Inserir("SALARIO", {{"IDEMPREGADO", AEmpregado}, {"INICIOVIGENCIA", AInicio}, {"VALOR", AValor}});
    }

    std::unique_ptr<TTarvoESocialCamposS2206> CarregarS2206(TDateTime AData)
    {
        auto LEvento = std::make_unique<TTarvoESocialCamposS2206>(7, AData);
        LEvento->CarregarDados();
        return LEvento;
    }
};

TEST_F(TTesteEventosDoContrato, AdmissaoLeOVinculoNaDataQualquerQueSejaAEmpresa)
{
    for (const auto& [LData, LRegime] :
         {std::pair{D(2019, 12, 31), ""}, {D(2020, 12, 31), "2"}, {D(2021, 1, 1), "1"}}) {
        TTarvoESocialCamposS2200 LEvento(1, 7, LData);
        LEvento.CarregarDados();
        EXPECT_EQ("Ana", LEvento.Trabalhador.Nome);
        EXPECT_EQ(LRegime, LEvento.Vinculo.TipoRegTrabCodigo);

        TTarvoESocialCamposS2200 LDeOutraEmpresa(2, 7, LData);
        LDeOutraEmpresa.CarregarDados();
        TTarvoESocialCamposS2100 LInicial(7, LData);
        LInicial.CarregarDados();
        const auto LJson = LEvento.ToJson().AsJSON();
        EXPECT_EQ(LJson, LDeOutraEmpresa.ToJson().AsJSON());
        EXPECT_EQ(LJson, LInicial.ToJson().AsJSON());
    }
}

TEST_F(TTesteEventosDoContrato, EfeitoDaAlteracaoEhOInicioDoSalarioNaData)
{
    Salario(D(2020, 5, 1), 1000);
    Salario(D(2021, 3, 1), 1200);
    Salario(D(2021, 2, 1), 9000, 8);
    for (const auto& [LData, LEsperado] : {std::pair{D(2020, 4, 30), TDateTime()},
                                           {D(2020, 5, 1), D(2020, 5, 1)},
                                           {D(2021, 2, 28), D(2020, 5, 1)},
                                           {D(2021, 3, 1), D(2021, 3, 1)}})
        EXPECT_EQ(LEsperado, CarregarS2206(LData)->altContratual.dtEf);
}

TEST_F(TTesteEventosDoContrato, OQueOUsuarioInformaNoS2206Fica)
{
    TTarvoESocialCamposS2206 LEvento(7, D(2021, 3, 1));
    LEvento.altContratual.dtALteracao = D(2021, 3, 10);
    LEvento.altContratual.dscAlt = "Reajuste";
    LEvento.CarregarDados();
    EXPECT_EQ("10111222354", LEvento.ideVinculo.cpfTrab);
    EXPECT_EQ(D(2021, 3, 10), LEvento.altContratual.dtALteracao);
    EXPECT_EQ("Reajuste", LEvento.altContratual.dscAlt);
}

TEST_F(TTesteEventosDoContrato, TermosDoContratoEstaoDuasVezesCadaUmComSeuGuid)
{
    Inserir("CARGOS", {{"IDEMPREGADO", 7}, {"DATA", D(2020, 1, 1)}, {"MOTIVO", "1"}});
    const auto LEvento = CarregarS2206(D(2021, 3, 1));
    auto& LDoVinculo = LEvento->altContratual.Vinculo.InfoContrato;
    auto& LAoLado = LEvento->altContratual.infoContrato;
    EXPECT_EQ("101", LDoVinculo.CodigoCategoria);
    EXPECT_EQ("101", LAoLado.CodigoCategoria);
    EXPECT_EQ("1", LAoLado.servPubl.mtvAlter);
    EXPECT_EQ(nullptr, LAoLado.ServPubl);
    EXPECT_NE(std::string::npos, LAoLado.ToJson().AsJSON().find(R"("ServPubl":null)"));

    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '103'");
    Executar("UPDATE CARGOS SET MOTIVO = '2'");
    struct TCaso {
        const char* Guid;
        const char* DoVinculo;
        const char* AoLado;
        const char* Motivo;
    };
    for (const auto& LCaso : {TCaso{"{NENHUM}", "101", "101", "1"}, TCaso{GUID_INFO_CONTRATO_S2206, "101", "103", "1"},
                              TCaso{GUID_SERV_PUBL, "101", "103", "2"}, TCaso{GUID_INFO_CONTRATO, "103", "103", "2"}}) {
        const TListaCamposModificados LLista{LCaso.Guid};
        LEvento->CarregarDados(&LLista);
        EXPECT_EQ(LCaso.DoVinculo, LDoVinculo.CodigoCategoria) << LCaso.Guid;
        EXPECT_EQ(LCaso.AoLado, LAoLado.CodigoCategoria) << LCaso.Guid;
        EXPECT_EQ(LCaso.Motivo, LAoLado.servPubl.mtvAlter) << LCaso.Guid;
    }
}

TEST_F(TTesteEventosDoContrato, AListaPassaAosFilhosDoS2206)
{
    const auto LEvento = CarregarS2206(D(2021, 3, 1));
    auto& LAlteracao = LEvento->altContratual;
    Executar("UPDATE EMPREGADOS SET CPF = '222'");
    Salario(D(2021, 2, 1), 1000);
    struct TCaso {
        const TTarvoESocialCamposGrupoBase& Grupo;
        const char* Cpf;
        TDateTime Efeito;
    };
    const TCaso LCasos[] = {{*LEvento, "10111222354", TDateTime()},
                            {LAlteracao, "10111222354", D(2021, 2, 1)},
                            {LEvento->ideVinculo, "222", D(2021, 2, 1)}};
    for (const auto& LCaso : LCasos) {
        const TListaCamposModificados LLista{std::string(LCaso.Grupo.GuidClasse())};
        LEvento->CarregarDados(&LLista);
        EXPECT_EQ(LCaso.Cpf, LEvento->ideVinculo.cpfTrab) << LCaso.Grupo.GuidClasse();
        EXPECT_EQ(LCaso.Efeito, LAlteracao.dtEf) << LCaso.Grupo.GuidClasse();
    }
}

TEST_F(TTesteEventosDoContrato, OrdemDaCargaDoS2206)
{
    std::vector<std::string> LOrdem;
    Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) {
        for (const char* LMarca : {"AS COD_CATEG", "BUSCAR.INICIOVIGENCIA", "TIPO_REG_TRAB", "TIPO_ADMISSAO_DESC",
                                   "AS CODIGOCATEG", "SP_BUSCARCARGOEMPREGADO.MOTIVO"})
            if (AExecucao.Sql.find(LMarca) != std::string_view::npos)
                LOrdem.emplace_back(LMarca);
    });
    CarregarS2206(D(2021, 3, 1));
    EXPECT_EQ((std::vector<std::string>{"AS COD_CATEG", "BUSCAR.INICIOVIGENCIA", "TIPO_REG_TRAB", "TIPO_ADMISSAO_DESC",
                                        "AS CODIGOCATEG", "TIPO_ADMISSAO_DESC", "AS CODIGOCATEG",
                                        "SP_BUSCARCARGOEMPREGADO.MOTIVO"}),
              LOrdem);
}

} // namespace
} // namespace tarvo::testes
