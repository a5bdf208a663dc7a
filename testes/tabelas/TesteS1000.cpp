#include "apoio/UnBancoDeTeste.h"
#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/UnOvraExcecoes.h"
#include "tabelas/s1000/UnTarvoESocialCamposS1000.h"

namespace tarvo::testes {
namespace {

using tabelas::TTarvoESocialCamposS1000;

class TTesteS1000 : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("SC00_EMPRESA",
                {{"IDEMPRESA", 1}, {"NOME", "Padaria Pão d'Ouro"}, {"TPINSCRICAO", 1}, {"CNPJ", "11222333000181"}});
        BuscarInstanciaListaSql().LimparLista();
    }

    void Configurar(int AOrigem, int AEspecie, int ATp, TDateTime AInicio, TValorSql AFim, const char* AInformacao1,
                    TValorSql AInformacao2 = nullptr, TValorSql AInformacao3 = nullptr)
    {
        Inserir("SC00_EMPRESACFG", {{"IDEMPRESA", 1},
                                    {"ORIGEM", AOrigem},
                                    {"ESPECIE", AEspecie},
                                    {"TP", ATp},
                                    {"DATAINICIO", AInicio},
                                    {"DATAFIM", AFim},
                                    {"INFORMACAO1", AInformacao1},
                                    {"INFORMACAO2", AInformacao2},
                                    {"INFORMACAO3", AInformacao3}});
    }

    std::unique_ptr<TTarvoESocialCamposS1000> Carregar(TDateTime AData, const TListaCamposModificados* ALista = nullptr)
    {
        auto LEvento = std::make_unique<TTarvoESocialCamposS1000>(1, AData);
        LEvento->CarregarDados(ALista);
        return LEvento;
    }
};

TEST_F(TTesteS1000, SemConfiguracaoSoOsDadosDaEmpresa)
{
    const auto LEvento = Carregar(D(2021, 3, 1));
    const auto& LCadastro = LEvento->InfoEmpregador.infoCadastro;
    EXPECT_EQ("Padaria Pão d'Ouro", LCadastro.NmRazao);
    EXPECT_EQ("CNPJ", LCadastro.TipoInscricao);
    EXPECT_EQ("1", LEvento->IdeEmpregador.TipoInscricao);
    EXPECT_EQ("1", LCadastro.indOpcCP);
    EXPECT_EQ("", LCadastro.ClassTrib + LCadastro.IndEtt + LCadastro.IndEntEd);
    EXPECT_TRUE(LEvento->InfoEmpregador.idePeriodo.iniValid.Vazia());
}

TEST_F(TTesteS1000, TipoDeInscricaoForaDaListaFicaVazioNoCadastro)
{
    for (const auto& [LCodigo, LTexto] : {std::pair{2, "CPF"}, {3, "CEI"}, {4, ""}}) {
        Executar("UPDATE SC00_EMPRESA SET TPINSCRICAO = " + std::to_string(LCodigo));
        const auto LEvento = Carregar(D(2021, 3, 1));
        EXPECT_EQ(LTexto, LEvento->InfoEmpregador.infoCadastro.TipoInscricao);
        EXPECT_EQ(std::to_string(LCodigo), LEvento->IdeEmpregador.TipoInscricao);
    }
}

TEST_F(TTesteS1000, ValeALinhaMaisNovaVigenteNaData)
{
    Configurar(90, 38, 1, D(2018, 1, 1), nullptr, "21");
    Configurar(90, 38, 1, D(2020, 1, 1), D(2020, 6, 30), "22");
    for (const auto& [LData, LEsperado] : {std::pair{D(2017, 12, 31), ""},
                                           {D(2018, 1, 1), "21"},
                                           {D(2020, 1, 1), "22"},
                                           {D(2020, 6, 30), "22"},
                                           {D(2020, 7, 1), "21"}})
        EXPECT_EQ(LEsperado, Carregar(LData)->InfoEmpregador.infoCadastro.ClassTrib);
}

