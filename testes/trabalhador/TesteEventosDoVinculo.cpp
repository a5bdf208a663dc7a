#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "imports/UnOvraExcecoes.h"
#include "trabalhador/UnTrabalhadorDeTeste.h"
#include "trabalhador/s2230/UnTarvoESocialCamposS2230.h"
#include "trabalhador/s2250/UnTarvoESocialCamposS2250.h"
#include "trabalhador/s2260/UnTarvoESocialCamposConversorCodHorario.h"
#include "trabalhador/s2260/UnTarvoESocialCamposS2260.h"
#include "trabalhador/s2298/UnTarvoESocialCamposS2298.h"
#include "trabalhador/s3000/UnTarvoESocialCamposS3000.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

class TTesteAfastamentoTemporario : public TTesteComTrabalhador {
protected:
    void SetUp() override
    {
        TTesteComTrabalhador::SetUp();
        for (const char* LCodigo : {"01", "03", "15"})
            Inserir("FP_ESOCIALTABELA",
                    {{"IDESOCIALTABELA", 1800 + std::stoi(LCodigo)}, {"TABELA", 18}, {"CODIGO", LCodigo}});
    }

    void Situacao(int AId, TValorSql AMotivo, TValorSql ACodRecFgts = nullptr, TValorSql AFim = nullptr)
    {
        Inserir("SITUACOES", {{"IDSITUACAO", AId},
                              {"IDEMPREGADO", ID},
                              {"DATA", D(2021, 3, 8)},
                              {"DATA_FIM", AFim},
                              {"IDESOCIALTABELA18", AMotivo},
                              {"COD_REC_FGTS", ACodRecFgts},
                              {"TIPOACIDENTE", 2}});
    }
};

TEST_F(TTesteAfastamentoTemporario, InicioOuTerminoERetificacaoNosDois)
{
    Situacao(1, 1801, "09", D(2021, 3, 31));
    Detalhe(5, 1, {"1", "2", "1", "60"});
    Inserir("ES02_SPPROC", {{"IDSPPROC", 60}, {"NUMERO", "PROC-60"}});
    // Any other ordinal is the end.
    for (const int LTipo : {0, 1, 2, 9}) {
        TTarvoESocialCamposS2230 LEvento(1, static_cast<TTipoEventoS2230>(LTipo));
        LEvento.CarregarDados();
        const auto& LInfo = LEvento.infoAfastamento;
        EXPECT_EQ("MAT-7", LEvento.ideVinculo.matricula);
        EXPECT_EQ(LTipo == 1 ? D(2021, 3, 8) : TDateTime(), LInfo.iniAfastamento.DtIniAfast);
        EXPECT_EQ(LTipo == 1 ? "01/SIM" : "/",
                  LInfo.iniAfastamento.codMotAfast + "/" + LInfo.iniAfastamento.infoMesmoMtv);
        EXPECT_EQ(LTipo == 1 ? TDateTime() : D(2021, 3, 31), LInfo.fimAfastamento.dtTermAfast);
        EXPECT_EQ("2/1/PROC-60",
                  LInfo.infoRetif.origRetif + "/" + LInfo.infoRetif.tpProc + "/" + LInfo.infoRetif.nrProc);
    }
    // The tree shows the correction between the two sides, though it is the last to be made and loaded.
    const auto LJson = TTarvoESocialCamposS2230(1, TTipoEventoS2230::Inicio).ToJson().AsJSON(false);
    EXPECT_LT(LJson.find("iniAfastamento"), LJson.find("infoRetif"));
    EXPECT_LT(LJson.find("infoRetif"), LJson.find("fimAfastamento"));
}

TEST_F(TTesteAfastamentoTemporario, MesmoMotivoSoEmAcidenteEDoenca)
{
    int LId = 0;
    for (const auto& [LMotivo, LCodigo, LEsperado] : {std::tuple<TValorSql, TValorSql, const char*>{1801, "09", "SIM"},
                                                      {1803, "11", "SIM"},
                                                      {1801, "10", "NAO"},
                                                      {1803, nullptr, "NAO"},
                                                      {1815, "09", ""},
                                                      {nullptr, "11", ""}}) {
        Situacao(++LId, LMotivo, LCodigo);
        TTarvoESocialCamposiniAfastamento LGrupo(LId);
        LGrupo.infoMesmoMtv = "antes";
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.infoMesmoMtv) << LId;
    }
}

