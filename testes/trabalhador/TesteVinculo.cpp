#include "imports/UnOvraExcecoes.h"
#include "trabalhador/UnTrabalhadorDeTeste.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposVinculo.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

class TTesteVinculo : public TTesteComTrabalhador {
protected:
    static std::string Regimes(TDateTime AData)
    {
        TTarvoESocialCamposVinculo LGrupo(ID, AData);
        LGrupo.CarregarDados();
        EXPECT_EQ("MAT-7", LGrupo.Matricula);
        EXPECT_EQ(D(2021, 2, 1), LGrupo.DataDeAdmissao);
        return LGrupo.TipoRegTrabCodigo + "/" + LGrupo.TipoRegTrabalhista + "/" + LGrupo.TipoRegPrevCodigo + "/" +
               LGrupo.TipoRegPrevidenciario;
    }
};

TEST_F(TTesteVinculo, RegimesDaLinhaMaisNovaVigente)
{
    EXPECT_EQ("///", Regimes(D(2021, 3, 1)));
    Configurar(38, 7, D(2021, 1, 1), D(2021, 3, 31), "1", "1", "1", "1");
    Configurar(38, 7, D(2021, 2, 1), D(2021, 2, 28), "1", "2", "2", "1");
    Configurar(38, 7, D(2021, 5, 1), nullptr, "1", "3", "3", "1");
    for (const auto& [LData, LEsperado] :
         {std::pair{D(2020, 12, 31), "///"},
          {D(2021, 1, 1), "1/1-CLT-Consolidação das Leis de Trabalho/1/1-Regime Geral da Previdência Social - RGPS"},
          {D(2021, 2, 28), "2/2-Estatutário/2/2-Regime Próprio de Previdência Social - RPPS"},
          {D(2021, 3, 31), "1/1-CLT-Consolidação das Leis de Trabalho/1/1-Regime Geral da Previdência Social - RGPS"},
          {D(2021, 4, 1), "///"},
          {D(2021, 5, 1), "3//3/3-Regime de Previdência Social no Exterior"}})
        EXPECT_EQ(LEsperado, Regimes(LData));
    // The row is found by the codes of company and worker, not by the id.
    Executar("UPDATE SC00_EMPREGADOCFG SET IDEMPREGADO = 99");
    EXPECT_NE("///", Regimes(D(2021, 1, 1)));
    Executar("UPDATE SC00_EMPREGADOCFG SET IDEMPREGADO = 7, COD_EMPRESA = 11");
    EXPECT_EQ("///", Regimes(D(2021, 1, 1)));
}

TEST_F(TTesteVinculo, TextosDoCeletista)
{
    TTarvoESocialCamposInfoCeletista LGrupo(ID, D(2021, 3, 1));
    for (const auto& [LCodigo, LTexto] :
         {std::pair{1, "1-Admissão"},
          {2, "2-Transferência de empresa do mesmo grupo econômico"},
          {3, "3-Transferência de empresa consorciada ou de consórcio"},
          {4, "4-Transferência por motivo de sucessão, incorporação, cisão ou fusão"},
          {5, "5-Transferência do empregado doméstico para outro representante da mesma unidade familiar."},
          {6, "6-Mudança de CPF."},
          {7, "6-Mudança de CPF."}}) {
        Empregado("TIPOADMISSAO = " + std::to_string(LCodigo));
        LGrupo.CarregarDados();
        EXPECT_EQ(LTexto, LGrupo.TipoAdmissaoDesc);
    }
    EXPECT_EQ(7, LGrupo.TipoAdmissao);
    EXPECT_EQ("", LGrupo.DescricaoSindicato);
    Inserir("SINDICATOS", {{"COD_SINDI", 45}, {"NOME", "Sindicato"}, {"CNPJ", "61"}, {"MES_DATA_BASE", 5}});
    Empregado("COD_SINDI = 45, TIPOVINCULO = 2, CONTRATO = '01-Empregado geral'");
    LGrupo.CarregarDados();
    EXPECT_EQ("0045 - Sindicato/61/2-Trabalho rural/Empregado geral",
              LGrupo.DescricaoSindicato + "/" + LGrupo.CnpjSindicatoCategoria + "/" + LGrupo.TipoVinculoDesc + "/" +
                  LGrupo.Fgts.CategoriaDesc);
    EXPECT_EQ(5, LGrupo.DataBaseCateg);
}

