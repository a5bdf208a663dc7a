#include "apoio/UnCasosDeOrdem.h"
#include "imports/valores/UnOvraConversoes.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"
#include "regras/UnTarvoESocialCamposSqlRemuneracao.h"
#include "tabelas/UnLugarDeTeste.h"
#include "tabelas/processo/UnTarvoESocialCamposprocJudTrab.h"
#include "tabelas/s1000/UnTarvoESocialCamposContatoEmpresa.h"
#include "tabelas/s1000/UnTarvoESocialCamposInfoEmpregador.h"
#include "tabelas/s1005/UnTarvoESocialCamposS1005.h"
#include "tabelas/s1010/UnTarvoESocialCamposS1010.h"
#include "tabelas/s1020/UnTarvoESocialCamposS1020.h"
#include "tabelas/s1030/UnTarvoESocialCamposS1030.h"
#include "tabelas/s1035/UnTarvoESocialCamposDadosCarreira.h"
#include "tabelas/s1070/UnTarvoESocialCamposS1070.h"
#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

// The rows in force at the date before the others, the newest start first, the lowest key of what still ties.

namespace tarvo::testes {
namespace {

using namespace tabelas;

const auto NO_DIA = D(2021, 3, 1);

class TTesteOrdemDasTabelas : public TTesteDeOrdem<TTesteComLugar> {
public:
    template <class T, class... A>
    static std::unique_ptr<T> Carregar(const A&... AArgumentos)
    {
        return TTesteComLugar::Carregar<T>(AArgumentos...);
    }
};

template <class T, class... A>
std::unique_ptr<T> Carregar(const A&... AArgumentos)
{
    return TTesteOrdemDasTabelas::Carregar<T>(AArgumentos...);
}

/// A configuration row of the fixture's company, establishment or department: its key, `ORIGEM, ESPECIE, TP`, the dates
/// as the engine takes them and further columns with their values.
std::string Cfg(regras::TTabelaDeConfiguracao ATabela, int AId, const std::string& AChave, const std::string& AInicio,
                const std::string& AFim, const std::string& AColunas, const std::string& AValores)
{
    return std::string(ATabela.Nome) + " (" + std::string(ATabela.ColunaDaChave) + ", " +
           std::string(ATabela.ColunaDoDono) + ", ORIGEM, ESPECIE, TP, DATAINICIO, DATAFIM, " + AColunas +
           ") VALUES (" + std::to_string(AId) + ", " + (ATabela.ColunaDoDono == "IDDEPARTAMENTO" ? "10" : "1") + ", " +
           AChave + ", " + AInicio + ", " + AFim + ", " + AValores + ")";
}

/// Rows of one setting: of the newest start, 7 and 8 tie; 6 is older, and stored between them. INFORMACAO1 of row 7 is
/// "7". An engine that takes the least of the values where keys tie takes another.
std::vector<std::string> DoisNovosEUmVelho(regras::TTabelaDeConfiguracao ATabela, const std::string& AChave)
{
    return {Cfg(ATabela, 8, AChave, "'01.01.2020'", "NULL", "INFORMACAO1", "'1'"),
            Cfg(ATabela, 6, AChave, "'01.01.2019'", "NULL", "INFORMACAO1", "'0'"),
            Cfg(ATabela, 7, AChave, "'01.01.2020'", "NULL", "INFORMACAO1", "'7'")};
}

/// A process 3 of two details of one day and of a later one.
std::vector<std::string> ComProcesso(std::vector<std::string> ALinhas,
                                     const std::string& ADataDoUltimo = "'05.05.2020'")
{
    ALinhas.insert(
        ALinhas.end(),
        {"ES02_SPPROCDET (IDSPPROCDET, IDSPPROC, DATA, INDSUSPENSAO) VALUES (33, 3, '05.05.2020', '33')",
         "ES02_SPPROC (IDSPPROC, TPPROCESSO, NUMERO) VALUES (3, 1, 'P3')",
         "ES02_SPPROCDET (IDSPPROCDET, IDSPPROC, DATA, INDSUSPENSAO) VALUES (31, 3, '05.05.2019', '31')",
         "ES02_SPPROCDET (IDSPPROCDET, IDSPPROC, DATA, INDSUSPENSAO) VALUES (32, 3, " + ADataDoUltimo + ", '32')"});
    return ALinhas;
}

const auto& Estabelecimento(const TTarvoESocialCamposS1005& AEvento) { return AEvento.InfoEstab.DadosEstab; }

/// The first column of every row, in their order.
std::string Ids(const std::string& ASql)
{
    std::string LTexto;
    for (const auto LId : TTarvoConsultasGeral::BuscarListaDeIds(ASql))
        LTexto += std::to_string(LId) + " ";
    return LTexto;
}

/// What the FPAS of a place shows: codes, suspended entities and their process.
std::string Fpas(std::int64_t AEstab, std::int64_t ADepto)
{
    const auto LGrupo = Carregar<TTarvoESocialCamposFPASLotacao>(AEstab, ADepto, NO_DIA);
    auto LTexto = LGrupo->Fpas + " " + LGrupo->CodTercs + " " + LGrupo->CodTercsSusp;
    for (const auto& LItem : LGrupo->InfoProcJudTerceiros.ProcJudTerceiro)
        LTexto += " " + LItem->codTerc + "," + LItem->nrProcJud + "," + std::to_string(LItem->codSusp);
    return LTexto;
}

std::vector<std::string> ComFpas(std::vector<std::string> ALinhas)
{
    ALinhas.insert(ALinhas.end(),
                   {"FP_FPASCODIGO (IDFPASCODIGO, CODIGO) VALUES (78, 507)",
                    "FP_FPASPERCENTUAIS (IDFPASPERCENTUAIS, IDFPASCODIGO, INCRA) VALUES (4, 78, 1)",
                    "FP_FPASPERCENTUAIS (IDFPASPERCENTUAIS, IDFPASCODIGO, SENAI) VALUES (3, 77, 1)",
                    "FP_FPASPERCENTUAIS (IDFPASPERCENTUAIS, IDFPASCODIGO, SESI) VALUES (2, 77, 1)",
                    "FP_FPASCODIGO (IDFPASCODIGO, CODIGO) VALUES (77, 507)",
                    Cfg(regras::SC00_EMPRESACFG, 9, "90, 38, 1", "'01.01.2020'", "NULL", "INFORMACAO1", "'01'"),
                    Cfg(regras::SC00_EMPRESACFG, 8, "90, 38, 1", "'01.01.2020'", "NULL", "INFORMACAO1", "'99'")});
    return ComProcesso(std::move(ALinhas));
}

TEST_P(TTesteOrdemDasTabelas, OResultadoNaoDependeDeQuemFoiGravadoAntes) { Conferir(); }

INSTANTIATE_TEST_SUITE_P(
    Casos, TTesteOrdemDasTabelas,
    ::testing::Combine(
        ::testing::ValuesIn(std::vector<TCasoDeOrdem>{
            {"Contato",
             {"CA06_CFG (IDCFG, ORIGEM, TP, INFORMACAO1, INFORMACAO4) VALUES (5, 97, 2, 'Bia', '5')",
              "CA06_CFG (IDCFG, ORIGEM, TP, INFORMACAO1, INFORMACAO4) VALUES (3, 97, 2, 'Ana', '3')",
              "CA06_CFG (IDCFG, ORIGEM, TP, INFORMACAO1, INFORMACAO4) VALUES (4, 97, 2, 'Caio', '4')"},
             [] {
                 const auto LGrupo = Carregar<TTarvoESocialCamposContatoEmpresa>(1);
                 return LGrupo->NmCtt + " " + LGrupo->FoneCel;
             },
             "Ana 3"},
            {"SituacaoDaEmpresa", DoisNovosEUmVelho(regras::SC00_EMPRESACFG, "90, 38, 8"),
             [] {
                 const auto LGrupo = Carregar<TTarvoESocialCamposInfoComplementares>(1, NO_DIA);
                 return LGrupo->situacaoPJ.indSitPJ + LGrupo->situacaoPF.indSitPF;
             },
             "77"},
            // The start that the service gives is that of the newest row, whatever the date.
            {"InicioDaEmpresa",
             {Cfg(regras::SC00_EMPRESACFG, 2, "90, 38, 10", "'01.01.2022'", "NULL", "INFORMACAO1", "'02/02/2002'"),
              Cfg(regras::SC00_EMPRESACFG, 9, "90, 38, 10", "'01.01.2020'", "NULL", "INFORMACAO1", "'09/09/2009'"),
              Cfg(regras::SC00_EMPRESACFG, 3, "90, 38, 10", "'01.01.2022'", "NULL", "INFORMACAO1", "'03/03/2003'"),
              Cfg(regras::SC00_EMPRESACFG, 8, "90, 38, 10", "'01.01.2020'", "'01.03.2021'", "INFORMACAO1", "'08/08/2008'"),
              Cfg(regras::SC00_EMPRESACFG, 1, "90, 38, 10", "'01.02.2021'", "'28.02.2021'", "INFORMACAO1", "'01/01/2001'")},
             [] {
                 const auto LGrupo = Carregar<TTarvoESocialCamposInfoEmpregador>(1, NO_DIA);
                 return DateTimeToStr(LGrupo->idePeriodo.DataIniCfg) + " " +
                        DateTimeToStr(LGrupo->idePeriodo.iniValid);
             },
             "08/08/2008 02/02/2002"},
            {"AtividadeDoLugar",
             {Cfg(regras::SC00_FILIALCFG, 8, "1, 1, 2", "'01.01.2020'", "NULL", "INFORMACAO2", "'1'"),
              Cfg(regras::SC00_FILIALCFG, 6, "1, 1, 2", "'01.01.2019'", "NULL", "INFORMACAO2", "'0'"),
              Cfg(regras::SC00_FILIALCFG, 5, "1, 1, 2", "'01.01.2019'", "NULL", "INFORMACAO2", "'5'"),
              Cfg(regras::SC00_FILIALCFG, 7, "1, 1, 2", "'01.01.2020'", "NULL", "INFORMACAO2", "'7'")},
             [] {
                 return Estabelecimento(*Carregar<TTarvoESocialCamposS1005>(1, 0, NO_DIA)).CnaePrep +
                        Estabelecimento(*Carregar<TTarvoESocialCamposS1005>(0, 10, NO_DIA)).CnaePrep;
             },
             "75"},
            {"AliquotaDoEstabelecimento", DoisNovosEUmVelho(regras::SC00_FILIALCFG, "90, 51, 3"),
             [] {
                 TTarvoESocialCamposAliqGilRat LGrupo(1, 0, NO_DIA);
                 // The engine refuses two rows where the process of the RAT is sought.
                 const TListaCamposModificados LSoEle{std::string(LGrupo.GuidClasse())};
                 LGrupo.CarregarDados(&LSoEle);
                 return LGrupo.AliqRat;
             }, "7"},
            {"RegimeDePontoDoEstabelecimento", DoisNovosEUmVelho(regras::SC00_FILIALCFG, "90, 7, 1"),
             [] { return Carregar<TTarvoESocialCamposInfoTrab>(1, 0, NO_DIA)->RegPt; }, "7"},
            {"RegimeDePontoDoDepartamento", DoisNovosEUmVelho(regras::SC00_DEPARTAMENTOCFG, "90, 7, 1"),
             [] { return Carregar<TTarvoESocialCamposInfoTrab>(0, 10, NO_DIA)->RegPt; }, "7"},
            {"Obra", DoisNovosEUmVelho(regras::SC00_DEPARTAMENTOCFG, "90, 40, 1"),
             [] { return Carregar<TTarvoESocialCamposInfoObra>(0, 10, NO_DIA)->IndSubstPatrObra; }, "7"},
            {"Caepf", DoisNovosEUmVelho(regras::SC00_EMPRESACFG, "1, 1, 1"),
             [] {
                 return Carregar<TTarvoESocialCamposInfoCaepf>(1, 0, NO_DIA)->tpCaepf +
                        Carregar<TTarvoESocialCamposInfoCaepf>(0, 10, NO_DIA)->tpCaepf;
             },
             "77"},
            {"CotaDeDeficientes", DoisNovosEUmVelho(regras::SC00_EMPRESACFG, "90, 38, 14"),
             [] { return Carregar<TTarvoESocialCamposInfoPCD>(1, 0, NO_DIA)->ContPCD; }, "7"},
            {"Aprendizes",
             {Cfg(regras::SC00_FILIALCFG, 8, "90, 58, 1", "'01.01.2020'", "NULL", "INFORMACAO1", "'8'"),
              "FP_INFOGERALCFG (IDINFOGERALCFG, IDFILIALCFG, ORIGEM, ESPECIE, TP, INFORMACAO1) "
              "VALUES (3, 7, 90, 58, 1, '1')",
              Cfg(regras::SC00_FILIALCFG, 7, "90, 58, 1", "'01.01.2020'", "NULL", "INFORMACAO1", "'7'"),
              "FP_INFOGERALCFG (IDINFOGERALCFG, IDFILIALCFG, ORIGEM, ESPECIE, TP, INFORMACAO1) "
              "VALUES (2, 7, 90, 58, 1, '2')",
              "PREST_SERVICO (IDPRESTSERVICO, INSCRICAO) VALUES (1, 'um')",
              "PREST_SERVICO (IDPRESTSERVICO, INSCRICAO) VALUES (2, 'dois')",
              "FP_INFOGERALCFG (IDINFOGERALCFG, IDFILIALCFG, ORIGEM, ESPECIE, TP, INFORMACAO1) "
              "VALUES (1, 8, 90, 58, 1, '1')"},
             [] {
                 const auto LGrupo = Carregar<TTarvoESocialCamposInfoApr>(1, 0, NO_DIA);
                 auto LTexto = LGrupo->contApr;
                 for (const auto& LItem : LGrupo->InfoEntEduc)
                     LTexto += " " + LItem->nrInsc;
                 return LTexto;
             },
             "7 dois um"},
            // The process of the RAT by the key of its details, that of the FAP by the latest of them.
            {"ProcessosDoEstabelecimento",
             ComProcesso({Cfg(regras::SC00_FILIALCFG, 7, "90, 51, 3", "'01.01.2020'", "NULL", "INFORMACAO2", "'3'"),
                          Cfg(regras::SC00_FILIALCFG, 8, "90, 51, 1", "'01.01.2020'", "NULL", "INFORMACAO2", "'3'")}),
             [] {
                 const auto LGrupo = Carregar<TTarvoESocialCamposAliqGilRat>(1, 0, NO_DIA);
                 return LGrupo->ProcAdmJudRat.CodSusp + " " + LGrupo->ProcAdmJudFap.CodSusp;
             },
             "31 32"},
            {"ProcessosDoDepartamento",
             ComProcesso({Cfg(regras::SC00_FILIALCFG, 7, "90, 51, 3", "'01.01.2020'", "NULL", "INFORMACAO2", "'4'"),
                          Cfg(regras::SC00_DEPARTAMENTOCFG, 8, "90, 51, 3", "'01.01.2020'", "NULL", "INFORMACAO2", "'3'"),
                          "ES02_SPPROC (IDSPPROC, NUMERO) VALUES (4, 'P4')",
                          "ES02_SPPROCDET (IDSPPROCDET, IDSPPROC, INDSUSPENSAO) VALUES (42, 4, '42')",
                          "ES02_SPPROCDET (IDSPPROCDET, IDSPPROC, INDSUSPENSAO) VALUES (41, 4, '41')"}),
             [] {
                 const auto LDoDepto = Carregar<TTarvoESocialCamposProcAdmJudRat>(0, 10, NO_DIA)->CodSusp;
                 // Without a suspension of its own the department shows that of the establishment's process.
                 Executar("UPDATE ES02_SPPROCDET SET INDSUSPENSAO = NULL WHERE IDSPPROC = 3");
                 return LDoDepto + " " + Carregar<TTarvoESocialCamposProcAdmJudRat>(0, 10, NO_DIA)->CodSusp;
             },
             "31 41"},
            {"TipoDaLotacao",
             {Cfg(regras::SC00_FILIALCFG, 8, "90, 50, 1", "'01.01.2020'", "NULL", "INFORMACAO1", "'8'"),
              "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (8, 10, '08')",
              "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (7, 10, '77')",
              Cfg(regras::SC00_FILIALCFG, 7, "90, 50, 1", "'01.01.2020'", "NULL", "INFORMACAO1", "'7'")},
             [] { return Carregar<TTarvoESocialCamposDadosLotacao>(1, 0, NO_DIA)->tpLotacao; }, "77"},
            // The row in force before a newer one that hasn't begun and one that has ended; the suspended entities are
            // those of the same row.
            {"FpasDoEstabelecimento",
             ComFpas({Cfg(regras::SC00_FILIALCFG, 1, "90, 51, 2", "'01.01.2022'", "NULL",
                          "INFORMACAO1, INFORMACAO8, INFORMACAO9", "'78', '1', '3'"),
                      Cfg(regras::SC00_FILIALCFG, 9, "90, 51, 2", "'01.01.2020'", "NULL",
                          "INFORMACAO1, INFORMACAO8, INFORMACAO9", "'78', '2', '3'"),
                      Cfg(regras::SC00_FILIALCFG, 8, "90, 51, 2", "'01.01.2020'", "'31.12.2021'",
                          "INFORMACAO1, INFORMACAO8, INFORMACAO9", "'77', '4', '3'"),
                      Cfg(regras::SC00_FILIALCFG, 2, "90, 51, 2", "'01.06.2020'", "'28.02.2021'",
                          "INFORMACAO1, INFORMACAO8, INFORMACAO9", "'78', '8', '3'")}),
             [] { return Fpas(1, 0); }, "507 8 4 4,P3,32"},
            {"FpasDoDepartamento",
             ComFpas({Cfg(regras::SC00_FILIALCFG, 9, "90, 51, 2", "'01.01.2022'", "NULL", "INFORMACAO10", "'1'"),
                      Cfg(regras::SC00_FILIALCFG, 8, "90, 51, 2", "'01.01.2020'", "NULL", "INFORMACAO10", "'2'"),
                      Cfg(regras::SC00_DEPARTAMENTOCFG, 9, "90, 18, 2", "'01.01.2020'", "NULL",
                          "INFORMACAO1, INFORMACAO2, INFORMACAO3", "'507', '2', '3'"),
                      Cfg(regras::SC00_DEPARTAMENTOCFG, 8, "90, 18, 2", "'01.01.2020'", "NULL",
                          "INFORMACAO1, INFORMACAO2, INFORMACAO3", "'507', '4', '3'")}),
             [] { return Fpas(0, 10); }, "507 6 4 4,P3,32"},
            {"NaturezaDaRubrica",
             {"TAB_VERBAS (IDVERBA, NOME) VALUES (5, 'Salário')",
              "FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO) VALUES (9, 5, 1, '01.01.2020')",
              "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (1, 3, '1001')",
              "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (2, 3, '1002')",
              "FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO) VALUES (8, 5, 2, '01.01.2020')"},
             [] { return Carregar<TTarvoESocialCamposDadosRubrica>(5, 1, NO_DIA, 0, nullptr)->natRubr; }, "1002"},
            {"ProcessosDaRubrica",
             ComProcesso({"FP_VERBAPROCESSO (IDVERBAPROCESSO, IDVERBA, IDSPPROC, EXTENSAODECISAO) VALUES (2, 5, 3, 2)",
                          "FP_VERBAPROCESSO (IDVERBAPROCESSO, IDVERBA, IDSPPROC, EXTENSAODECISAO) VALUES (1, 5, 3, 1)"}),
             [] {
                 Executar("UPDATE ES02_SPPROC SET DATAABERTURA = '01.01.2020', INDMATERIATPTRIB = 15");
                 const auto LGrupo = Carregar<TTarvoESocialCamposDadosRubrica>(5, 1, NO_DIA, 0, nullptr);
                 return LGrupo->IdeProcessoCP.CodSusp + " " + LGrupo->IdeProcessoCP.ExtDecisao + " " +
                        LGrupo->IdeProcessoIRRF.CodSusp;
             },
             "32 1 32"},
            {"ProcessoDoTrabalhador", ComProcesso({}),
             [] { return Carregar<TTarvoESocialCamposprocJudTrab>(3, "{}")->codSusp; }, "32"},
            {"SuspensoesDoProcesso", ComProcesso({}, "NULL"),
             [] {
                 const auto LGrupo = Carregar<TTarvoESocialCamposDadosProc>(3);
                 std::string LTexto;
                 for (const auto& LItem : LGrupo->InfoSusp)
                     LTexto += LItem->codSusp + " ";
                 return LTexto;
             },
             "31 32 33 "},
            {"CargoPublico",
             {"FP_CARGOSPUBLICO (IDCARGOSPUBLICO, IDCARGOSDESCR, ACUMULOCARGOS, NUMEROLEI) VALUES (3, 1, 3, 'L3')",
              "FP_CARGOSPUBLICO (IDCARGOSPUBLICO, IDCARGOSDESCR, ACUMULOCARGOS, NUMEROLEI) VALUES (1, 1, 1, 'L1')",
              "FP_CARGOSDESCR (IDCARGOSDESCR) VALUES (1)",
              "FP_CARGOSPUBLICO (IDCARGOSPUBLICO, IDCARGOSDESCR, ACUMULOCARGOS, NUMEROLEI) VALUES (2, 1, 2, 'L2')"},
             [] {
                 const auto LGrupo = Carregar<TTarvoESocialCamposcargoPublico>(1);
                 return LGrupo->acumCargo + LGrupo->leicargo.nrLei +
                        Carregar<TTarvoESocialCamposDadosCarreira>(1)->leiCarr;
             },
             "1L1L1"},
            {"Exposicao",
             {"EMPREGADOS (IDEMPREGADO, IDCATEGORIAESOCIAL) VALUES (1, 1)",
              "CARGOS (IDCARGOS, IDEMPREGADO, DATA, OCORRENCIA) VALUES (3, 1, '01.01.2020', '1')",
              "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (1, 1, '101')",
              "CARGOS (IDCARGOS, IDEMPREGADO, DATA, OCORRENCIA) VALUES (2, 1, '01.01.2020', '2')",
              "CARGOS (IDCARGOS, IDEMPREGADO, DATA, OCORRENCIA) VALUES (1, 1, '01.01.2019', '0')"},
             [] { return TTarvoConsultasGeral::BuscarTexto(regras::SqlExposicao("CARGOS.OCORRENCIA", 1, NO_DIA)); }, "2"},
            {"OperadorasEPlanosDeSaude",
             {"TAB_VERBAS (IDVERBA) VALUES (5)", "PSAUDE_OPER (IDPSAUDE_OPER, CNPJ, TIPO) VALUES (2, '1', 1)",
              "PSAUDE_OPER (IDPSAUDE_OPER, CNPJ, TIPO) VALUES (1, '2', 1)",
              "PSAUDE_VERBAS (IDPSAUDE_VERBAS, IDPSAUDE_OPER, IDVERBA) VALUES (1, 2, 5)",
              "PSAUDE_VERBAS (IDPSAUDE_VERBAS, IDPSAUDE_OPER, IDVERBA) VALUES (2, 1, 5)",
              "PSAUDE_VERBAS (IDPSAUDE_VERBAS, IDPSAUDE_OPER, IDVERBA) VALUES (3, 2, 5)",
              "FP_PSAUDEVLRMESDEP (IDPSAUDEVLRMESDEP, IDEMPREGADO, IDPSAUDEOPER, DATAINICIO) "
              "VALUES (8, 1, 1, '01.01.2020')",
              "FP_PSAUDEVLRMESDEP (IDPSAUDEVLRMESDEP, IDEMPREGADO, IDPSAUDEOPER, DATAINICIO) "
              "VALUES (9, 1, 1, '01.01.2019')",
              "FP_PSAUDEVLRMESDEP (IDPSAUDEVLRMESDEP, IDEMPREGADO, IDPSAUDEOPER, DATAINICIO) "
              "VALUES (7, 1, 1, '01.01.2020')"},
             [] {
                 return Ids(SqlOperadorasDaVerba(5, TOperadorasDaVerba::SemTipo2)) +
                        Ids(SqlPlanosDosDependentes("= 1", NO_DIA, NO_DIA, 1));
             },
             "1 2 7 8 9 "},
            {"FeriasComplementares",
             {"CALCCOMPL (IDCALCCOMPL, COD_EMPRESA, TIPO) VALUES (1, 1, '04')",
              "CALCCOMPLPER (IDCALCCOMPLPER, IDCALCCOMPL, TIPO, DATA_INICIO, DATA_FIM) "
              "VALUES (1, 1, '01', '01.03.2021', '01.03.2021')",
              "EMPREGADOS (IDEMPREGADO, COD_EMPRESA, COD_EMPREGADO) VALUES (1, 1, 1)",
              "TAB_VERBAS (IDVERBA, CODIGO, FORMULA) VALUES (6, 1, '1A')",
              "TAB_VERBAS (IDVERBA, CODIGO, FORMULA) VALUES (5, 1, '1A')",
              "TAB_VERBAS (IDVERBA, CODIGO, FORMULA) VALUES (7, 2, '1A')",
              "CALCCOMPLDET (IDCALCCOMPLDET, IDCALCCOMPLPER, COD_EMPREGADO, COD_VERBA) VALUES (2, 1, 1, 1)",
              "CALCCOMPLDET (IDCALCCOMPLDET, IDCALCCOMPLPER, COD_EMPREGADO, COD_VERBA) VALUES (1, 1, 1, 2)"},
             [] { return Ids(regras::SqlFeriasComplementares(1, "01", NO_DIA, NO_DIA)); }, "7 5 6 "},
        }),
        ::testing::Bool()),
    NomeDoCasoDeOrdem);

} // namespace
} // namespace tarvo::testes
