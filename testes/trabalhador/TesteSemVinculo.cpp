#include "imports/UnOvraExcecoes.h"
#include "trabalhador/UnTrabalhadorDeTeste.h"
#include "trabalhador/s2300/UnTarvoESocialCamposS2300.h"
#include "trabalhador/s2306/UnTarvoESocialCamposS2306.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

class TTesteSemVinculo : public TTesteComTrabalhador {
protected:
    void Salario(TDateTime AInicio, double AValor)
    {
        Inserir("SALARIO",
                {{"IDEMPREGADO", ID}, {"INICIOVIGENCIA", AInicio}, {"VALOR", AValor}, {"SALARIOMENSAL", AValor}});
    }
};

TEST_F(TTesteSemVinculo, AposentadoriaNaoVaiNemQuandoPedida)
{
    Empregado("APOSENTADORIA = 78, DATA_APOSENTADORIA = '01.10.2016', CPF = '111.222.333-96'");
    TTarvoESocialCamposS2300 LEvento(ID, D(2021, 3, 1));
    const auto& LAposentadoria = LEvento.Trabalhador.Aposentadoria;
    const TListaCamposModificados LLista{std::string(LAposentadoria.GuidClasse())};
    for (const auto* LPedido : {static_cast<const TListaCamposModificados*>(nullptr), &LLista}) {
        LEvento.Trabalhador.Aposentadoria.SetCarregarDadosDoGrupo(true);
        LEvento.CarregarDados(LPedido);
        EXPECT_EQ(0, LAposentadoria.TipoAposent);
        EXPECT_TRUE(LAposentadoria.DataAposentadoria.Vazia());
        EXPECT_FALSE(LAposentadoria.CarregarDadosDoGrupo());
    }
    EXPECT_EQ("111.222.333-96", LEvento.Trabalhador.Cpf);
}

TEST_F(TTesteSemVinculo, InicioEhAAdmissaoOuAPrimeiraTransferenciaDefinitiva)
{
    TTarvoESocialCamposInfoTSVInicio LGrupo(ID, D(2021, 3, 1));
    LGrupo.CarregarDados();
    EXPECT_EQ(D(2021, 2, 1), LGrupo.dtInicio);
    Transferir(D(2021, 2, 10), "TRANSFERENCIA TEMPORARIA", 302);
    Transferir(D(2021, 2, 20), "TRANSFERENCIA DEFINITIVA", 302);
    Transferir(D(2021, 2, 25), "TRANSFERENCIA DEFINITIVA", 301);
    // Set with the group's own step, so a group left out keeps what it had.
    LGrupo.SetCarregarDadosDoGrupo(false);
    LGrupo.CarregarDados();
    EXPECT_EQ(D(2021, 2, 1), LGrupo.dtInicio);
    LGrupo.SetCarregarDadosDoGrupo(true);
    LGrupo.CarregarDados();
    EXPECT_EQ(D(2021, 2, 20), LGrupo.dtInicio);
}

TEST_F(TTesteSemVinculo, CategoriaSemAParteDecimalETextoQueNaoEhNumeroFalha)
{
    TTarvoESocialCamposInfoTSVInicio LGrupo(ID, D(2021, 3, 1));
    Empregado("TIPOVINCULO = 2");
    LGrupo.CarregarDados();
    EXPECT_EQ("/2", LGrupo.codCateg + "/" + LGrupo.natAtividade);
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 1}, {"TABELA", 1}, {"CODIGO", "901"}});
    Empregado("IDCATEGORIAESOCIAL = 1");
    for (const auto& [LCodigo, LEsperado] : {std::pair{"901", "901"}, {"723.9", "723"}, {" 722 ", "722"}}) {
        Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '" + std::string(LCodigo) + "'");
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.codCateg);
    }
    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '9O1'");
    EXPECT_THROW(LGrupo.CarregarDados(), EDatabaseError);
    EXPECT_EQ("722", LGrupo.codCateg);
}