TEST_F(TTesteVinculo, ConfiguracaoDoCeletistaCarregaMesmoForaDaLista)
{
    const auto LTodos = {
        std::tuple{"1", "1", "Normal/1-Submetidos a horário de trabalho (Cap. II da CLT)/1/1"},
        {"2", "2", "Decorrente de ação fiscal/2-Atividade externa especif. no Inciso I do Art. 62 da CLT/2/2"},
        {"3", "3", "Decorrente de decisão judicial/3-Funções especificadas no Inciso II do Art. 62 da CLT/3/3"},
        {"4", "4", "/4-Teletrabalho, previsto no Inciso III do Art. 62 da CLT/4/4"},
        {"x", "99999999999", "//0/0"}};
    TTarvoESocialCamposInfoCeletista LGrupo(ID, D(2021, 3, 1));
    for (const auto& [LAdmissao, LJornada, LEsperado] : LTodos) {
        Executar("DELETE FROM SC00_EMPREGADOCFG");
        Configurar(38, 7, D(2021, 2, 1), nullptr, LAdmissao, "1", "1", LJornada);
        LGrupo.CarregarDados(&NENHUM);
        EXPECT_EQ(LEsperado, LGrupo.IndicativoAdmissao + "/" + LGrupo.TipoRegimeJornada + "/" +
                                 std::to_string(LGrupo.CodIndicativoAdmissao) + "/" +
                                 std::to_string(LGrupo.CodTipoRegimeJornada));
    }
    EXPECT_TRUE(LGrupo.DataAdmissao.Vazia());

    // Without a row the texts are emptied and the codes stay.
    LGrupo.IndicativoAdmissao = LGrupo.TipoRegimeJornada = "antes";
    LGrupo.CodIndicativoAdmissao = 5;
    Executar("DELETE FROM SC00_EMPREGADOCFG");
    LGrupo.SetCarregarDadosDoGrupo(false);
    LGrupo.CarregarDados();
    EXPECT_EQ("", LGrupo.IndicativoAdmissao + LGrupo.TipoRegimeJornada);
    EXPECT_EQ(5, LGrupo.CodIndicativoAdmissao);
}

TEST_F(TTesteVinculo, ComDuasLinhasVigentesOsCodigosSaoOsDaPrimeiraDoBanco)
{
    // The group's own statement finds the newest row by the id, the second one any row by the codes. Here each finds
    // one row, not the same.
    Configurar(38, 7, D(2021, 1, 1), nullptr, "1", "1", "1", "1");
    Executar("UPDATE SC00_EMPREGADOCFG SET IDEMPREGADO = 99");
    Configurar(38, 7, D(2021, 2, 1), nullptr, "3", "1", "1", "4");
    Executar("UPDATE SC00_EMPREGADOCFG SET COD_EMPREGADO = 99 WHERE IDEMPREGADO = 7");
    TTarvoESocialCamposInfoCeletista LGrupo(ID, D(2021, 3, 1));
    LGrupo.CarregarDados();
    EXPECT_EQ("Normal", LGrupo.IndicativoAdmissao);
    EXPECT_EQ(1, LGrupo.CodIndicativoAdmissao);
    Executar("DELETE FROM SC00_EMPREGADOCFG WHERE IDEMPREGADO = 99");
    LGrupo.CarregarDados();
    EXPECT_EQ("", LGrupo.IndicativoAdmissao);
    EXPECT_EQ(3, LGrupo.CodIndicativoAdmissao);
    EXPECT_EQ(4, LGrupo.CodTipoRegimeJornada);
}

