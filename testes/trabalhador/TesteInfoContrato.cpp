#include "imports/UnOvraExcecoes.h"
#include "trabalhador/UnTrabalhadorDeTeste.h"
#include "trabalhador/contrato/UnTarvoESocialCamposInfoContrato.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

class TTesteInfoContrato : public TTesteComTrabalhador {
protected:
    void SetUp() override
    {
        TTesteComTrabalhador::SetUp();
        Inserir("FP_NIVEL", {{"IDNIVEL", 1}, {"CODIGO", "EF"}, {"DESCRICAO", "Ensino Fundamental"}});
        Inserir("FP_NIVEL", {{"IDNIVEL", 2}, {"CODIGO", "EM"}, {"DESCRICAO", "Ensino Médio"}});
    }

    void Salario(TDateTime AInicio, TValorSql AValor, int AIdNivel, const char* ATipo = "05-Por mês")
    {
        Inserir("SALARIO", {{"IDEMPREGADO", ID},
                            {"INICIOVIGENCIA", AInicio},
                            {"VALOR", AValor},
                            {"IDNIVEL", AIdNivel},
                            {"TIPOREMUNERACAO", ATipo},
                            {"DESCRSALARIOVAR", "Comissão"}});
    }

    void Horario(TValorSql ATipo, const char* ACodigo = "12", TValorSql ATrabalho = nullptr, TValorSql AFolga = nullptr)
    {
        Executar("DELETE FROM TAB_HORARIOS");
        Inserir("TAB_HORARIOS", {{"IDHORARIO", 5},
                                 {"CODIGO", ACodigo},
                                 {"TIPO", ATipo},
                                 {"REVEZHRTRAB", ATrabalho},
                                 {"REVEZHRFOLGA", AFolga},
                                 {"DURJORNADASEG", 480},
                                 {"DURJORNADATER", 0},
                                 {"DURJORNADASAB", 240},
                                 {"DURJORNADADOM", 60}});
        Empregado("COD_HORARIO = '" + std::string(ACodigo) + "'");
    }

    static std::string Itens(const TTarvoESocialCamposHorContratual& AGrupo)
    {
        std::string LTexto;
        for (const auto& LItem : AGrupo.Horario)
            LTexto += std::to_string(LItem->Dia) + ":" + LItem->CodigoHorarioContratual + " ";
        return LTexto;
    }

    std::string ItensCarregados()
    {
        TTarvoESocialCamposHorContratual LGrupo(ID, D(2021, 3, 1));
        LGrupo.CarregarDados();
        return Itens(LGrupo);
    }
};

TEST_F(TTesteInfoContrato, SalarioDeUmNivelGuardaADescricaoEDeVariosOsLista)
{
    const auto Carregar = [](TDateTime AData) {
        auto LGrupo = std::make_unique<TTarvoESocialCamposRemuneracao>(ID, AData);
        LGrupo->CarregarDados();
        return LGrupo;
    };
    // The default of a number is no default: without a row the value is zero, not -1.
    EXPECT_EQ(0.0, Carregar(D(2021, 3, 1))->ValorSalarioFixo);

    Salario(D(2021, 2, 1), 1234.5, 1);
    Salario(D(2021, 3, 1), 45.3, 1, "06-Por hora/aula");
    Salario(D(2021, 3, 1), 1052.999, 2, "06-Por hora/aula");
    Salario(D(2021, 4, 1), nullptr, 1);
    Salario(D(2021, 4, 1), 99, 77);
    Salario(D(2021, 5, 1), 10, 1);
    Salario(D(2021, 5, 1), nullptr, 2);

    const auto LAntes = Carregar(D(2021, 2, 28));
    EXPECT_EQ(1234.5, LAntes->ValorSalarioFixo);
    EXPECT_EQ("05-Por mês/Por mês/Comissão",
              LAntes->TipoRemuneracao + "/" + LAntes->TipoRemuneracaoDesc + "/" + LAntes->DescricaoSalarioVariavel);
    const auto LAulas = Carregar(D(2021, 3, 1));
    EXPECT_EQ(45.3, LAulas->ValorSalarioFixo);
    EXPECT_EQ("Por hora/aula", LAulas->TipoRemuneracaoDesc);
    EXPECT_EQ("Hora/aula Ensino Fundamental: R$ 45,30; Hora/aula Ensino Médio: R$ 1053,00;",
              LAulas->DescricaoSalarioVariavel);
    // The level that isn't there takes its row along, so one row is left, with a null amount.
    const auto LNulo = Carregar(D(2021, 4, 1));
    EXPECT_EQ(0.0, LNulo->ValorSalarioFixo);
    EXPECT_EQ("Comissão", LNulo->DescricaoSalarioVariavel);
    EXPECT_EQ("Hora/aula Ensino Fundamental: R$ 10,00; Hora/aula Ensino Médio: R$ 0,00;",
              Carregar(D(2021, 5, 1))->DescricaoSalarioVariavel);
}

