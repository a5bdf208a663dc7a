#include "trabalhador/UnOrdemDasLinhas.h"
#include "trabalhador/UnTrabalhadorDeTeste.h"
#include "trabalhador/contrato/UnTarvoESocialCamposInfoContrato.h"
#include "trabalhador/pessoa/UnTarvoESocialCamposTrabalhador.h"
#include "trabalhador/s2230/UnTarvoESocialCamposS2230.h"
#include "trabalhador/s2260/UnTarvoESocialCamposS2260.h"
#include "trabalhador/s2300/UnTarvoESocialCamposInfoTSVInicio.h"
#include "trabalhador/s3000/UnTarvoESocialCamposS3000.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposVinculo.h"

namespace tarvo::testes {
namespace {

using namespace trabalhador;

constexpr std::int64_t ID = 7;

template <class T>
std::unique_ptr<T> NaData()
{
    auto LGrupo = std::make_unique<T>(ID, D(2021, 3, 1));
    LGrupo->CarregarDados();
    return LGrupo;
}

template <class T>
std::unique_ptr<T> Do(std::int64_t AId)
{
    auto LGrupo = std::make_unique<T>(AId);
    LGrupo->CarregarDados();
    return LGrupo;
}

constexpr const char* CFG = "SC00_EMPREGADOCFG (IDEMPREGADOCFG, IDEMPREGADO, COD_EMPRESA, COD_EMPREGADO, ORIGEM, "
                            "ESPECIE, TP, DATAINICIO, DATAFIM, INFORMACAO1, INFORMACAO2, INFORMACAO3)";
constexpr const char* DETALHE = "FP_EMPREGADOSDET (IDEMPREGADOSDET, IDEMPREGADO, ESPECIE, TP, INFORMACAO1, "
                                "INFORMACAO2, INFORMACAO3, INFORMACAO5, INFORMACAO7, INFORMACAO10)";

class TTesteOrdemDasLinhas : public TTesteComTrabalhador, public ::testing::WithParamInterface<TParametroDeOrdem> {};

TEST_P(TTesteOrdemDasLinhas, NaoMudaOResultado) { ConferirOrdem(GetParam()); }

std::string Fones()
{
    const auto LGrupo = Do<TTarvoESocialCamposContato>(ID);
    return LGrupo->FonePrincipal + "/" + LGrupo->FoneAlternativo + "/" + LGrupo->EmailPrincipal;
}

std::string Local()
{
    const auto LGrupo = NaData<TTarvoESocialCamposLocalTrabGeral>();
    return std::to_string(LGrupo->IdFilial) + "/" + std::to_string(LGrupo->IdDepto);
}

std::string Salario()
{
    const auto LGrupo = NaData<TTarvoESocialCamposRemuneracao>();
    return std::to_string(static_cast<int>(LGrupo->ValorSalarioFixo)) + " " + LGrupo->DescricaoSalarioVariavel + " " +
           NaData<TTarvoESocialCamposInfoEstagiario>()->vlrBolsa;
}

std::string Estagio()
{
    const auto LGrupo = NaData<TTarvoESocialCamposInfoEstagiario>();
    return LGrupo->natEstagio + "/" + LGrupo->instEnsino.nmRazao + "/" + LGrupo->supervisorEstagio.nmSuperv;
}

std::string Convocacao()
{
    TTarvoESocialCamposS2260 LEvento(ID, D(2021, 3, 1));
    LEvento.CarregarDados();
    const auto& LConv = LEvento.InfoConvInterm;
    return LConv.codConv + "/" + LConv.Jornada.dscJornada + "/" + LConv.LocalTrab.indLocal + "/" +
           LConv.LocalTrab.LocalTrabInterm.bairro;
}

std::string Excluido()
{
    const auto LEvento = Do<TTarvoESocialCamposS3000>(1);
    const auto& LInfo = LEvento->InfoExclusao;
    return LInfo.nrRecEvt + "/" + LInfo.ideTrabalhador.cpfTrab + "/" + LInfo.ideTrabalhador.nisTrab;
}

const TCasoDasLinhas CASOS[] = {
    {"fonesEEmails",
     "FP_EMPREGADOSCONTATO (IDEMPREGADOSCONTATO, IDEMPREGADO, TIPOCONTATO, CONTATO)",
     {"1, 7, 2, '11'", "2, 7, 4, 'a@a'", "3, 7, 1, '33'", "4, 7, 1, '44'", "5, 7, 4, 'b@b'"},
     Fones,
     "11/33/a@a"},
    {"dependentes",
     "DEPENDENTES (IDDEPENDENTE, COD_EMPRESA, COD_EMPREGADO, NOME)",
     {"4, 10, 70, 'Zé'", "5, 10, 70, 'Ana'", "6, 10, 70, 'Léo'"},
     [] {
         std::string LNomes;
         const auto LGrupo = Do<TTarvoESocialCamposTrabalhador>(ID);
         for (const auto& LDependente : LGrupo->Dependentes)
             LNomes += LDependente->Nome + " ";
         return LNomes;
     },
     "Zé Ana Léo "},
    {"textosDaFolhaComDoisCodigos",
     "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO, INFORMACAO1)",
     {"1, 9994, 'r1', 'R'", "2, 9993, 'c1', 'C'", "3, 9994, 'r2', 'R'", "4, 9993, 'c0', 'C'"},
     [] {
         const auto LGrupo = Do<TTarvoESocialCamposTrabalhador>(ID);
         return LGrupo->CodigoEsocialRacaCor + LGrupo->CodigoESocialEstadoCivil;
     },
     "r1c1",
     {"UPDATE EMPREGADOS SET RACACOR = 'R', ESTADOCIVILLEGAL = 'C' WHERE IDEMPREGADO = 7"}},
    {"paisDeDoisCodigos",
     "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO)",
     {"1, 6, '0105'", "2, 6, '105'"},
     [] {
         const auto LGrupo = Do<TTarvoESocialCamposNascimento>(ID);
         return LGrupo->CodigoESocialPaisNasc + "/" + LGrupo->CodigoESocialPaisNascion;
     },
     "0105/0105",
     {"INSERT INTO CA06_PAIS (IDPAIS, PAIS) VALUES (1, 105)",
      "UPDATE EMPREGADOS SET PAISNASCIMENTO = 1, PAISNACIONALIDADE = 1 WHERE IDEMPREGADO = 7"}},
    {"tipoDeLogradouroComDuasDescricoes",
     "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO, DESCRICAO)",
     {"1, 20, 'R', 'Rua'", "2, 20, 'R', 'Ramal'"},
     [] { return Do<TTarvoESocialCamposBrasil>(ID)->ESocialDescr; },
     "Rua",
     {"INSERT INTO CA06_CODLOGRAD (IDCODLOGRAD, ABREVESOCIAL) VALUES (1, 'R')",
      "UPDATE EMPREGADOS SET IDCODLOGRAD = 1 WHERE IDEMPREGADO = 7"}},
    {"municipioDeDoisNomes",
     "CA06_MUNICIPIO (IDMUNICIPIO, CODIGOFEDERAL, NOME)",
     {"1, '77', 'Zug'", "2, '77', 'Aarau'"},
     [] {
         return Do<TTarvoESocialCamposExterior>(ID)->NmCid + "/" +
                NaData<TTarvoESocialCamposLocalTrabDom>()->NomeMunicipio;
     },
     "Zug/Zug",
     {"INSERT INTO FILIAIS (IDFILIAL, COD_MUN_E) VALUES (2, '77')",
      "UPDATE EMPREGADOS SET COD_MUN = '77' WHERE IDEMPREGADO = 7"}},
    // The newest start first, then the key; the row that is no more in force doesn't count.
    {"regimes",
     CFG,
     {"1, 7, 10, 70, 90, 38, 7, '01.01.2020', NULL, '3', '2', '3'",
      "2, 7, 10, 70, 90, 38, 7, '01.02.2021', '28.02.2021', '3', '2', '3'",
      "3, 7, 10, 70, 90, 38, 7, '01.01.2021', NULL, '2', '1', '1'",
      "4, 7, 10, 70, 90, 38, 7, '01.01.2021', NULL, '1', '2', '2'"},
     [] {
         return NaData<TTarvoESocialCamposInfoCeletista>()->IndicativoAdmissao + "/" +
                NaData<TTarvoESocialCamposVinculo>()->TipoRegTrabCodigo;
     },
     "Decorrente de ação fiscal/1"},
    {"estatutario",
     CFG,
     {"1, 7, 10, 70, 90, 38, 10, '01.01.2020', NULL, '1', 'a', NULL",
      "2, 7, 10, 70, 90, 38, 10, '01.01.2021', NULL, '2', 'b', NULL",
      "3, 7, 10, 70, 90, 38, 10, '01.01.2021', NULL, '3', 'c', NULL"},
     [] { return NaData<TTarvoESocialCamposInfoEstatutario>()->nrProcJud; },
     "b"},
    {"trabalhoTemporario",
     CFG,
     {"1, 7, 10, 70, 90, 38, 9, '01.01.2020', NULL, '1', 'cpf1', '1'",
      "2, 7, 10, 70, 90, 38, 9, '01.01.2021', NULL, '1', 'cpf2', '2'",
      "3, 7, 10, 70, 90, 38, 9, '01.01.2021', NULL, '2', 'cpf3', '3'"},
     [] {
         const auto LGrupo = NaData<TTarvoESocialCamposTrabTemporario>();
         return std::to_string(LGrupo->tpInclContr) + LGrupo->IdeTrabSubstituido.Cpf;
     },
     "2cpf2"},
    {"tempoParcial",
     CFG,
     {"1, 7, 10, 70, 90, 1, 1, '01.01.2021', NULL, '1', '2', NULL",
      "2, 7, 10, 70, 90, 1, 1, '01.01.2021', NULL, '1', '1', NULL"},
     [] { return std::to_string(NaData<TTarvoESocialCamposHorContratual>()->tmpParc); },
     "2"},
    // The service taker of the day of admission, 1 February, before one who came later in the month.
    {"tomadorDoDia",
     "MOV_PRESTSERV (IDMOV_PRESTSERV, COD_PRESTSERV, COD_EMPRESA, COD_FILIAL, COD_DEPTO, DATA_MOVIMENTO, DATAFIMMOV)",
     {"1, 501, 10, 20, 301, '15.02.2021', NULL", "2, 502, 10, 20, 301, '01.01.2019', NULL",
      "3, 503, 10, 20, 301, '01.01.2020', NULL", "4, 504, 10, 20, 301, '01.01.2020', NULL"},
     [] { return NaData<TTarvoESocialCamposIdeTomadorServ>()->NumeroInscricao; },
     "503",
     {"INSERT INTO PREST_SERVICO (CODIGO, INSCRICAO, CATEGORIA) VALUES (501, '501', '98')",
      "INSERT INTO PREST_SERVICO (CODIGO, INSCRICAO, CATEGORIA) VALUES (502, '502', '98')",
      "INSERT INTO PREST_SERVICO (CODIGO, INSCRICAO, CATEGORIA) VALUES (503, '503', '98')",
      "INSERT INTO PREST_SERVICO (CODIGO, INSCRICAO, CATEGORIA) VALUES (504, '504', '98')"}},
    {"sucessaoETransferencia",
     DETALHE,
     {"1, 7, 1, 3, 'Z', 'm1', NULL, NULL, NULL, NULL", "2, 7, 1, 3, 'A', 'm2', NULL, NULL, NULL, NULL"},
     [] {
         return Do<TTarvoESocialCamposSucessaoVinc>(ID)->CnpjEmpregadorAnterior +
                Do<TTarvoESocialCampostransfDom>(ID)->matricAnt;
     },
     "Zm1"},
    {"objetoDoContratoDeterminado",
     DETALHE,
     {"1, 7, 5, 1, NULL, NULL, NULL, NULL, NULL, 'safra'", "2, 7, 5, 1, NULL, NULL, NULL, NULL, NULL, 'obra'"},
     [] { return NaData<TTarvoESocialCamposDuracao>()->objDet; },
     "safra"},
    {"estagio",
     DETALHE,
     {"1, 7, 1, 4, '2', NULL, NULL, '1', '8', NULL", "2, 7, 1, 4, '1', NULL, NULL, '2', '9', NULL"},
     Estagio,
     "2/Escola/Zoé",
     {"INSERT INTO SALARIO (IDEMPREGADO, INICIOVIGENCIA, IDNIVEL) VALUES (7, '01.02.2021', 1)",
      "INSERT INTO PREST_SERVICO (IDPRESTSERVICO, NOME) VALUES (1, 'Escola')",
      "INSERT INTO PREST_SERVICO (IDPRESTSERVICO, NOME) VALUES (2, 'Academia')",
      "INSERT INTO EMPREGADOS (IDEMPREGADO, NOME) VALUES (8, 'Zoé')",
      "INSERT INTO EMPREGADOS (IDEMPREGADO, NOME) VALUES (9, 'Ada')"}},
    {"salariosPorNivel",
     "SALARIO (IDSALARIO, IDEMPREGADO, INICIOVIGENCIA, IDNIVEL, VALOR, SALARIOMENSAL)",
     {"1, 7, '01.03.2021', 2, 20, 200", "2, 7, '01.03.2021', 1, 10, 100", "3, 7, '01.03.2021', 2, 30, 300"},
     Salario,
     "20 Hora/aula Médio: R$ 20,00; Hora/aula Básico: R$ 10,00; Hora/aula Médio: R$ 30,00; 200",
     {"INSERT INTO FP_NIVEL (IDNIVEL, DESCRICAO) VALUES (1, 'Básico')",
      "INSERT INTO FP_NIVEL (IDNIVEL, DESCRICAO) VALUES (2, 'Médio')"}},
    // The place at the date before that of a later transfer, though the other has lower numbers.
    {"localNaDataAntesDaTransferencia",
     "MOV_TRANSF (IDMOV_TRANSF, IDEMPREGADO, IDFILIAL, COD_DEPTO, DATAINICIOMOV, MOTIVOINICIAL)",
     {"1, 7, 1, 100, '01.04.2021', 'TRANSFERENCIA DEFINITIVA'", "2, 7, 2, 303, '01.03.2021', 'TRANSFERENCIA'"},
     Local,
     "2/33",
     {"INSERT INTO SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL) VALUES (1, 1, 1)"}},
    {"localDeDuasTransferencias",
     "MOV_TRANSF (IDMOV_TRANSF, IDEMPREGADO, IDFILIAL, COD_DEPTO, DATAINICIOMOV, MOTIVOINICIAL)",
     {"1, 7, 1, 100, '01.04.2021', 'TRANSFERENCIA DEFINITIVA'",
      "2, 7, 2, 303, '01.05.2021', 'TRANSFERENCIA DEFINITIVA'",
      "3, 7, 2, 302, '01.05.2021', 'TRANSFERENCIA DEFINITIVA'"},
     Local,
     "2/33",
     {"DELETE FROM MOV_TRANSF", "INSERT INTO SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL) VALUES (1, 1, 1)"}},
    {"horarioDeUmCodigo",
     "TAB_HORARIOS (IDHORARIO, CODIGO, DESCRICAO)",
     {"5, '12', 'noite'", "6, '12', 'dia'"},
     [] { return NaData<TTarvoESocialCamposHorContratual>()->DescricaoHorario; },
     "noite",
     {"UPDATE EMPREGADOS SET COD_HORARIO = '12' WHERE IDEMPREGADO = 7"}},
    {"turnos",
     "TAB_HORARIOSDET (IDHORARIODET, IDHORARIO, CODIGOESOCIAL)",
     {"1, 5, 'T2'", "2, 5, 'T1'", "3, 5, 'T3'"},
     [] {
         std::string LTurnos;
         const auto LGrupo = NaData<TTarvoESocialCamposHorContratual>();
         for (const auto& LHorario : LGrupo->Horario)
             LTurnos += LHorario->CodigoHorarioContratual;
         return LTurnos;
     },
     "T2T1T3",
     {"INSERT INTO TAB_HORARIOS (IDHORARIO, CODIGO, TIPO, REVEZHRTRAB, REVEZHRFOLGA) VALUES (5, '12', 4, 12, 36)",
      "UPDATE EMPREGADOS SET COD_HORARIO = '12' WHERE IDEMPREGADO = 7"}},
    {"observacoes",
     "FP_EMPREGADOOBS (IDEMPREGADOOBS, IDEMPREGADO, OBSERVACAO)",
     {"1, 7, 'z'", "2, 7, 'a'", "3, 7, 'm'"},
     [] {
         std::string LTexto;
         const auto LGrupo = NaData<TTarvoESocialCamposInfoContrato>();
         for (const auto& LObservacao : LGrupo->Observacoes)
             LTexto += LObservacao->Observacao;
         return LTexto;
     },
     "zam"},
    {"cargoPublicoDeDuasLeis",
     "FP_CARGOSPUBLICO (IDCARGOSPUBLICO, IDCARGOSDESCR, TPCARGOPUBLICO)",
     {"1, 3, 2", "2, 3, 1"},
     [] {
         return std::to_string(NaData<TTarvoESocialCamposInfoContrato>()->TipoCargo) +
                std::to_string(NaData<TTarvoESocialCamposCargoFuncao>()->TipoCargo);
     },
     "22",
     {"INSERT INTO FP_CARGOSDESCR (IDCARGOSDESCR) VALUES (3)",
      "INSERT INTO CARGOS (IDEMPREGADO, DATA, IDCARGOSDESCR) VALUES (7, '01.02.2021', 3)"}},
    {"afastamentosDeUmDia",
     "SITUACOES (IDSITUACAO, IDEMPREGADO, DATA, SITUACAO, NOME)",
     {"1, 7, '01.02.2021', '03', 'antes'", "2, 7, '10.02.2021', '14', 'cessão'", "3, 7, '10.02.2021', '03', 'doença'"},
     [] { return NaData<TTarvoESocialCamposAfastamento>()->DescricaoSituacao; },
     "cessão"},
    {"cessaoERetificacao",
     DETALHE,
     {"1, 7, 3, 1, '55', 'cnpj9', NULL, NULL, NULL, NULL", "2, 6, 3, 1, '55', 'cnpj1', NULL, NULL, NULL, NULL",
      "3, 7, 5, 1, '55', '2', NULL, NULL, NULL, NULL", "4, 6, 5, 1, '55', '1', NULL, NULL, NULL, NULL"},
     [] {
         TTarvoESocialCamposS2230 LEvento(55, TTipoEventoS2230::Inicio);
         LEvento.CarregarDados();
         return LEvento.infoAfastamento.iniAfastamento.infoCessao.cnpjCess +
                LEvento.infoAfastamento.infoRetif.origRetif;
     },
     "cnpj92",
     {"INSERT INTO SITUACOES (IDSITUACAO, IDEMPREGADO) VALUES (55, 7)"}},
    {"atestados",
     "FP_SITUACAOATESTADO (IDSITUACAOATESTADO, IDSITUACAO, QTDDIASAFAST)",
     {"1, 55, 9", "2, 55, 1", "3, 55, 5"},
     [] {
         std::string LDias;
         const auto LGrupo = Do<TTarvoESocialCamposiniAfastamento>(55);
         for (const auto& LAtestado : LGrupo->infoAtestado)
             LDias += std::to_string(LAtestado->qtDiasAfast);
         return LDias;
     },
     "915",
     {"INSERT INTO SITUACOES (IDSITUACAO, IDEMPREGADO) VALUES (55, 7)"}},
    {"convocacoesDeUmDia",
     "FP_CONTRAINTERM (IDCONTRAINTERM, IDEMPREGADO, DATACONVOCACAO, CODIGOESOCIAL, DESCRICAOJORNADA, LOCALPRESTACAO, "
     "IDPRESTSERVICO)",
     {"1, 7, '01.03.2021', 'Z', 'noite', 2, 2", "2, 7, '01.03.2021', 'A', 'dia', 1, 1"},
     Convocacao,
     "Z/noite/2/Vila",
     {"INSERT INTO CA06_CODLOGRAD (IDCODLOGRAD) VALUES (1)",
      "INSERT INTO PREST_SERVICO (IDPRESTSERVICO, IDCODLOGRAD, BAIRRO) VALUES (1, 1, 'Centro')",
      "INSERT INTO PREST_SERVICO (IDPRESTSERVICO, IDCODLOGRAD, BAIRRO) VALUES (2, 1, 'Vila')"}},
    {"dirigenteSindical",
     DETALHE,
     {"1, 7, 1, 5, 'Z', NULL, 'm1', NULL, NULL, NULL", "2, 7, 1, 5, 'A', NULL, 'm2', NULL, NULL, NULL"},
     [] { return Do<TTarvoESocialCamposInfoDirigenteSindical>(ID)->matricOrig; },
     "m1"},
    {"cedidoDeDoisDetalhes",
     DETALHE,
     {"1, 7, 1, 2, 'Z', 'm1', NULL, NULL, NULL, NULL", "2, 7, 1, 2, 'A', 'm2', NULL, NULL, NULL, NULL"},
     [] { return Do<TTarvoESocialCamposInfoTrabCedido>(ID)->matricCed; },
     "m1",
     {"UPDATE EMPREGADOS SET TIPOADMISSAO = 4 WHERE IDEMPREGADO = 7",
      "INSERT INTO SC00_EMPREGADOCFG (IDEMPREGADO, ORIGEM, ESPECIE, TP) VALUES (7, 90, 38, 7)"}},
    // No test of the validity: the row in force at the date of the event first, then the newest start.
    {"cedidoComRegimeVigente",
     CFG,
     {"1, 7, 10, 70, 90, 38, 7, '01.01.2019', '31.12.2020', '1', 'findo', NULL",
      "2, 7, 10, 70, 90, 38, 7, '01.05.2021', NULL, '1', 'futuro', NULL",
      "3, 7, 10, 70, 90, 38, 7, '01.01.2021', NULL, '1', 'vigente', NULL"},
     [] {
         TTarvoESocialCamposInfoTSVInicio LInicio(ID, D(2021, 3, 1));
         LInicio.CarregarDados();
         return LInicio.InfoComplementares.InfoTrabCedido.tpRegTrab + "/" +
                Do<TTarvoESocialCamposInfoTrabCedido>(ID)->tpRegTrab;
     },
     "vigente/futuro",
     {"UPDATE EMPREGADOS SET TIPOADMISSAO = 4 WHERE IDEMPREGADO = 7",
      "INSERT INTO FP_EMPREGADOSDET (IDEMPREGADO, ESPECIE, TP) VALUES (7, 1, 2)"}},
    {"recibosDeUmEvento",
     "SC00_ESOCIALREINFDET (IDESOCIALREINFDET, IDEVENTO, STATUS, DESCRICAO)",
     {"1, 1, 301, 'recusa'", "2, 1, 202, 'r9'", "3, 1, 201, 'r1'"},
     Excluido,
     "r9//",
     {"INSERT INTO SC00_ESOCIALREINFXML (IDESOCIALREINFXML, TPEVENTO) VALUES (1, 'S-1200')"}},
    {"contratosDeUmaAdmissao",
     "EMPREGADOS (IDEMPREGADO, CPF, PIS, DATA_ADMISSAO)",
     {"8, '012.112.223-54', 'P8', '01.02.2021'", "9, '01211222354', 'P9', '01.02.2021'",
      "6, '01211222354', 'P6', '01.01.2021'"},
     Excluido,
     "/012.112.223-54/P8",
     {"INSERT INTO SC00_ESOCIALREINFXML (IDESOCIALREINFXML, TPEVENTO, IDTABELAEVENTO) VALUES (1, 'S-1200', "
      "1211222354)"}},
    // The contract gives the CPF, and the provider the number that the contract lacks.
    {"prestadoresDeUmCpf",
     "PREST_SERVICO (IDPRESTSERVICO, CPF, INSCRICAO)",
     {"2, '01211222354', ' '", "3, '01211222354', 'N9'", "4, '01211222354', 'N1'"},
     Excluido,
     "/012.112.223-54/N9",
     {"INSERT INTO SC00_ESOCIALREINFXML (IDESOCIALREINFXML, TPEVENTO, IDTABELAEVENTO) VALUES (1, 'S-1210', "
      "1211222354)",
      "UPDATE EMPREGADOS SET CPF = '012.112.223-54' WHERE IDEMPREGADO = 7"}},
};

INSTANTIATE_TEST_SUITE_P(Trabalhador, TTesteOrdemDasLinhas,
                         ::testing::Combine(::testing::ValuesIn(CASOS), ::testing::Bool()), NomeDaOrdem);

} // namespace
} // namespace tarvo::testes