TEST_F(TTesteAfastamentoTemporario, DoencaSemAtestadoMostraOsDiasDaSituacao)
{
    Situacao(1, 1803, nullptr, D(2021, 3, 10));
    Situacao(2, 1803);
    Situacao(3, 1801, nullptr, D(2021, 3, 10));
    Situacao(4, 1803, nullptr, D(2021, 3, 8));
    for (const auto& [LId, LDias] : {std::pair{1, 3}, {2, 0}, {3, -1}, {4, 1}}) {
        TTarvoESocialCamposiniAfastamento LGrupo(LId);
        LGrupo.CarregarDados();
        ASSERT_EQ(LDias < 0 ? 0U : 1U, LGrupo.infoAtestado.size()) << LId;
        if (LDias < 0)
            continue;
        EXPECT_EQ(LDias, LGrupo.infoAtestado[0]->qtDiasAfast);
        EXPECT_EQ("", LGrupo.infoAtestado[0]->codCID + LGrupo.infoAtestado[0]->Emitente.nmEmit);
    }
}

TEST_F(TTesteAfastamentoTemporario, AtestadosSaoRefeitosACadaCargaMesmoForaDaLista)
{
    Situacao(1, 1803, nullptr, D(2021, 3, 10));
    Inserir("FP_CID", {{"IDCID", 4}, {"CODIGO", "M545"}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 3}, {"NOME", "Dra."}, {"SIGLACONSCLASSE", "crm"}});
    Inserir("FP_SITUACAOATESTADO", {{"IDSITUACAO", 1}, {"IDPRESTSERVICO", 3}, {"IDCID", 4}, {"QTDDIASAFAST", 2}});
    TTarvoESocialCamposiniAfastamento LGrupo(1);
    // The reason isn't there yet, so the list has what the table has.
    LGrupo.CarregarDados(&NENHUM);
    EXPECT_EQ("", LGrupo.codMotAfast);
    LGrupo.CarregarDados();
    ASSERT_EQ(1U, LGrupo.infoAtestado.size());
    const auto& LAtestado = *LGrupo.infoAtestado[0];
    EXPECT_EQ("M545/Dra.", LAtestado.codCID + "/" + LAtestado.Emitente.nmEmit);
    EXPECT_EQ(2, LAtestado.qtDiasAfast);
    EXPECT_EQ(tpIdeOC::CRM, LAtestado.Emitente.ideOC);

    Inserir("FP_SITUACAOATESTADO", {{"IDSITUACAO", 1}, {"QTDDIASAFAST", 5}});
    Inserir("FP_SITUACAOATESTADO", {{"IDSITUACAO", 2}, {"QTDDIASAFAST", 9}});
    LGrupo.SetCarregarDadosDoGrupo(false);
    LGrupo.CarregarDados(&NENHUM);
    ASSERT_EQ(2U, LGrupo.infoAtestado.size());
    EXPECT_EQ(7, LGrupo.infoAtestado[0]->qtDiasAfast + LGrupo.infoAtestado[1]->qtDiasAfast);
    Executar("DELETE FROM FP_SITUACAOATESTADO");
    LGrupo.CarregarDados(&NENHUM);
    ASSERT_EQ(1U, LGrupo.infoAtestado.size());
    EXPECT_EQ(3, LGrupo.infoAtestado[0]->qtDiasAfast);
}

TEST_F(TTesteAfastamentoTemporario, CessaoEMandatoPelaSituacaoEmTexto)
{
    Situacao(1, 1815);
    // Texts that are no number, and rows of the other kind, belong to no situation.
    Detalhe(3, 1, {"um", "texto", "9"});
    Detalhe(3, 1, {nullptr, "nulo", "9"});
    Detalhe(3, 1, {" 1 ", "551", "1"});
    Detalhe(3, 2, {"01", "612", "2"});
    TTarvoESocialCamposiniAfastamento LGrupo(1);
    LGrupo.CarregarDados();
    EXPECT_EQ("551/612", LGrupo.infoCessao.cnpjCess + "/" + LGrupo.infoMandSind.cnpjSind);
    EXPECT_EQ(1, LGrupo.infoCessao.infOnus);
    EXPECT_EQ(2, LGrupo.infoMandSind.infOnusRemun);
    // The correction compares the text itself.
    Detalhe(5, 1, {"01", "1", "2"});
    TTarvoESocialCamposinfoRetif LRetificacao(1);
    LRetificacao.CarregarDados();
    EXPECT_EQ("", LRetificacao.origRetif);
    Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO1 = '1' WHERE ESPECIE = 5");
    LRetificacao.CarregarDados();
    EXPECT_EQ("1/2/", LRetificacao.origRetif + "/" + LRetificacao.tpProc + "/" + LRetificacao.nrProc);
}