TEST_F(TTesteInfoContrato, RecargaComSalarioNuloGuardaOValorAnterior)
{
    Salario(D(2021, 3, 1), 10, 1);
    TTarvoESocialCamposRemuneracao LGrupo(ID, D(2021, 3, 1));
    LGrupo.CarregarDados();
    Executar("UPDATE SALARIO SET VALOR = NULL, TIPOREMUNERACAO = '01-Por hora'");
    LGrupo.CarregarDados();
    EXPECT_EQ(10.0, LGrupo.ValorSalarioFixo);
    EXPECT_EQ("Por hora", LGrupo.TipoRemuneracaoDesc);
}

TEST_F(TTesteInfoContrato, DuracaoDizOTipoDoContrato)
{
    Detalhe(5, 2, {}, "outro");
    Detalhe(5, 1, {}, "Safra");
    TTarvoESocialCamposDuracao LGrupo(ID, D(2021, 3, 1));
    LGrupo.CarregarDados();
    EXPECT_EQ("", LGrupo.TipoContratoDesc);
    EXPECT_EQ("Safra", LGrupo.objDet);
    EXPECT_EQ(0, LGrupo.NumDiasPrazoInicio + LGrupo.NumDiasPrazoFim);
    for (const auto& [LCodigo, LTexto] : {std::pair{"1", "Prazo indeterminado"},
                                          {"2", "Prazo determinado, definido em dias"},
                                          {"3", "Prazo determinado, vinculado à ocorrência de um fato"},
                                          {"0", "Prazo determinado, vinculado à ocorrência de um fato"}}) {
        Empregado("C_EXP_PRAZO_INICIO = 45, TPCONTRATO = " + std::string(LCodigo));
        LGrupo.CarregarDados();
        EXPECT_EQ(LTexto, LGrupo.TipoContratoDesc);
    }
    EXPECT_EQ(45, LGrupo.NumDiasPrazoInicio);
    EXPECT_TRUE(LGrupo.DataTerminoContrato.Vazia());
    // The text follows the code also in a group that the list leaves out.
    LGrupo.TipoContratoCod = 1;
    LGrupo.CarregarDados(&NENHUM);
    EXPECT_EQ("Prazo indeterminado", LGrupo.TipoContratoDesc);
}