TEST_F(TTesteS1000, CadaIndicadorVemDaSuaLinha)
{
    const auto LInicio = D(2018, 1, 1);
    Configurar(1, 1, 1, LInicio, nullptr, "2062");
    Configurar(1, 1, 41, LInicio, nullptr, "x", "y", "1");
    Configurar(90, 1, 41, LInicio, nullptr, "x", "y", "9");
    Configurar(90, 38, 5, LInicio, nullptr, "2");
    Configurar(90, 30, 1, LInicio, nullptr, "3");
    Configurar(90, 18, 2, LInicio, nullptr, "4");
    Configurar(90, 38, 11, LInicio, nullptr, "5");
    Configurar(1, 1, 47, LInicio, nullptr, "6");
    Configurar(90, 38, 12, LInicio, nullptr, "7", "REG");
    Configurar(90, 38, 8, LInicio, nullptr, "8");
    Configurar(90, 38, 10, LInicio, nullptr, "01/07/2018", "08/01/2019");
    const auto LEvento = Carregar(D(2021, 3, 1));
    const auto& LCadastro = LEvento->InfoEmpregador.infoCadastro;
    EXPECT_EQ("2062 1 2 3 4 5 6 7 REG", LCadastro.NatJurid + " " + LCadastro.IndCoop + " " + LCadastro.IndConstr + " " +
                                            LCadastro.IndDesFolha + " " + LCadastro.indOpcCP + " " +
                                            LCadastro.IndOptRegEletron + " " + LCadastro.IndEntEd + " " +
                                            LCadastro.IndEtt + " " + LCadastro.nrRegEtt);
    EXPECT_EQ("8", LCadastro.InfoComplementares.situacaoPJ.indSitPJ);
    EXPECT_EQ("8", LCadastro.InfoComplementares.situacaoPF.indSitPF);
    EXPECT_EQ(D(2018, 7, 1), LEvento->InfoEmpregador.idePeriodo.iniValid);
    EXPECT_EQ(D(2018, 7, 1), LEvento->InfoEmpregador.idePeriodo.DataIniCfg);
    EXPECT_TRUE(LEvento->InfoEmpregador.idePeriodo.fimValid.Vazia());
}

TEST_F(TTesteS1000, ContatoEhDoResponsavelPeloESocial)
{
    for (const auto& [LOrigem, LTp, LNome] :
         {std::tuple{96, 2, "Outra origem"}, {97, 1, "Outro tipo"}, {97, 2, "Rita"}})
        Inserir("CA06_CFG", {{"ORIGEM", LOrigem}, {"TP", LTp}, {"INFORMACAO1", LNome}});
    EXPECT_EQ("Rita", Carregar(D(2021, 3, 1))->InfoEmpregador.infoCadastro.Contato.NmCtt);
}

TEST_F(TTesteS1000, CertificadoComDataInvalidaFalhaEODemaisDaEmpresaFica)
{
    Configurar(90, 38, 2, D(2020, 1, 1), D(2022, 12, 31), "x", "CERT-1", "31/02/2021");
    TTarvoESocialCamposS1000 LEvento(1, D(2021, 3, 1));
    EXPECT_THROW(LEvento.CarregarDados(), EConvertError);
    EXPECT_EQ("Padaria Pão d'Ouro", LEvento.InfoEmpregador.infoCadastro.NmRazao);
    EXPECT_EQ("CERT-1", LEvento.InfoEmpregador.infoCadastro.DadosIsencao.NrCertif);
    EXPECT_EQ(D(2022, 12, 31), LEvento.InfoEmpregador.infoCadastro.DadosIsencao.DtVencCertif);
}

TEST_F(TTesteS1000, AcordoDeIsencaoEhPostoMesmoComOGrupoForaDaLista)
{
    TTarvoESocialCamposS1000 LEvento(1, D(2021, 3, 1));
    auto& LGrupo = LEvento.InfoEmpregador.infoCadastro.InfoOrgInternacional;
    LGrupo.IndAcordoIsenMulta = static_cast<tpIndAcordoIsencaoMulta>(1);
    const TListaCamposModificados LLista{"{nenhum}"};
    LEvento.CarregarDados(&LLista);
    EXPECT_EQ(0, static_cast<int>(LGrupo.IndAcordoIsenMulta));
    EXPECT_EQ("", LEvento.InfoEmpregador.infoCadastro.NmRazao);
}