TEST_F(TTesteSemVinculo, CargoEhOMaisNovoAteAData)
{
    for (const int LCargo : {1, 2})
        Inserir("FP_CARGOSDESCR", {{"IDCARGOSDESCR", LCargo},
                                   {"CODIGOESOCIAL", "C" + std::to_string(LCargo)},
                                   {"DESCRICAO", "Cargo " + std::to_string(LCargo)}});
    Inserir("FP_CARGOSPUBLICO", {{"IDCARGOSDESCR", 2}, {"TPCARGOPUBLICO", 3}});
    Inserir("CARGOS", {{"IDEMPREGADO", ID}, {"DATA", D(2021, 2, 1)}, {"IDCARGOSDESCR", 1}});
    Inserir("CARGOS", {{"IDEMPREGADO", ID}, {"DATA", D(2021, 3, 10)}, {"IDCARGOSDESCR", 2}});
    Inserir("CARGOS", {{"IDEMPREGADO", 8}, {"DATA", D(2021, 3, 11)}, {"IDCARGOSDESCR", 1}});
    for (const auto& [LData, LEsperado] : {std::pair{D(2021, 1, 31), "//0"},
                                           {D(2021, 2, 1), "C1/Cargo 1/0"},
                                           {D(2021, 3, 9), "C1/Cargo 1/0"},
                                           {D(2021, 3, 10), "C2/Cargo 2/3"},
                                           {D(2021, 4, 1), "C2/Cargo 2/3"}}) {
        TTarvoESocialCamposCargoFuncao LGrupo(ID, LData);
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.codCargo + "/" + LGrupo.DescCargo + "/" + std::to_string(LGrupo.TipoCargo));
    }
}

TEST_F(TTesteSemVinculo, DirigenteSindicalComOrigemQueNaoEhDataFalha)
{
    Detalhe(1, 4, {"outro", "01/01/2000", "outro", nullptr});
    TTarvoESocialCamposInfoDirigenteSindical LGrupo(ID);
    LGrupo.CarregarDados();
    EXPECT_EQ("", LGrupo.cnpjOrigem);
    Detalhe(1, 5, {"61234567000117", "10/01/05", "SIND-33", "12"});
    LGrupo.CarregarDados();
    EXPECT_EQ("61234567000117/SIND-33/", LGrupo.cnpjOrigem + "/" + LGrupo.matricOrig + "/" + LGrupo.categOrig);
    EXPECT_EQ(D(2005, 1, 10), LGrupo.dtAdmOrigem);
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 12}, {"CODIGO", "401"}});
    LGrupo.CarregarDados();
    EXPECT_EQ("401", LGrupo.categOrig);
    Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO2 = NULL WHERE TP = 5");
    LGrupo.CarregarDados();
    EXPECT_EQ(D(2005, 1, 10), LGrupo.dtAdmOrigem);
    for (const char* LTexto : {"janeiro de 2005", "31/02/2005", ""}) {
        Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO2 = '" + std::string(LTexto) + "' WHERE TP = 5");
        EXPECT_THROW(LGrupo.CarregarDados(), EConvertError) << LTexto;
    }
}

TEST_F(TTesteSemVinculo, CedidoPrecisaDaAdmissaoDoDetalheEDoRegime)
{
    const auto Carregar = [] {
        TTarvoESocialCamposInfoTrabCedido LGrupo(ID);
        LGrupo.CarregarDados();
        EXPECT_EQ(0, LGrupo.categOrig);
        EXPECT_EQ(LGrupo.cnpjCednt.empty(), LGrupo.dtAdmCed.Vazia());
        return LGrupo.cnpjCednt + "/" + LGrupo.matricCed + "/" + LGrupo.infOnus + "/" + LGrupo.tpRegTrab + "/" +
               LGrupo.tpRegPrev;
    };
    Empregado("TIPOADMISSAO = 4");
    Detalhe(1, 2, {"991", "MAT-8", "02/03/2012", "3"});
    Configurar(38, 6, D(2021, 2, 1), nullptr, "x", "x", "x");
    EXPECT_EQ("////", Carregar());
    // Neither expired nor yet to begin: the validity isn't looked at.
    Configurar(38, 7, D(2010, 1, 1), D(2010, 12, 31), "9", "1", "2");
    EXPECT_EQ("991/MAT-8/3/1/2", Carregar());
    Executar("UPDATE SC00_EMPREGADOCFG SET DATAINICIO = '01.01.2090', DATAFIM = NULL");
    EXPECT_EQ("991/MAT-8/3/1/2", Carregar());
    for (const char* LAdmissao : {"1", "NULL"}) {
        Empregado("TIPOADMISSAO = " + std::string(LAdmissao));
        EXPECT_EQ("////", Carregar()) << LAdmissao;
    }
    Empregado("TIPOADMISSAO = 4");
    Executar("UPDATE FP_EMPREGADOSDET SET IDEMPREGADO = 8");
    EXPECT_EQ("////", Carregar());
}