TEST_F(TTesteAfastamentoTemporario, OrdemDosDoisLados)
{
    Situacao(1, 1803);
    Inserir("FP_SITUACAOATESTADO", {{"IDSITUACAO", 1}, {"QTDDIASAFAST", 2}});
    const std::vector<std::string> LOrdem{"COD_CATEG",
                                          "COD_MOT_AFAST",
                                          "COD_CID",
                                          "UFCONSCLASSE",
                                          "FP_EMPREGADOSDET.TP = 1\n",
                                          "FP_EMPREGADOSDET.TP = 2",
                                          "ES02_SPPROC"};
    TTarvoESocialCamposS2230 LInicio(1, TTipoEventoS2230::Inicio);
    EXPECT_EQ(LOrdem, OrdemDaCarga(LInicio, LOrdem));
    const std::vector<std::string> LDoTermino{"COD_CATEG", "SITUACOES.DATA_FIM", "ES02_SPPROC"};
    TTarvoESocialCamposS2230 LTermino(1, TTipoEventoS2230::Termino);
    EXPECT_EQ(LDoTermino, OrdemDaCarga(LTermino, LDoTermino));
}

TEST_F(TTesteAfastamentoTemporario, AListaAlcancaCadaGrupoESoEle)
{
    Situacao(1, 1815);
    TTarvoESocialCamposS2230 LInicio(1, TTipoEventoS2230::Inicio);
    const auto& LInfo = LInicio.infoAfastamento;
    ConferirListaDeUmGrupo(
        LInicio,
        {&LInicio.ideVinculo, &LInfo.iniAfastamento, &LInfo.iniAfastamento.infoCessao,
         &LInfo.iniAfastamento.infoMandSind, &LInfo.infoRetif},
        {"COD_CATEG", "COD_MOT_AFAST", "FP_EMPREGADOSDET.TP = 1\n", "FP_EMPREGADOSDET.TP = 2", "ES02_SPPROC"});
    // The side that isn't reported can't be reached.
    const TListaCamposModificados LLista{std::string(LInfo.fimAfastamento.GuidClasse())};
    EXPECT_TRUE(OrdemDaCarga(LInicio, {"SITUACOES.DATA_FIM"}, &LLista).empty());
    TTarvoESocialCamposS2230 LTermino(1, TTipoEventoS2230::Termino);
    EXPECT_EQ(1U, OrdemDaCarga(LTermino, {"SITUACOES.DATA_FIM"}, &LLista).size());
}

TEST_F(TTesteAfastamentoTemporario, FalhaNaRetificacaoGuardaOQueJaVeio)
{
    Situacao(1, 1803, "09", D(2021, 3, 10));
    Detalhe(5, 1, {"1", "2", "1", "PROC-60"});
    TTarvoESocialCamposS2230 LEvento(1, TTipoEventoS2230::Inicio);
    EXPECT_THROW(LEvento.CarregarDados(), EDatabaseError);
    EXPECT_EQ("MAT-7/SIM/", LEvento.ideVinculo.matricula + "/" + LEvento.infoAfastamento.iniAfastamento.infoMesmoMtv +
                                "/" + LEvento.infoAfastamento.infoRetif.origRetif);
    EXPECT_EQ(1U, LEvento.infoAfastamento.iniAfastamento.infoAtestado.size());
    Executar("UPDATE FP_EMPREGADOSDET SET INFORMACAO4 = NULL");
    LEvento.CarregarDados();
    EXPECT_EQ("2", LEvento.infoAfastamento.infoRetif.origRetif);
    EXPECT_EQ(1U, LEvento.infoAfastamento.iniAfastamento.infoAtestado.size());
}