TEST_F(TTesteVinculo, EstatutarioCarregaEmQualquerRegimeEDataInvalidaFalha)
{
    Inserir("SC00_EMPREGADOCFG", {{"IDEMPREGADO", ID},
                                  {"ORIGEM", 90},
                                  {"ESPECIE", 38},
                                  {"TP", 10},
                                  {"DATAINICIO", D(2021, 2, 1)},
                                  {"INFORMACAO1", "1"},
                                  {"INFORMACAO2", "PROC"},
                                  {"INFORMACAO3", "2"},
                                  {"INFORMACAO4", "05/01/2018"},
                                  {"INFORMACAO5", "06.01.18"},
                                  {"INFORMACAO6", "07/01/2018"},
                                  {"INFORMACAO7", "3"}});
    Configurar(38, 7, D(2021, 1, 1), nullptr, "1", "1", "1", "1");
    TTarvoESocialCamposInfoRegimeTrab LGrupo(ID, D(2021, 2, 1));
    LGrupo.CarregarDados();
    const auto& LEstatutario = LGrupo.InfoEstatutario;
    EXPECT_EQ("1/2/3/PROC", std::to_string(LEstatutario.IndProvimento) + "/" +
                                std::to_string(LEstatutario.TipoProvimento) + "/" +
                                std::to_string(LEstatutario.tpPlanRP) + "/" + LEstatutario.nrProcJud);
    EXPECT_EQ(D(2018, 1, 5), LEstatutario.DataNomeacao);
    EXPECT_EQ(D(2018, 1, 6), LEstatutario.DataPosse);
    EXPECT_EQ(D(2018, 1, 7), LEstatutario.DataExercicio);
    EXPECT_EQ(ID, LEstatutario.IdEmpregado());

    for (const char* LTexto : {"'30/02/2018'", "''"}) {
        Executar("UPDATE SC00_EMPREGADOCFG SET INFORMACAO5 = " + std::string(LTexto) + " WHERE TP = 10");
        EXPECT_THROW(LGrupo.CarregarDados(), EConvertError);
    }
    TTarvoESocialCamposInfoEstatutario LAntes(ID, D(2021, 1, 31));
    LAntes.CarregarDados();
    EXPECT_EQ(0, LAntes.IndProvimento);
}

TEST_F(TTesteVinculo, TrabalhoTemporario)
{
    Detalhe(1, 6, {"x", "x", "x", "x"}, "Prorrogado");
    Detalhe(1, 5, {"x", "x", "x", "x"}, "outro");
    for (const auto& [LMotivo, LTem, LTexto] :
         {std::tuple{"1", true, "1-Necessidade de substituição transitória de pessoal permanente"},
          {"2", true, "2-Demanda complementar de serviços"},
          {"3", true, ""},
          {"0", false, ""},
          {"-1", false, ""},
          {"", false, ""},
          {"um", false, ""}}) {
        Executar("DELETE FROM SC00_EMPREGADOCFG");
        Configurar(38, 9, D(2021, 2, 1), D(2021, 3, 1), LMotivo, "111", "2");
        TTarvoESocialCamposTrabTemporario LGrupo(ID, D(2021, 3, 1));
        LGrupo.CarregarDados();
        EXPECT_EQ(LTem, LGrupo.PossuiInformacao()) << LMotivo;
        EXPECT_EQ(LTexto, LGrupo.MotivoContratoDesc);
        EXPECT_EQ(2, LGrupo.tpInclContr);
        EXPECT_EQ("111", LGrupo.IdeTrabSubstituido.Cpf);
        EXPECT_EQ("Prorrogado", LGrupo.justprorr);
    }
    Configurar(38, 9, D(2021, 3, 2), D(2021, 3, 5), "1", "222", "2");
    Configurar(38, 9, D(2021, 3, 4), nullptr, "2", "222", "2");
    for (const auto& [LData, LMotivo] : {std::pair{D(2021, 3, 3), "1"}, {D(2021, 3, 4), "2"}, {D(2021, 3, 6), "2"}}) {
        TTarvoESocialCamposTrabTemporario LGrupo(ID, LData);
        LGrupo.CarregarDados();
        EXPECT_EQ(LMotivo, LGrupo.MotivoContratoCod);
    }
    Executar("DELETE FROM SC00_EMPREGADOCFG WHERE DATAINICIO >= '02.03.2021'");
    TTarvoESocialCamposTrabTemporario LDepois(ID, D(2021, 3, 2));
    LDepois.CarregarDados();
    EXPECT_EQ("", LDepois.MotivoContratoCod + LDepois.IdeTrabSubstituido.Cpf);
    EXPECT_FALSE(LDepois.PossuiInformacao());
}