TEST_F(TTesteSemVinculo, EstagioSemDetalheMantemABolsaESemSalarioNaoTemNada)
{
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 5}, {"NOME", "Faculdade"}, {"INSCRICAO", "55"}, {"CEP", "13000-700"}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 6}, {"NOME", "Agente"}, {"INSCRICAO", "66"}, {"UF", "SP"}});
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 8}, {"NOME", "Supervisora"}, {"CPF", "888"}});
    Salario(D(2021, 2, 1), 812.4);
    Salario(D(2021, 3, 1), 900.0);
    Empregado("C_EXP_PRAZO_INICIO = 180, UNIDADETEMPOCONTRATO = 1");
    const auto Resumo = [](TDateTime AData) {
        TTarvoESocialCamposInfoEstagiario LGrupo(ID, AData);
        LGrupo.CarregarDados();
        EXPECT_EQ(LGrupo.vlrBolsa.empty() ? TDateTime() : D(2021, 2, 1), LGrupo.DataInicoContrato);
        return LGrupo.vlrBolsa + "/" + std::to_string(LGrupo.NumDiasContrato) + "/" +
               std::to_string(LGrupo.UnidadeMedidaContrato) + "/" + LGrupo.natEstagio + LGrupo.nivEstagio + "/" +
               LGrupo.instEnsino.nmRazao + "/" + LGrupo.ageIntegracao.nmRazao + "/" + LGrupo.supervisorEstagio.nmSuperv;
    };
    EXPECT_EQ("812,4/180/1////", Resumo(D(2021, 2, 28)));
    Empregado("C_EXP_PRAZO_INICIO = NULL, C_EXP_PRAZO_FIM = 90");
    Detalhe(1, 4, {"1", "4", "Direito", "AP-1", "5", "6", "8"});
    EXPECT_EQ("900/90/1/14/Faculdade/Agente/Supervisora", Resumo(D(2021, 3, 1)));
    // The children don't look at the date.
    EXPECT_EQ("/0/0//Faculdade/Agente/Supervisora", Resumo(D(2021, 1, 31)));
    Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO5 = NULL, INFORMACAO6 = '99', INFORMACAO7 = NULL");
    EXPECT_EQ("900/90/1/14///", Resumo(D(2021, 3, 1)));
}

TEST_F(TTesteSemVinculo, TextosDoEstagio)
{
    Salario(D(2021, 2, 1), 900.0);
    Detalhe(1, 4, {});
    for (const auto& [LNatureza, LNivel, LEsperado] : {std::tuple{"1", "1", "1-Obrigatório|1-Fundamental"},
                                                       {"2", "2", "2-Não obrigatório|2-Médio"},
                                                       {"3", "3", "|3-Formação profissional"},
                                                       {"01", "4", "|4-Superior"},
                                                       {"", "8", "|8-Especial"},
                                                       {"x", "9", "|9-Mãe social (Lei 7.644/87)"},
                                                       {"1", "5", "1-Obrigatório|"}}) {
        Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO1 = '" + std::string(LNatureza) + "', INFORMACAO2 = '" +
                 LNivel + "'");
        TTarvoESocialCamposInfoEstagiario LGrupo(ID, D(2021, 3, 1));
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.DescricaoNatEstagio + "|" + LGrupo.DescricaoNivEstagio);
    }
}

TEST_F(TTesteSemVinculo, TerminoSoComRescisaoDeSituacaoZero)
{
    Empregado("DATA_DEMISSAO = '20.03.2021'");
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 10}, {"COD_EMPREGADO", 71}, {"SITUACAO", 0}});
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 11}, {"COD_EMPREGADO", 70}, {"SITUACAO", 0}});
    for (const auto& [LSituacao, LEsperado] : {std::pair{1, TDateTime()}, {0, D(2021, 3, 20)}}) {
        Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 10}, {"COD_EMPREGADO", 70}, {"SITUACAO", LSituacao}});
        TTarvoESocialCamposTermino LGrupo(ID);
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.dtTerm);
    }
}