TEST_F(TTesteAfastamentoTemporario, MotivoNovoEListaDeAtestadosNaRecarga)
{
    Situacao(1, 1801);
    Inserir("FP_SITUACAOATESTADO", {{"IDSITUACAO", 1}, {"QTDDIASAFAST", 2}});
    TTarvoESocialCamposiniAfastamento LGrupo(1);
    LGrupo.CarregarDados();
    // The list of certificates follows the table at once, the reason only when the group itself is read again.
    Executar("UPDATE SITUACOES SET IDESOCIALTABELA18 = 1803, TIPOACIDENTE = NULL, OBSERVACAOESOCIAL = 'nova'");
    Executar("UPDATE FP_SITUACAOATESTADO SET IDSITUACAO = 2");
    const TListaCamposModificados LLista{std::string(LGrupo.infoCessao.GuidClasse())};
    LGrupo.CarregarDados(&LLista);
    EXPECT_TRUE(LGrupo.infoAtestado.empty());
    LGrupo.CarregarDados();
    ASSERT_EQ(1U, LGrupo.infoAtestado.size());
    // A column that is null keeps the former value.
    EXPECT_EQ(2, LGrupo.tpAcidTransito);
    EXPECT_EQ("nova", LGrupo.Observacao);
}

TEST_F(TTesteAfastamentoTemporario, CatalogoRecusaOrdinalQueNaoExiste)
{
    for (const char* LTipo : {"0", "3", "-1", "257"})
        EXPECT_THROW(ConstruirEvento("S-2230", {{"AIdSituacao", "1"}, {"ATipoEvento", LTipo}}), EArgumentoInvalido);
}

class TTesteEventosDoVinculo : public TTesteComTrabalhador {
protected:
    void Convocar(TDateTime AData, TValorSql AHorario, TValorSql ADia, TValorSql APrestador = nullptr)
    {
        Inserir("FP_CONTRAINTERM", {{"IDEMPREGADO", ID},
                                    {"DATACONVOCACAO", AData},
                                    {"DATAINICIO", D(2021, 3, 12)},
                                    {"IDHORARIO", AHorario},
                                    {"DIADASEMANA", ADia},
                                    {"IDPRESTSERVICO", APrestador},
                                    {"DESCRICAOJORNADA", "Evento"},
                                    {"LOCALPRESTACAO", 1}});
    }

    void Evento(int AId, const char* ATipo, std::int64_t AIdTabela, TValorSql ATipoTabela = nullptr)
    {
        Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", AId},
                                         {"TPEVENTO", ATipo},
                                         {"IDTABELAEVENTO", AIdTabela},
                                         {"TPIDTABELAEVENTO", ATipoTabela},
                                         {"INIVALID", D(2021, 3, 1)}});
    }
};

TEST_F(TTesteEventosDoVinculo, AvisoECancelamentoVemDaMesmaLinha)
{
    Inserir("FP_AVISOPREVIO", {{"IDAVISOPREVIO", 4},
                               {"IDEMPREGADO", ID},
                               {"DATAAVISO", D(2021, 3, 1)},
                               {"CODIGOESOCIAL", "2"},
                               {"OBSERVACAOAVISO", "do aviso"},
                               {"OBSERVACAOCANCEL", "do cancelamento"}});
    TTarvoESocialCamposS2250 LEvento(4);
    LEvento.CarregarDados();
    const auto& LInfo = LEvento.infoAvPrevio;
    EXPECT_EQ("MAT-7", LEvento.ideVinculo.matricula);
    EXPECT_EQ("2/do aviso/do cancelamento",
              LInfo.detAvPrevio.tpAvPrevio + "/" + LInfo.detAvPrevio.observacao + "/" + LInfo.cancAvPrevio.observacao);
    EXPECT_TRUE(LInfo.cancAvPrevio.dtCancAvPrv.Vazia());
    Executar("UPDATE FP_AVISOPREVIO SET DATACANCELAMENTO = '05.03.2021', OBSERVACAOAVISO = 'outra'");
    const TListaCamposModificados LLista{"{95482CA8-54DB-4824-A7CF-8AA4AE1276B5}"};
    LEvento.CarregarDados(&LLista);
    EXPECT_EQ(D(2021, 3, 5), LInfo.cancAvPrevio.dtCancAvPrv);
    EXPECT_EQ("do aviso", LInfo.detAvPrevio.observacao);
}