class TTesteTomador : public TTesteComTrabalhador {
protected:
    void SetUp() override
    {
        TTesteComTrabalhador::SetUp();
        Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 1},
                                  {"CODIGO", 500},
                                  {"TIPOINSCR", "CNPJ"},
                                  {"INSCRICAO", "55"},
                                  {"CATEGORIA", "98-Tomador"}});
        Movimento(D(2021, 2, 28), D(2021, 2, 28));
    }

    static void Movimento(TDateTime AInicio, TValorSql AFim)
    {
        Executar("DELETE FROM MOV_PRESTSERV");
        Inserir("MOV_PRESTSERV", {{"COD_PRESTSERV", 500},
                                  {"COD_EMPRESA", 10},
                                  {"COD_FILIAL", 20},
                                  {"COD_DEPTO", 301},
                                  {"DATA_MOVIMENTO", AInicio},
                                  {"DATAFIMMOV", AFim}});
    }

    static std::string Tomador()
    {
        // The date given has no effect.
        TTarvoESocialCamposIdeTomadorServ LGrupo(ID, D(1999, 1, 1));
        LGrupo.CarregarDados();
        return LGrupo.TipoInscricao + LGrupo.NumeroInscricao;
    }
};

TEST_F(TTesteTomador, ContaOMesDaAdmissao)
{
    struct TCaso {
        TDateTime Inicio;
        TValorSql Fim;
        const char* Esperado;
    };
    for (const auto& LCaso : {TCaso{D(2021, 2, 28), D(2021, 2, 28), "CNPJ55"}, TCaso{D(2021, 3, 1), nullptr, ""},
                              TCaso{D(2020, 1, 1), D(2021, 2, 1), "CNPJ55"}, TCaso{D(2020, 1, 1), D(2021, 1, 31), ""},
                              TCaso{D(2020, 1, 1), nullptr, "CNPJ55"}}) {
        Movimento(LCaso.Inicio, LCaso.Fim);
        EXPECT_EQ(LCaso.Esperado, Tomador()) << LCaso.Fim.Texto();
    }
}

TEST_F(TTesteTomador, EmpregadorQueComecouDepoisContaOSeuMes)
{
    const auto Comecar = [](const char* APrimeira, TValorSql ASegunda) {
        Executar("DELETE FROM SC00_EMPRESACFG");
        Inserir("SC00_EMPRESACFG", {{"IDEMPRESA", 1},
                                    {"ORIGEM", 90},
                                    {"ESPECIE", 38},
                                    {"TP", 10},
                                    {"DATAINICIO", D(2018, 1, 1)},
                                    {"INFORMACAO1", APrimeira},
                                    {"INFORMACAO2", ASegunda}});
    };
    Comecar("01/01/2018", "10/04/2021");
    EXPECT_EQ("", Tomador());
    Movimento(D(2021, 4, 30), D(2021, 4, 1));
    EXPECT_EQ("CNPJ55", Tomador());
    // Of the two dates the second counts, and the later of it and the admission.
    Comecar("10/04/2021", "01/02/2021");
    EXPECT_EQ("", Tomador());
    Comecar("10/04/2021", nullptr);
    EXPECT_EQ("CNPJ55", Tomador());
    Comecar("10/04/2021", "abril");
    EXPECT_THROW(Tomador(), EConvertError);
}