TEST_F(TTesteSemVinculo, TudoCarregaNaOrdemQualquerQueSejaACategoria)
{
    const std::vector<std::string> LOrdem{"RACACOR AS",
                                          "TRUNC(",
                                          "MIN(MOV_TRANSF",
                                          "TPCARGOPUBLICO",
                                          "DESCNIVEL",
                                          "CONTRATO_DESC",
                                          "CATEGORIGEM",
                                          "CNPJCEDNT",
                                          "DESCNIVESTAGIO",
                                          "1FP_EMPREGADOSDET.INFORMACAO5",
                                          "1FP_EMPREGADOSDET.INFORMACAO6",
                                          "1FP_EMPREGADOSDET.INFORMACAO7",
                                          "FROM SITUACOES",
                                          "TAB_RESCISAO"};
    TTarvoESocialCamposS2300 LInicio(ID, D(2021, 3, 1));
    EXPECT_EQ(LOrdem, OrdemDaCarga(LInicio, LOrdem));
    const std::vector<std::string> LDaAlteracao{"COD_CATEG",
                                                "TIPOVINCULO",
                                                "TPCARGOPUBLICO",
                                                "DESCNIVEL",
                                                "DESCNIVESTAGIO",
                                                "1FP_EMPREGADOSDET.INFORMACAO5",
                                                "1FP_EMPREGADOSDET.INFORMACAO6",
                                                "1FP_EMPREGADOSDET.INFORMACAO7"};
    TTarvoESocialCamposS2306 LAlteracao(ID, D(2021, 3, 1));
    EXPECT_EQ(LDaAlteracao, OrdemDaCarga(LAlteracao, LDaAlteracao));
}

TEST_F(TTesteSemVinculo, AListaAlcancaCadaGrupoESoEle)
{
    TTarvoESocialCamposS2300 LInicio(ID, D(2021, 3, 1));
    const auto& LTsv = LInicio.infoTSVInicio;
    const auto& LCompl = LTsv.InfoComplementares;
    ConferirListaDeUmGrupo(LInicio,
                           {&LInicio.Trabalhador, &LTsv, &LCompl.CargoFuncao, &LCompl.Remuneracao, &LCompl.FGTS,
                            &LCompl.InfoDirSind, &LCompl.InfoTrabCedido, &LCompl.InfoEstagiario,
                            &LCompl.InfoEstagiario.instEnsino, &LCompl.InfoEstagiario.ageIntegracao,
                            &LCompl.InfoEstagiario.supervisorEstagio, &LTsv.Afastamento, &LTsv.Termino},
                           {"RACACOR AS", "TRUNC(", "TPCARGOPUBLICO", "DESCNIVEL", "CONTRATO_DESC", "CATEGORIGEM",
                            "CNPJCEDNT", "DESCNIVESTAGIO", "1FP_EMPREGADOSDET.INFORMACAO5",
                            "1FP_EMPREGADOSDET.INFORMACAO6", "1FP_EMPREGADOSDET.INFORMACAO7", "FROM SITUACOES",
                            "TAB_RESCISAO"});
    TTarvoESocialCamposS2306 LAlteracao(ID, D(2021, 3, 1));
    const auto& LDepois = LAlteracao.infoTSVAlteracao.infoComplementares2306;
    ConferirListaDeUmGrupo(
        LAlteracao,
        {&LAlteracao.ideTrabSemVinculo, &LAlteracao.infoTSVAlteracao, &LDepois.cargoFuncao, &LDepois.remuneracao,
         &LDepois.infoEstagiario, &LDepois.infoEstagiario.supervisorEstagio},
        {"COD_CATEG", "TIPOVINCULO", "TPCARGOPUBLICO", "DESCNIVEL", "DESCNIVESTAGIO", "1FP_EMPREGADOSDET.INFORMACAO7"});
}