TEST_F(TTesteEventosDoVinculo, CodigoDoHorarioTemSeteDigitos)
{
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 1}, {"CODIGO", "101"}, {"TIPO", 1}});
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 2}, {"CODIGO", "1234567"}, {"TIPO", 4}});
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 3}, {"CODIGO", "103"}, {"TIPO", 3}});
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 4}, {"CODIGO", "104"}});
    int LDia = 0;
    for (const auto& [LHorario, LDiaDaSemana, LEsperado] :
         {std::tuple<TValorSql, TValorSql, const char*>{1, 1, "0001010"},
          {1, 7, "0001016"},
          // LPAD cuts a code of more than six digits.
          {2, 3, "1234562"},
          {3, 3, ""},
          {4, 3, ""},
          {nullptr, 3, ""},
          {1, nullptr, ""}}) {
        Convocar(D(2021, 3, ++LDia), LHorario, LDiaDaSemana);
        TTarvoESocialCamposJornada LGrupo(ID, D(2021, 3, LDia));
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.codHorContrat) << LDia;
        EXPECT_EQ("Evento", LGrupo.dscJornada);
    }
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 5}, {"CODIGO", "T1"}, {"TIPO", 1}});
    Convocar(D(2021, 4, 1), 5, 1);
    EXPECT_THROW(TTarvoESocialCamposJornada(ID, D(2021, 4, 1)).CarregarDados(), EDatabaseError);
}

TEST(TesteConversorCodHorario, NumeroEmSeteDigitosEOutroTextoComoVeio)
{
    TTarvoESocialCamposConversorCodHorario LConversor;
    for (const auto& [LTexto, LEsperado] : {std::pair{"1016", "0001016"},
                                            {"0001016", "0001016"},
                                            {"12345678", "12345678"},
                                            {"0", "0000000"},
                                            {"", ""},
                                            {"T1-6", "T1-6"},
                                            {"10,5", "10,5"},
                                            {"99999999999999999999", "99999999999999999999"}})
        EXPECT_EQ(LEsperado, LConversor.BuscarValor(LTexto));
}

TEST_F(TTesteEventosDoVinculo, ConvocacaoDoDiaELocalSoComTipoDeLogradouro)
{
    Inserir("CA06_CODLOGRAD", {{"IDCODLOGRAD", 1}, {"ABREVESOCIAL", "AV"}});
    Inserir(
        "PREST_SERVICO",
        {{"IDPRESTSERVICO", 3}, {"IDCODLOGRAD", 1}, {"ENDERECO", "Avenida Saúde"}, {"CEP", "13000-400"}, {"UF", "SP"}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 4}, {"ENDERECO", "Rua Sem Tipo"}});
    Convocar(D(2021, 3, 10), nullptr, 3, 3);
    Convocar(D(2021, 3, 11), nullptr, 3, 4);
    for (const auto& [LDia, LEsperado] :
         {std::pair{9, "//"}, {10, "1/AV/Avenida Saúde 13000400 SP"}, {11, "1//"}, {12, "//"}}) {
        // Of the id the low 32 bits count, so that a greater one meets the same worker.
        for (const auto LId : {ID, ID + (std::int64_t{1} << 32)}) {
            TTarvoESocialCamposInfoConvInterm LGrupo(LId, D(2021, 3, LDia));
            LGrupo.CarregarDados();
            const auto& LLocal = LGrupo.LocalTrab.LocalTrabInterm;
            EXPECT_EQ(LEsperado,
                      LGrupo.LocalTrab.indLocal + "/" + LLocal.tpLograd + "/" +
                          (LLocal.dscLograd.empty() ? "" : LLocal.dscLograd + " " + LLocal.cep + " " + LLocal.uf));
            EXPECT_EQ(LGrupo.dtInicio.Vazia(), LGrupo.LocalTrab.indLocal.empty());
        }
    }
    TTarvoESocialCamposS2260 LEvento(ID, D(2021, 3, 10));
    const std::vector<std::string> LOrdem{"COD_CATEG", "DATAPAGAMENTO", "LOCALPRESTACAO", "ABREVESOCIAL",
                                          "CODHORCONTRAT"};
    EXPECT_EQ(LOrdem, OrdemDaCarga(LEvento, LOrdem));
}

TEST_F(TTesteEventosDoVinculo, DataDaConvocacaoComHoraSoAchaAMesmaHora)
{
    Convocar(D(2021, 3, 10), nullptr, 3);
    Convocar(D(2021, 3, 11) + EncodeTime(8, 0, 0), nullptr, 3);
    for (const auto& [LData, LEsperado] : {std::pair{D(2021, 3, 10), "1"},
                                           {D(2021, 3, 10) + EncodeTime(8, 0, 0), ""},
                                           {D(2021, 3, 11), ""},
                                           {D(2021, 3, 11) + EncodeTime(8, 0, 0), "1"}}) {
        TTarvoESocialCamposLocalTrab LGrupo(ID, LData);
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.indLocal);
    }
}