TEST_F(TTesteTomador, SoTomadorDoLugarDoTrabalhador)
{
    for (const char* LComando :
         {"UPDATE MOV_PRESTSERV SET COD_EMPRESA = 11", "UPDATE MOV_PRESTSERV SET COD_FILIAL = 21",
          "UPDATE MOV_PRESTSERV SET COD_DEPTO = 302", "UPDATE PREST_SERVICO SET CATEGORIA = '97-Outro'",
          "UPDATE PREST_SERVICO SET CODIGO = 501", "UPDATE MOV_TRANSF SET DATAINICIOMOV = '01.03.2021'"}) {
        Conexao().Executar("SAVEPOINT ANTES");
        Executar(LComando);
        EXPECT_EQ("", Tomador()) << LComando;
        Conexao().Executar("ROLLBACK TO SAVEPOINT ANTES");
        EXPECT_EQ("CNPJ55", Tomador());
    }
    // The place at the end of the month is the newest.
    Transferir(D(2021, 2, 28), "TRANSFERENCIA", 302);
    EXPECT_EQ("", Tomador());
}

TEST_F(TTesteVinculo, SucessaoETransferenciaLeemAMesmaLinha)
{
    TTarvoESocialCamposSucessaoVinc LSucessao(ID);
    LSucessao.CarregarDados();
    EXPECT_EQ(D(2021, 2, 1), LSucessao.DataAdmissaoEmpreg);
    EXPECT_EQ("", LSucessao.CnpjEmpregadorAnterior);

    Detalhe(1, 2, {"outro", "outro", "01/01/2000", "9"}, "outro");
    Detalhe(1, 3, {"22113344000140", "771", "15/03/2014", "1"}, "Sucessão");
    Empregado("TIPOADMISSAO = 1");
    LSucessao.CarregarDados();
    TTarvoESocialCampostransfDom LTransferencia(ID);
    LTransferencia.CarregarDados();
    EXPECT_EQ("22113344000140/771/15/03/2014/1/Sucessão",
              LSucessao.CnpjEmpregadorAnterior + "/" + LSucessao.MatriculaAnterior + "/" + LSucessao.DataInicioVinculo +
                  "/" + LSucessao.TpInscEmpregador + "/" + LSucessao.Observacao);
    EXPECT_EQ("22113344000140/771", LTransferencia.cpfSubstituido + "/" + LTransferencia.matricAnt);
    EXPECT_EQ(D(2014, 3, 15), LTransferencia.dtTransf);

    // A text that is no date is a text for the succession and a failure for the transfer.
    Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO3 = 'março de 2014'");
    LSucessao.CarregarDados();
    EXPECT_EQ("março de 2014", LSucessao.DataInicioVinculo);
    EXPECT_THROW(LTransferencia.CarregarDados(), EConvertError);
}

TEST_F(TTesteVinculo, AfastamentoEmCursoComecouAntesDaData)
{
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 1803}, {"TABELA", 18}, {"CODIGO", "03"}});
    const auto Situacao = [](const char* ACodigo, TDateTime AInicio, TValorSql AFim, TValorSql ATabela,
                             const char* ANome) {
        Inserir("SITUACOES", {{"IDEMPREGADO", ID},
                              {"SITUACAO", ACodigo},
                              {"DATA", AInicio},
                              {"DATA_FIM", AFim},
                              {"IDESOCIALTABELA18", ATabela},
                              {"NOME", ANome}});
    };
    Situacao("05", D(2021, 3, 1), D(2021, 3, 10), 1803, "Doença");
    Situacao("06", D(2021, 3, 5), D(2021, 3, 8), nullptr, "Licença");
    Situacao("01", D(2021, 3, 6), nullptr, 1803, "Ativo");
    Situacao("02", D(2021, 3, 7), nullptr, 1803, "Demitido");
    Situacao("07", D(2021, 4, 1), nullptr, 1803, "Aberta");
    for (const auto& [LData, LEsperado] : {std::pair{D(2021, 3, 1), "/"},
                                           {D(2021, 3, 2), "03/Doença"},
                                           {D(2021, 3, 6), "/Licença"},
                                           {D(2021, 3, 8), "/Licença"},
                                           {D(2021, 3, 10), "03/Doença"},
                                           {D(2021, 3, 11), "/"},
                                           {D(2021, 4, 2), "03/Aberta"}}) {
        TTarvoESocialCamposAfastamento LGrupo(ID, LData);
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.CodigoSituacao + "/" + LGrupo.DescricaoSituacao);
        EXPECT_EQ(LGrupo.DescricaoSituacao == "Aberta" || LGrupo.DescricaoSituacao.empty(),
                  LGrupo.DataFimSituacao.Vazia());
    }
}

