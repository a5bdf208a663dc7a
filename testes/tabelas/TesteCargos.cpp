#include "apoio/UnBancoDeTeste.h"
#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "tabelas/s1030/UnTarvoESocialCamposS1030.h"
#include "tabelas/s1035/UnTarvoESocialCamposS1035.h"
#include "tabelas/s1040/UnTarvoESocialCamposS1040.h"

namespace tarvo::testes {
namespace {

using namespace tabelas;

class TTesteCargos : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("FP_CBO2002", {{"IDCBO2002", 8}, {"CBO", "2611-10"}});
        Inserir("FP_CARGOSDESCR",
                {{"IDCARGOSDESCR", 3}, {"CODIGO", "003"}, {"DESCRICAO", "Analista"}, {"IDCBO2002", 8}});
        Inserir("FP_CARGOSDESCR", {{"IDCARGOSDESCR", 4}, {"DESCRICAO", "Outro"}, {"IDCBO2002", 8}});
        BuscarInstanciaListaSql().LimparLista();
    }

    static void CargoPublico(TValorSql AAcumulo, TValorSql AData)
    {
        Inserir("FP_CARGOSPUBLICO", {{"IDCARGOSDESCR", 3},
                                     {"ACUMULOCARGOS", AAcumulo},
                                     {"CONTAGEMTEMPO", 2},
                                     {"DEDICACAOEXCL", 0},
                                     {"NUMEROLEI", "1234"},
                                     {"DATALEI", AData},
                                     {"SITUACAOLEI", 3}});
    }
    static std::vector<std::string> Reverter(TTarvoESocialCamposGrupoBase& AEvento)
    {
        BuscarInstanciaListaSql().LimparLista();
        AEvento.ReverterDados();
        return BuscarInstanciaListaSql().Lista;
    }
};

TEST_F(TTesteCargos, CadaLeiauteAlcancaAOcupacaoEOCodigoDoSeuJeito)
{
    const auto Resumo = [] {
        TTarvoESocialCamposS1030 LCargo(3);
        TTarvoESocialCamposS1035 LCarreira(3);
        TTarvoESocialCamposS1040 LFuncao(3);
        LCargo.CarregarDados();
        LCarreira.CarregarDados();
        LFuncao.CarregarDados();
        const auto& LDados = LCargo.InfoCargo.DadosCargo;
        return LCargo.InfoCargo.IdeCargo.CodCargo + "," + LDados.nmCargo + "," + LDados.codCBO + "," +
               std::to_string(LDados.ReverIdCbo) + " " + LCarreira.infoCarreira.IdeCarreira.CodCarreira + "," +
               LCarreira.infoCarreira.dadosCarreira.dscCarreira + " " + LFuncao.InfoFuncao.IdeFuncao.CodFuncao + "," +
               LFuncao.InfoFuncao.dadosFuncao.dscFuncao + "," + LFuncao.InfoFuncao.dadosFuncao.codCBO;
    };
    const auto Definir = [](const std::string& AAtribuicao) {
        Executar("UPDATE FP_CARGOSDESCR SET " + AAtribuicao + " WHERE IDCARGOSDESCR = 3");
    };
    EXPECT_EQ(",Analista,2611-10,8 003,Analista ,Analista,261110", Resumo());
    // An empty code is a code: only NULL falls back on the suite's own.
    Definir("CODIGOESOCIAL = ''");
    EXPECT_EQ(",Analista,2611-10,8 ,Analista ,Analista,261110", Resumo());
    Definir("CODIGOESOCIAL = 'C3'");
    EXPECT_EQ("C3,Analista,2611-10,8 C3,Analista C3,Analista,261110", Resumo());
    Definir("IDCBO2002 = 9");
    EXPECT_EQ("C3,,,0 C3,Analista C3,Analista,", Resumo());
}

TEST_F(TTesteCargos, ValidadeEhDeQuemChama)
{
    TTarvoESocialCamposS1030 LEvento(3);
    LEvento.InfoCargo.IdeCargo.iniValid = "2021-03";
    LEvento.CarregarDados();
    EXPECT_EQ("2021-03", LEvento.InfoCargo.IdeCargo.iniValid);
    EXPECT_EQ("", LEvento.InfoCargo.NovaValidade.IniValid() + LEvento.InfoCargo.NovaValidade.FimValid());
}