TEST_F(TTesteInfoContrato, SoDepartamentoDeTipoDoisOuTresEhLocalDeTrabalho)
{
    for (const auto& [LDepto, LId, LNumero, LTipo] : {std::tuple{301, 0, "FILIAL", tpTpInsc::CNPJ},
                                                      {302, 32, "DEPTO2", tpTpInsc::CNO},
                                                      {303, 33, "DEPTO3", tpTpInsc::CNO}}) {
        Executar("UPDATE MOV_TRANSF SET COD_DEPTO = " + std::to_string(LDepto));
        TTarvoESocialCamposLocalTrabGeral LGrupo(ID, D(2021, 2, 1));
        LGrupo.CarregarDados();
        EXPECT_EQ(2, LGrupo.IdFilial);
        EXPECT_EQ(LId, LGrupo.IdDepto);
        EXPECT_EQ(LNumero, LGrupo.NumeroInscricao);
        EXPECT_EQ(LTipo, LGrupo.TipoInscricao);
        EXPECT_EQ("", LGrupo.DescricaoComplementar);
    }
    TTarvoESocialCamposLocalTrabGeral LFora(ID, D(2021, 2, 1));
    LFora.IdDepto = 32;
    LFora.CarregarDados(&NENHUM);
    EXPECT_EQ("DEPTO2", LFora.NumeroInscricao);
}

TEST_F(TTesteInfoContrato, TransferenciaDefinitivaPosteriorTambemDaOLocal)
{
    const auto Depto = [](TDateTime AData) {
        TTarvoESocialCamposLocalTrabGeral LGrupo(ID, AData);
        LGrupo.CarregarDados();
        EXPECT_NE("outro", LGrupo.Contrato);
        return LGrupo.IdFilial * 100 + LGrupo.IdDepto;
    };
    // Neither another worker nor a department of the same code in another establishment is taken along.
    Empregado("CONTRATO = 'seu'");
    Inserir("EMPREGADOS", {{"IDEMPREGADO", ID - 1}, {"CONTRATO", "outro"}});
    Inserir("SC00_FILIAL", {{"IDFILIAL", 1}, {"IDEMPRESA", 1}, {"FILIAL", 10}});
    Inserir("SC00_DEPTO", {{"IDDEPTO", 3}, {"IDFILIAL", 1}, {"DEPTO", 303}, {"TIPODEPTO", 3}});
    // Before the admission there is no place but that of a later definitive transfer.
    EXPECT_EQ(0, Depto(D(2021, 1, 31)));
    Transferir(D(2021, 6, 1), "TRANSFERENCIA", 302);
    EXPECT_EQ(0, Depto(D(2021, 1, 31)));
    Transferir(D(2021, 7, 1), "TRANSFERENCIA DEFINITIVA", 303);
    EXPECT_EQ(233, Depto(D(2021, 1, 31)));
    EXPECT_EQ(233, Depto(D(2021, 7, 1)));
    Executar("UPDATE MOV_TRANSF SET COD_DEPTO = 301 WHERE COD_DEPTO = 303");
    EXPECT_EQ(200, Depto(D(2021, 1, 31))) << "the establishment of a department of another kind";
    Executar("UPDATE MOV_TRANSF SET COD_DEPTO = 303 WHERE DATAINICIOMOV = '01.07.2021'");
    // Of two movements of one day the later entered is the place, and the transfer isn't later than the day.
    Transferir(D(2021, 8, 1), "TRANSFERENCIA DEFINITIVA", 302);
    Transferir(D(2021, 8, 1), "TRANSFERENCIA", 303);
    EXPECT_EQ(233, Depto(D(2021, 8, 1)));
}

TEST_F(TTesteInfoContrato, LocalDoDomesticoEhOEnderecoDoEstabelecimento)
{
    TTarvoESocialCamposLocalTrabDom LGrupo(ID, D(2021, 2, 1));
    LGrupo.CarregarDados();
    EXPECT_EQ(2, LGrupo.IDFilial);
    EXPECT_EQ("", LGrupo.DescricaoLogradouro);
    Inserir("FILIAIS", {{"IDFILIAL", 2}, {"LOGR", "Rua A"}, {"IDCODLOGRAD", 9}, {"COD_MUN_E", "3509502"}});
    Inserir("CA06_MUNICIPIO", {{"IDMUNICIPIO", 1}, {"CODIGOFEDERAL", "3509502"}, {"NOME", "Campinas"}});
    LGrupo.CarregarDados();
    EXPECT_EQ("Rua A/Campinas/",
              LGrupo.DescricaoLogradouro + "/" + LGrupo.NomeMunicipio + "/" + LGrupo.TipoLogradouroCod);
}