TEST_F(TTesteS1000, ReverteEmDezComandosNaOrdem)
{
    TTarvoESocialCamposS1000 LEvento(1, D(2021, 3, 1));
    auto& LCadastro = LEvento.InfoEmpregador.infoCadastro;
    LCadastro.NmRazao = "Nova";
    LCadastro.NatJurid = "2062";
    LCadastro.ClassTrib = "99";
    LCadastro.IndCoop = "1";
    LCadastro.IndConstr = "2";
    LCadastro.IndDesFolha = "3";
    LCadastro.IndOptRegEletron = "4";
    LCadastro.IndEntEd = "5";
    LCadastro.IndEtt = "6";
    LCadastro.nrRegEtt = "7";
    auto& LIsencao = LCadastro.DadosIsencao;
    LIsencao.IdeMinLei = "1";
    LIsencao.NrCertif = "2";
    LIsencao.DtEmisCertif = D(2020, 1, 2);
    LIsencao.NrProtRenov = "3";
    LIsencao.DtProtRenov = D(2020, 3, 4);
    LIsencao.DtDou = D(2020, 5, 6);
    LIsencao.PagDou = "4";
    LEvento.ReverterDados();

    const std::string LFim =
        " AND SC00_EMPRESACFG.DATAINICIO <= '01.03.2021' AND (SC00_EMPRESACFG.DATAFIM >= '01.03.2021' OR "
        "SC00_EMPRESACFG.DATAFIM IS NULL) ORDER BY SC00_EMPRESACFG.DATAINICIO DESC";
    const auto Linha = [&](const std::string& AAtribuicao, const std::string& AOrigem, const std::string& AEspecie,
                           const std::string& ATp) {
        return "UPDATE SC00_EMPRESACFG SET SC00_EMPRESACFG." + AAtribuicao +
               " WHERE SC00_EMPRESACFG.IDEMPRESA =1 AND SC00_EMPRESACFG.ORIGEM = " + AOrigem +
               " AND SC00_EMPRESACFG.ESPECIE = " + AEspecie + " AND SC00_EMPRESACFG.TP = " + ATp + LFim;
    };
    const std::vector<std::string> LEsperado{
        "UPDATE SC00_EMPRESACFG SET SC00_EMPRESACFG.INFORMACAO8 = '1', SC00_EMPRESACFG.INFORMACAO2 = '2', "
        "SC00_EMPRESACFG.DATAINICIO = '02.01.2020', SC00_EMPRESACFG.DATAFIM = '30.12.1899', "
        "SC00_EMPRESACFG.INFORMACAO4 = "
        "'3', SC00_EMPRESACFG.INFORMACAO3 = ''04.03.2020'', SC00_EMPRESACFG.INFORMACAO5 = ''06.05.2020'', "
        "SC00_EMPRESACFG.INFORMACAO6 = '4' WHERE SC00_EMPRESACFG.IDEMPRESA = 1 AND SC00_EMPRESACFG.ORIGEM = 90 AND "
        "SC00_EMPRESACFG.ESPECIE = 38 AND SC00_EMPRESACFG.TP = 2" +
            LFim,
        "UPDATE SC00_EMPRESA SET SC00_EMPRESA.NOME = 'Nova' WHERE SC00_EMPRESA.IDEMPRESA = 1",
        Linha("INFORMACAO1 = '2062'", "1", "1", "1"),
        Linha("INFORMACAO1 = '99'", "90", "38", "1"),
        Linha("INFORMACAO3 = '1'", "90", "1", "41"),
        Linha("INFORMACAO1 = '2'", "90", "38", "5"),
        Linha("INFORMACAO1 = '3'", "90", "30", "1"),
        Linha("INFORMACAO1 = '4'", "90", "38", "11"),
        Linha("INFORMACAO1 = '5'", "90", "38", "11"),
        Linha("INFORMACAO1 = '6', SC00_EMPRESACFG.INFORMACAO2 = '7'", "90", "38", "12") + ")",
    };
    EXPECT_EQ(LEsperado, BuscarInstanciaListaSql().Lista);
    LEvento.ReverterDados();
    EXPECT_EQ(20U, BuscarInstanciaListaSql().Lista.size());

    // The engine takes eight of the ten: the doubled quotes and the bracket are refused.
    Configurar(90, 38, 5, D(2018, 1, 1), nullptr, "antes");
    std::vector<bool> LAceitos;
    LAceitos.reserve(LEsperado.size());
    for (const auto& LSql : LEsperado)
        LAceitos.push_back(Conexao().ExecutouSQL({LSql}, false).Sucesso);
    EXPECT_EQ((std::vector<bool>{false, true, true, true, true, true, true, true, true, false}), LAceitos);
    EXPECT_EQ("2", Consultar("SELECT INFORMACAO1 FROM SC00_EMPRESACFG"));
    EXPECT_EQ("Nova", Consultar("SELECT NOME FROM SC00_EMPRESA"));
}

} // namespace
} // namespace tarvo::testes