TEST_F(TTesteCargos, ReverteUmComandoOuMaisSeOCargoEhPublico)
{
    const std::string LCargo = "UPDATE FP_CARGOSDESCR SET FP_CARGOSDESCR.DESCRICAO = 'Analista', "
                               "FP_CARGOSDESCR.IDCBO2002 = 8 WHERE FP_CARGOSDESCR.IDCARGOSDESCR = 3";
    const std::string LPublico =
        "UPDATE FP_CARGOSPUBLICO SET FP_CARGOSPUBLICO.ACUMULOCARGOS = 1, FP_CARGOSPUBLICO.CONTAGEMTEMPO = 2, "
        "FP_CARGOSPUBLICO.DEDICACAOEXCL = 0 WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = 3";
    const std::string LLei =
        "UPDATE FP_CARGOSPUBLICO SET FP_CARGOSPUBLICO.NUMEROLEI = 1234, FP_CARGOSPUBLICO.DATALEI = '15.05.2010', "
        "FP_CARGOSPUBLICO.SITUACAOLEI = 3 WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = 3";
    const auto LCarregado = [] {
        auto LEvento = std::make_unique<TTarvoESocialCamposS1030>(3);
        LEvento->CarregarDados();
        return LEvento;
    };
    EXPECT_EQ((std::vector{LCargo}), Reverter(*LCarregado()));
    CargoPublico(1, nullptr);
    EXPECT_EQ((std::vector{LCargo, LPublico}), Reverter(*LCarregado()));
    Executar("UPDATE FP_CARGOSPUBLICO SET DATALEI = '15.05.2010'");
    const auto LEvento = LCarregado();
    EXPECT_EQ((std::vector{LCargo, LPublico, LLei}), Reverter(*LEvento));
    Executar("UPDATE FP_CARGOSPUBLICO SET ACUMULOCARGOS = NULL");
    EXPECT_EQ((std::vector{LCargo, LLei}), Reverter(*LCarregado()));

    // Without clearing, the list doubles.
    LEvento->ReverterDados();
    EXPECT_EQ(5U, BuscarInstanciaListaSql().Lista.size());
}

TEST_F(TTesteCargos, ReverteOsValoresComoEstaoPelaChaveDoConstrutor)
{
    TTarvoESocialCamposS1030 LEvento(3);
    auto& LDados = LEvento.InfoCargo.DadosCargo;
    LDados.nmCargo = "Caixa d'água";
    LDados.codCBO = "ignorado";
    LDados.ReverIdCbo = -1;
    LDados.IDCargo = 4;
    LDados.cargoPublico.IdCargosDescr = 4;
    LDados.cargoPublico.leicargo.IdCargosDescr = 4;
    LDados.cargoPublico.leicargo.dtLei = "31/02/2010";
    const auto LLista = Reverter(LEvento);
    ASSERT_EQ(2U, LLista.size());
    EXPECT_EQ("UPDATE FP_CARGOSDESCR SET FP_CARGOSDESCR.DESCRICAO = 'Caixa d'água', FP_CARGOSDESCR.IDCBO2002 = -1 "
              "WHERE FP_CARGOSDESCR.IDCARGOSDESCR = 3",
              LLista[0]);
    // No date is day 0; an empty number leaves a gap.
    EXPECT_EQ("UPDATE FP_CARGOSPUBLICO SET FP_CARGOSPUBLICO.NUMEROLEI = , FP_CARGOSPUBLICO.DATALEI = '30.12.1899', "
              "FP_CARGOSPUBLICO.SITUACAOLEI =  WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = 3",
              LLista[1]);
    for (const auto& LSql : LLista)
        EXPECT_FALSE(Conexao().ExecutouSQL({LSql}, false).Sucesso);
}

TEST_F(TTesteCargos, OsComandosGravamSoOCargo)
{
    CargoPublico(1, D(2010, 5, 15));
    TTarvoESocialCamposS1030 LEvento(3);
    LEvento.CarregarDados();
    auto& LDados = LEvento.InfoCargo.DadosCargo;
    LDados.nmCargo = "Analista sênior";
    LDados.cargoPublico.dedicExcl = "1";
    LDados.cargoPublico.leicargo.dtLei = "1/6/2011";
    ASSERT_TRUE(Conexao().ExecutouSQL(Reverter(LEvento), false).Sucesso);

    TTarvoESocialCamposS1030 LDepois(3);
    LDepois.CarregarDados();
    const auto& LGravado = LDepois.InfoCargo.DadosCargo;
    EXPECT_EQ("Analista sênior", LGravado.nmCargo);
    EXPECT_EQ("2611-10", LGravado.codCBO);
    EXPECT_EQ("1,2,1", LGravado.cargoPublico.acumCargo + "," + LGravado.cargoPublico.contagemEsp + "," +
                           LGravado.cargoPublico.dedicExcl);
    EXPECT_EQ("1234,01/06/2011,3", LGravado.cargoPublico.leicargo.nrLei + "," + LGravado.cargoPublico.leicargo.dtLei +
                                       "," + LGravado.cargoPublico.leicargo.sitCargo);
    EXPECT_EQ("Outro", Consultar("SELECT DESCRICAO FROM FP_CARGOSDESCR WHERE IDCARGOSDESCR = 4"));
}

TEST_F(TTesteCargos, CarreiraEFuncaoNadaRevertem)
{
    TTarvoESocialCamposS1035 LCarreira(3);
    LCarreira.CarregarDados();
    TTarvoESocialCamposS1040 LFuncao(3);
    LFuncao.CarregarDados();
    EXPECT_TRUE(Reverter(LCarreira).empty());
    EXPECT_TRUE(Reverter(LFuncao).empty());
}

} // namespace
} // namespace tarvo::testes