TEST_F(TTesteInfoContrato, HorarioConformeOTipoDaJornada)
{
    EXPECT_EQ("", ItensCarregados());
    Inserir("TAB_HORARIOSDET", {{"IDHORARIO", 5}, {"CODIGOESOCIAL", "T1"}});
    Inserir("TAB_HORARIOSDET", {{"IDHORARIO", 5}, {"CODIGOESOCIAL", "T2"}});
    Inserir("TAB_HORARIOSDET", {{"IDHORARIO", 6}, {"CODIGOESOCIAL", "T3"}});
    struct TCaso {
        TValorSql Tipo;
        const char* Codigo;
        TValorSql Trabalho;
        TValorSql Folga;
        const char* Esperado;
    };
    // Sunday is day 7 of the layout and 0 of the code; a day without hours has no item.
    for (const auto& LCaso :
         {TCaso{1, "12", nullptr, nullptr, "7:0000120 1:0000121 6:0000126 "},
          TCaso{2, "12", nullptr, nullptr, "8:0000120 8:0000121 8:0000126 "},
          TCaso{1, "1234567", nullptr, nullptr, "7:12345670 1:12345671 6:12345676 "},
          TCaso{1, "A12", nullptr, nullptr, "7:0000000 1:0000001 6:0000006 "}, TCaso{3, "12", 12, 36, ""},
          TCaso{4, "12", 12, 36, "8:T1 8:T2 "}, TCaso{4, "12", 12, 48, ""}, TCaso{4, "12", 24, 36, ""},
          TCaso{4, "12", nullptr, nullptr, ""}, TCaso{nullptr, "12", 12, 36, ""}}) {
        Horario(LCaso.Tipo, LCaso.Codigo, LCaso.Trabalho, LCaso.Folga);
        EXPECT_EQ(LCaso.Esperado, ItensCarregados()) << LCaso.Tipo.Texto() << " " << LCaso.Codigo;
    }
}

TEST_F(TTesteInfoContrato, HorarioNaoConsultaOIndicadorERepeteNaRecarga)
{
    Horario(1);
    TTarvoESocialCamposHorContratual LGrupo(ID, D(2021, 3, 1));
    EXPECT_TRUE(LGrupo.CarregarDadosDoHorario);
    LGrupo.CarregarDadosDoHorario = false;
    LGrupo.CarregarDados();
    // The list keeps the group itself out, not the days of the schedule that it knows.
    LGrupo.CarregarDados(&NENHUM);
    EXPECT_EQ("7:0000120 1:0000121 6:0000126 7:0000120 1:0000121 6:0000126 ", Itens(LGrupo));
    EXPECT_EQ(5, LGrupo.Horario.back()->IdHorario);
}

TEST_F(TTesteInfoContrato, HorarioSozinhoSeNumeraPeloIdEPeloDia)
{
    for (const auto& [LDia, LEsperado] : {std::pair{0, "0:0000120"}, {7, "7:0000127"}, {8, "0:"}}) {
        TTarvoESocialCamposHorario LGrupo(12, LDia);
        EXPECT_TRUE(OrdemDaCarga(LGrupo, {""}).empty());
        LGrupo.CarregarDados(&NENHUM);
        EXPECT_EQ(LEsperado, std::to_string(LGrupo.Dia) + ":" + LGrupo.CodigoHorarioContratual);
        EXPECT_EQ(12, LGrupo.IdHorario);
    }
}