TEST_F(TTesteEventosDoVinculo, AListaAlcancaCadaGrupoESoEle)
{
    TTarvoESocialCamposS2260 LConvocacao(ID, D(2021, 3, 10));
    const auto& LInfo = LConvocacao.InfoConvInterm;
    ConferirListaDeUmGrupo(
        LConvocacao,
        {&LConvocacao.ideVinculo, &LInfo, &LInfo.LocalTrab, &LInfo.LocalTrab.LocalTrabInterm, &LInfo.Jornada},
        {"COD_CATEG", "DATAPAGAMENTO", "LOCALPRESTACAO", "ABREVESOCIAL", "CODHORCONTRAT"});
    TTarvoESocialCamposS2250 LAviso(1);
    ConferirListaDeUmGrupo(LAviso,
                           {&LAviso.ideVinculo, &LAviso.infoAvPrevio.detAvPrevio, &LAviso.infoAvPrevio.cancAvPrevio},
                           {"COD_CATEG", "DATAAVISO", "DATACANCELAMENTO"});
    Evento(1, "S-2300", ID);
    TTarvoESocialCamposS3000 LExclusao(1);
    const auto& LEvento = LExclusao.InfoExclusao;
    ConferirListaDeUmGrupo(LExclusao, {&LEvento, &LEvento.ideTrabalhador, &LEvento.ideFolhaPagto},
                           {"REINFDET", "EMPREGADOS.PIS", "INDAPUR"});
    const std::vector<std::string> LOrdem{"REINFDET", "EMPREGADOS.PIS", "INDAPUR"};
    EXPECT_EQ(LOrdem, OrdemDaCarga(LExclusao, LOrdem));
}

TEST_F(TTesteEventosDoVinculo, EventoSemTrabalhadorAindaCarregaORestante)
{
    TTarvoESocialCamposS2260 LConvocacao(99, D(2021, 3, 10));
    LConvocacao.ideVinculo.matricula = "antes";
    LConvocacao.CarregarDados();
    EXPECT_EQ("antes", LConvocacao.ideVinculo.matricula);
    Inserir("FP_AVISOPREVIO", {{"IDAVISOPREVIO", 4}, {"OBSERVACAOAVISO", "sem dono"}});
    TTarvoESocialCamposS2250 LAviso(4);
    LAviso.CarregarDados();
    EXPECT_EQ("/sem dono", LAviso.ideVinculo.matricula + "/" + LAviso.infoAvPrevio.detAvPrevio.observacao);
    Inserir("SITUACOES", {{"IDSITUACAO", 9}, {"DATA_FIM", D(2021, 3, 31)}});
    TTarvoESocialCamposS2230 LTermino(9, TTipoEventoS2230::Termino);
    LTermino.CarregarDados();
    EXPECT_EQ("", LTermino.ideVinculo.matricula);
    EXPECT_EQ(D(2021, 3, 31), LTermino.infoAfastamento.fimAfastamento.dtTermAfast);
}

TEST_F(TTesteEventosDoVinculo, ReintegracaoSoTemAIdentificacao)
{
    TTarvoESocialCamposS2298 LEvento(ID);
    LEvento.infoReintegr.dtEfetRetorno = D(2021, 3, 1);
    LEvento.CarregarDados();
    EXPECT_EQ("MAT-7", LEvento.ideVinculo.matricula);
    EXPECT_EQ(D(2021, 3, 1), LEvento.infoReintegr.dtEfetRetorno);
}

TEST_F(TTesteEventosDoVinculo, ExclusaoSoComReciboAceito)
{
    int LId = 0;
    for (const auto& [LStatus, LTipo, LEsperado] : {std::tuple<int, TValorSql, const char*>{201, 13, "S-2300/recibo/2"},
                                                    {202, 12, "S-2300/recibo/1"},
                                                    {301, 13, "//2"},
                                                    {0, nullptr, "//1"}}) {
        Evento(++LId, "S-2300", ID, LTipo);
        if (LStatus != 0)
            Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", LId}, {"STATUS", LStatus}, {"DESCRICAO", "recibo"}});
        TTarvoESocialCamposS3000 LEvento(LId);
        LEvento.CarregarDados();
        const auto& LInfo = LEvento.InfoExclusao;
        EXPECT_EQ(LEsperado,
                  LInfo.tpEvento + "/" + LInfo.nrRecEvt + "/" + std::to_string(LInfo.ideFolhaPagto.indApuracao));
        EXPECT_EQ(D(2021, 3, 1), LInfo.ideFolhaPagto.perApur);
    }
}