TEST_F(TTesteVinculo, DesligamentoSoComRescisaoDeSituacaoZero)
{
    Empregado("DATA_DEMISSAO = '20.03.2021'");
    const auto Tem = [] {
        TTarvoESocialCamposDesligamento LGrupo(ID);
        LGrupo.CarregarDados();
        EXPECT_EQ(LGrupo.PossuiInformacao(), LGrupo.DataDesligamento == D(2021, 3, 20));
        return LGrupo.PossuiInformacao();
    };
    EXPECT_FALSE(Tem());
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 10}, {"COD_EMPREGADO", 70}, {"SITUACAO", 1}});
    EXPECT_FALSE(Tem());
    Inserir("TAB_RESCISAO", {{"COD_EMPRESA", 10}, {"COD_EMPREGADO", 70}, {"SITUACAO", 0}});
    EXPECT_TRUE(Tem());
}

TEST_F(TTesteVinculo, FilhosCarregamNaOrdemETambemSemOPai)
{
    const std::vector<std::string> LOrdem{"TIPO_REG_TRAB",
                                          "TIPO_ADMISSAO_DESC",
                                          "INDIC_ADMISSAO",
                                          "CONTRATO_DESC",
                                          "MOTIVO_CONTRAT",
                                          "EXECUTE BLOCK",
                                          "AS CPF",
                                          "DTNOMEACAO",
                                          "AS CARGO",
                                          "SQL_EMPREGADOSDET",
                                          "FROM SITUACOES",
                                          "TAB_RESCISAO",
                                          "FP_EMPREGADOSDET.INFORMACAO3"};
    TTarvoESocialCamposVinculo LGrupo(ID, D(2021, 3, 1));
    EXPECT_EQ(LOrdem, OrdemDaCarga(LGrupo, LOrdem));
    LGrupo.SetCarregarDadosDoGrupo(false);
    EXPECT_EQ(std::vector<std::string>(LOrdem.begin() + 1, LOrdem.end()), OrdemDaCarga(LGrupo, LOrdem));
}

TEST_F(TTesteVinculo, ListaRecarregaSoOsGruposDela)
{
    TTarvoESocialCamposVinculo LGrupo(ID, D(2021, 3, 1));
    LGrupo.CarregarDados();
    Empregado("CODIGOESOCIAL = 'NOVA', CONTRATO = '01-Novo', TPCONTRATO = 2");
    const TListaCamposModificados LLista{"{51040834-763A-497C-93C6-3F48F092FDBA}",
                                         "{AEF38A88-2193-474A-B55A-FBAA3B4DE942}"};
    LGrupo.CarregarDados(&LLista);
    EXPECT_EQ("MAT-7", LGrupo.Matricula);
    EXPECT_EQ("01-Novo", LGrupo.InfoRegimeTrab.InfoCeletista.Fgts.Categoria);
    EXPECT_EQ("Prazo determinado, definido em dias", LGrupo.InfoContrato.Duracao.TipoContratoDesc);
    EXPECT_EQ("", LGrupo.InfoContrato.LocalTrabalho.LocalTrabDom.Contrato);
}

class TTesteVinculoExemplo : public TTesteComExemplo {};

// The tree as it stands, for the worker whose bond shows the branches that the others don't.
TEST_F(TTesteVinculoExemplo, DomesticaTransferida)
{
    TTarvoESocialCamposVinculo LGrupo(7401, D(2021, 3, 1));
    LGrupo.CarregarDados();
    ConferirGolden("grupos/vinculo_domestica", LGrupo.ToJson().AsJSON(true));
}

} // namespace
} // namespace tarvo::testes