TEST_F(TTesteInfoContrato, TempoParcialVigenteNaData)
{
    Configurar(1, 1, D(2021, 1, 1), D(2021, 1, 31), "1", "9");
    Configurar(1, 1, D(2021, 2, 1), D(2021, 2, 28), "1", "3");
    Configurar(1, 1, D(2021, 3, 1), nullptr, "2", "5");
    // Of two rows in force the newest.
    Configurar(1, 1, D(2021, 5, 1), nullptr, "1", "4");
    Configurar(1, 1, D(2021, 6, 1), nullptr, "1", "6");
    for (const auto& [LData, LEsperado] : {std::pair{D(2020, 12, 31), 0},
                                           {D(2021, 1, 31), 9},
                                           {D(2021, 2, 1), 3},
                                           {D(2021, 2, 28), 3},
                                           {D(2021, 3, 1), 0},
                                           {D(2021, 5, 31), 4},
                                           {D(2021, 6, 1), 6}}) {
        TTarvoESocialCamposHorContratual LGrupo(ID, LData);
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.tmpParc);
    }
}

TEST_F(TTesteInfoContrato, AlvaraTemInformacaoComNumeroDeProcesso)
{
    Inserir("ES02_SPPROC", {{"IDSPPROC", 4}, {"NUMERO", "  "}});
    Inserir("ES02_SPPROC", {{"IDSPPROC", 5}, {"NUMERO", "0001-22"}});
    for (const auto& [LProcesso, LTem] : {std::pair{"NULL", false}, {"4", false}, {"5", true}, {"6", false}}) {
        Empregado("ALVARAJUDICIAL = 'Sim', IDPROCJUDALVARA = " + std::string(LProcesso));
        TTarvoESocialCamposAlvaraJudicial LGrupo(ID);
        LGrupo.CarregarDados();
        EXPECT_EQ("Sim", LGrupo.AlvaraJudicial);
        EXPECT_EQ(LTem, LGrupo.PossuiInformacao()) << LProcesso;
    }
}

TEST_F(TTesteInfoContrato, ObservacoesCarregamSempreESeRepetem)
{
    Inserir("FP_EMPREGADOOBS", {{"IDEMPREGADO", ID}, {"OBSERVACAO", "Primeira ção"}});
    Inserir("FP_EMPREGADOOBS", {{"IDEMPREGADO", ID + 1}, {"OBSERVACAO", "de outro"}});
    TTarvoESocialCamposInfoContrato LGrupo(ID, D(2021, 3, 1));
    LGrupo.CarregarDados(&NENHUM);
    LGrupo.SetCarregarDadosDoGrupo(false);
    LGrupo.CarregarDados();
    ASSERT_EQ(2U, LGrupo.Observacoes.size());
    auto& LItem = *LGrupo.Observacoes.back();
    EXPECT_EQ("Primeira ção", LItem.Observacao);
    // The item takes part in no load, and switched on it fails for want of a dataset.
    EXPECT_EQ("", LItem.GuidClasse());
    LItem.CarregarDados();
    EXPECT_EQ("Primeira ção", LItem.Observacao);
    LItem.SetCarregarDadosDoGrupo(true);
    EXPECT_THROW(LItem.CarregarDados(), EAccessViolation);
}

TEST_F(TTesteInfoContrato, ObservacaoComIdTemComando)
{
    struct TExposta : TTarvoESocialCamposObservacoes {
        using TTarvoESocialCamposObservacoes::BuscarSQLDados;
        using TTarvoESocialCamposObservacoes::TTarvoESocialCamposObservacoes;
    };
    EXPECT_EQ("", TExposta(0, "x").BuscarSQLDados());
    Inserir("FP_EMPREGADOOBS", {{"IDEMPREGADOOBS", 3}, {"OBSERVACAO", "Do banco"}});
    EXPECT_EQ("Do banco", Consultar(TExposta(3, "x").BuscarSQLDados()));
}