TEST_F(TTesteSemVinculo, DataComHoraAlcancaOQueComecouNoDia)
{
    Inserir("FP_CARGOSDESCR", {{"IDCARGOSDESCR", 1}, {"CODIGOESOCIAL", "C1"}});
    Inserir("CARGOS", {{"IDEMPREGADO", ID}, {"DATA", D(2021, 3, 10)}, {"IDCARGOSDESCR", 1}});
    Salario(D(2021, 3, 10), 900.0);
    for (const auto& [LData, LEsperado] : {std::pair{D(2021, 3, 10) - 0.25, "/"},
                                           {D(2021, 3, 10), "C1/900"},
                                           {D(2021, 3, 10) + EncodeTime(17, 30, 0), "C1/900"}}) {
        TTarvoESocialCamposS2306 LEvento(ID, LData);
        LEvento.CarregarDados();
        const auto& LGrupo = LEvento.infoTSVAlteracao.infoComplementares2306;
        EXPECT_EQ(LEsperado, LGrupo.cargoFuncao.codCargo + "/" + LGrupo.infoEstagiario.vlrBolsa);
    }
}

TEST_F(TTesteSemVinculo, IdDoEstagioQueNaoEhNumeroFalhaEGuardaOQueJaVeio)
{
    Salario(D(2021, 2, 1), 900.0);
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 5}, {"NOME", "Faculdade"}});
    Detalhe(1, 4, {"1", "4", "Direito", "AP-1", "5", "seis", nullptr});
    TTarvoESocialCamposS2300 LEvento(ID, D(2021, 3, 1));
    EXPECT_THROW(LEvento.CarregarDados(), EDatabaseError);
    const auto& LTsv = LEvento.infoTSVInicio;
    EXPECT_EQ("Faculdade/", LTsv.InfoComplementares.InfoEstagiario.instEnsino.nmRazao + "/" +
                                LTsv.InfoComplementares.InfoEstagiario.ageIntegracao.nmRazao);
    EXPECT_EQ(D(2021, 2, 1), LTsv.dtInicio);
    Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO6 = '5'");
    LEvento.CarregarDados();
    EXPECT_EQ("Faculdade", LTsv.InfoComplementares.InfoEstagiario.ageIntegracao.nmRazao);
}

TEST_F(TTesteSemVinculo, RecargaSemLinhaGuardaOsValores)
{
    Salario(D(2021, 2, 1), 900.0);
    Detalhe(1, 4, {"1", "4", "Direito", "AP-1"});
    Detalhe(1, 5, {"612", "10/01/2005", "SIND-33", nullptr});
    TTarvoESocialCamposInfoComplementaresEmpregado LGrupo(ID, D(2021, 3, 1));
    LGrupo.CarregarDados();
    Executar("DELETE FROM FP_EMPREGADOSDET");
    Executar("UPDATE SALARIO SET SALARIOMENSAL = 950");
    LGrupo.CarregarDados();
    EXPECT_EQ("612/SIND-33", LGrupo.InfoDirSind.cnpjOrigem + "/" + LGrupo.InfoDirSind.matricOrig);
    // Of a row whose join is gone the salary is new and the rest stays.
    EXPECT_EQ("950/1/4/Direito/1-Obrigatório", LGrupo.InfoEstagiario.vlrBolsa + "/" + LGrupo.InfoEstagiario.natEstagio +
                                                   "/" + LGrupo.InfoEstagiario.nivEstagio + "/" +
                                                   LGrupo.InfoEstagiario.areaAtuacao + "/" +
                                                   LGrupo.InfoEstagiario.DescricaoNatEstagio);
}

TEST_F(TTesteSemVinculo, IdentificacaoRecarregaPeloGuidDoVinculo)
{
    TTarvoESocialCamposS2306 LEvento(ID, D(2021, 3, 1));
    LEvento.infoTSVAlteracao.dtAlteracao = D(2021, 3, 15);
    LEvento.CarregarDados();
    Empregado("CODIGOESOCIAL = 'NOVA', TIPOVINCULO = 2");
    const TListaCamposModificados LLista{"{A40C219B-EC89-4C7C-9F68-8AE4061D19C7}"};
    LEvento.CarregarDados(&LLista);
    EXPECT_EQ("NOVA", LEvento.ideTrabSemVinculo.matricula);
    EXPECT_EQ("", LEvento.infoTSVAlteracao.natAtividade);
    LEvento.CarregarDados();
    EXPECT_EQ("2", LEvento.infoTSVAlteracao.natAtividade);
    EXPECT_EQ(D(2021, 3, 15), LEvento.infoTSVAlteracao.dtAlteracao);
}

} // namespace
} // namespace tarvo::testes