TEST_F(TTesteEventosDoVinculo, TrabalhadorDaExclusaoPeloCpfOuPelaLinhaDeOrigem)
{
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 1}, {"CODIGO", "901"}});
    Empregado("CPF = '012.112.223-54', PIS = 'PIS-7', IDCATEGORIAESOCIAL = 1");
    // The newest admission of the CPF gives the number of the social integration.
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 8},
                           {"CPF", "012.112.223-54"},
                           {"PIS", "PIS-8"},
                           {"IDCATEGORIAESOCIAL", 99},
                           {"DATA_ADMISSAO", D(2021, 3, 1)}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 3}, {"CPF", "30111222370"}, {"INSCRICAO", "NIT-3"}});
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", 4}, {"CPF", "302.112.223-05"}, {"INSCRICAO", "NIT-4"}});
    Inserir("SITUACOES", {{"IDSITUACAO", 55}, {"IDEMPREGADO", ID}});
    int LId = 0;
    for (const auto& [LTipo, LIdTabela, LEsperado] :
         {std::tuple{"S-1200", std::int64_t{1211222354}, "012.112.223-54/PIS-8/0"},
          {"S-1210", std::int64_t{1211222354}, "012.112.223-54/PIS-8/0"},
          {"S-1210", std::int64_t{30111222370}, "30111222370/NIT-3/0"},
          // Punctuation of a provider's CPF is not taken off.
          {"S-1200", std::int64_t{30211222305}, "//0"},
          {"S-1200", ID, "//0"},
          {"S-2300", ID, "012.112.223-54/PIS-7/901"},
          {"s2200", ID, "012.112.223-54/PIS-7/901"},
          {"S-2230", std::int64_t{55}, "012.112.223-54/PIS-7/901"},
          // Without a category there is no row.
          {"S-2300", std::int64_t{8}, "//0"},
          {"S-1202", std::int64_t{1211222354}, "//0"}}) {
        Evento(++LId, LTipo, LIdTabela);
        TTarvoESocialCamposIdeTrabalhadorS3000 LGrupo(LId);
        LGrupo.CarregarDados();
        EXPECT_EQ(LEsperado, LGrupo.cpfTrab + "/" + LGrupo.nisTrab + "/" + std::to_string(LGrupo.CodCateg))
            << LTipo << " " << LIdTabela;
    }
}

TEST_F(TTesteEventosDoVinculo, TipoDesconhecidoFalhaNaConstrucao)
{
    Evento(1, "S-9999", ID);
    Evento(2, "S--2-300", ID);
    Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", 3}, {"IDTABELAEVENTO", ID}});
    for (const auto& [LId, LTexto] : {std::pair{1, "teS9999"}, {3, "te"}, {99, "te"}}) {
        try {
            ConstruirEvento("S-3000", {{"AIdEvento", std::to_string(LId)}});
            FAIL() << LId;
        } catch (const Exception& LErro) {
            EXPECT_EQ("Erro na conversão de string para enumerado. String: " + std::string(LTexto), LErro.what());
        }
    }
    // Every hyphen goes.
    EXPECT_NO_THROW(TTarvoESocialCamposS3000(2));
}

TEST_F(TTesteEventosDoVinculo, UmGuidRecarregaOAvisoEAExclusao)
{
    Evento(1, "S-2300", ID);
    Inserir("SC00_ESOCIALREINFDET", {{"IDEVENTO", 1}, {"STATUS", 201}, {"DESCRICAO", "recibo"}});
    const TListaCamposModificados LLista{"{F7ED58AC-87A4-439C-9E39-E0149056B449}"};
    TTarvoESocialCamposS3000 LExclusao(1);
    LExclusao.CarregarDados(&LLista);
    EXPECT_EQ("recibo/", LExclusao.InfoExclusao.nrRecEvt + "/" + LExclusao.InfoExclusao.ideTrabalhador.cpfTrab);
    EXPECT_EQ(LExclusao.InfoExclusao.GuidClasse(), TTarvoESocialCamposinfoAvPrevio(1).GuidClasse());
}

} // namespace
} // namespace tarvo::testes