TEST_F(TTesteInfoContrato, CargoECategoriaNaData)
{
    Inserir("FP_CARGOSDESCR", {{"IDCARGOSDESCR", 1}, {"CODIGOESOCIAL", "C1"}, {"DESCRICAO", "Analista"}});
    Inserir("FP_CARGOSDESCR", {{"IDCARGOSDESCR", 2}, {"CODIGOESOCIAL", "C2"}, {"DESCRICAO", "Chefe"}});
    Inserir("FP_CARGOSPUBLICO", {{"IDCARGOSDESCR", 2}, {"TPCARGOPUBLICO", 3}, {"DATALEI", D(2010, 5, 15)}});
    Inserir("EMPREGADOS", {{"IDEMPREGADO", ID - 1}});
    Inserir("CARGOS", {{"IDEMPREGADO", ID - 1}, {"DATA", D(2021, 1, 1)}, {"IDCARGOSDESCR", 2}, {"MOTIVO", "8"}});
    Inserir("CARGOS", {{"IDEMPREGADO", ID}, {"DATA", D(2021, 2, 1)}, {"IDCARGOSDESCR", 1}, {"MOTIVO", "1"}});
    Inserir("CARGOS", {{"IDEMPREGADO", ID}, {"DATA", D(2021, 3, 1)}, {"IDCARGOSDESCR", 2}, {"MOTIVO", "4"}});
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 101}, {"TABELA", 3}, {"CODIGO", "701"}});
    Empregado("IDCATEGORIAESOCIAL = 101");
    for (const auto& [LData, LEsperado, LMotivo] : {std::tuple{D(2021, 1, 31), "//0//701", ""},
                                                    {D(2021, 2, 28), "C1/Analista/0//701", "1"},
                                                    {D(2021, 3, 1), "C2/Chefe/3//701", "4"}}) {
        TTarvoESocialCamposInfoContrato LGrupo(ID, LData);
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.CodigoCargo + "/" + LGrupo.DescricaoCargo + "/" + std::to_string(LGrupo.TipoCargo) +
                                 "/" + LGrupo.CodigoFuncao + "/" + LGrupo.CodigoCategoria);
        EXPECT_EQ(LGrupo.TipoCargo == 3, LGrupo.dtIngrCarr == D(2010, 5, 15));
        EXPECT_EQ(nullptr, LGrupo.ServPubl);
        TTarvoESocialCamposServPubl LServidor(ID, LData);
        LServidor.CarregarDados();
        EXPECT_EQ(LMotivo, LServidor.mtvAlter);
    }
}

TEST_F(TTesteInfoContrato, FilhosCarregamNaOrdemQueNaoEhADaCriacao)
{
    TTarvoESocialCamposInfoContrato LGrupo(ID, D(2021, 3, 1));
    EXPECT_EQ(
        (std::vector<std::string>{"AS CARGO", "SP_BUSCARSALARIOEMPREGADO", "UNIDADETEMPOCONTRATO", "UNION",
                                  "SC00_FILIAL", "FILIAIS", "TAB_HORARIOS", "SINDICATOS", "ES02_SPPROC",
                                  "FP_EMPREGADOOBS"}),
        OrdemDaCarga(LGrupo, {"AS CARGO", "SP_BUSCARSALARIOEMPREGADO", "UNIDADETEMPOCONTRATO", "UNION", "SC00_FILIAL",
                              "FILIAIS", "TAB_HORARIOS", "SINDICATOS", "ES02_SPPROC", "FP_EMPREGADOOBS"}));
}

TEST_F(TTesteInfoContrato, FalhaDoBancoSobeEOQueVeioAntesFica)
{
    Salario(D(2021, 2, 1), 100, 1);
    Configurar(1, 1, D(2021, 1, 1), nullptr, "parcial", "9");
    TTarvoESocialCamposInfoContrato LGrupo(ID, D(2021, 3, 1));
    // The setting is compared with a number.
    EXPECT_THROW(LGrupo.CarregarDados(), EDatabaseError);
    EXPECT_EQ(100.0, LGrupo.Remuneracao.ValorSalarioFixo);
    EXPECT_EQ("FILIAL", LGrupo.LocalTrabalho.LocalTrabGeral.NumeroInscricao);
    Executar("DELETE FROM SC00_EMPREGADOCFG");
    LGrupo.CarregarDados();
}

} // namespace
} // namespace tarvo::testes
