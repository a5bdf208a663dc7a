#include "apoio/UnCasosDeOrdem.h"
#include "desligamento/s2299/UnTarvoESocialCamposS2299.h"
#include "desligamento/s2399/UnTarvoESocialCamposS2399.h"
#include "imports/valores/UnOvraConversoes.h"
#include "remuneracao/UnCenarioDeFolha.h"

namespace tarvo::testes {
namespace {

using namespace desligamento;

/// A dismissal on 20 March 2021, of which only the rows of the cases tell more; rubrics 1 and 2 count hours.
class TTesteOrdemDoDesligamento : public TTesteDeOrdem<TTesteDeFolha> {
protected:
    void SetUp() override
    {
        TTesteDeFolha::SetUp();
        Executar("UPDATE EMPREGADOS SET DATA_DEMISSAO = '20.03.2021', TIPO_RESCISAO = '61'");
        for (const int LCodigo : {1, 2})
            Verba(LCodigo, "1A", {{"HORAS", "Sim"}});
    }
};

template <class TEvento>
std::unique_ptr<TEvento> Carregar()
{
    auto LEvento = std::make_unique<TEvento>(1, D(2018, 5, 1));
    LEvento->CarregarDados();
    return LEvento;
}

std::string Juntar(const std::string& ATexto, const std::string& AItem)
{
    return ATexto + (ATexto.empty() || AItem.empty() ? "" : " ") + AItem;
}

template <class TLotacoes>
std::string Itens(const TLotacoes& ALotacoes)
{
    std::string LTexto;
    for (const auto& LLotacao : ALotacoes) {
        LTexto = Juntar(LTexto, LLotacao->codLotacao + ":");
        for (const auto& LVerba : LLotacao->detVerbas)
            LTexto = Juntar(LTexto, CurrToStr(LVerba->vrRubr) + "/" + CurrToStr(LVerba->qtdRubr));
    }
    return LTexto;
}

/// "lotação: value/quantity ..." of each demonstrative.
std::string ItensDoS2299()
{
    std::string LTexto;
    const auto LEvento = Carregar<TTarvoESocialCamposS2299>();
    for (const auto& LDmDev : LEvento->infoDeslig.verbasResc.dmDev) {
        LTexto = Juntar(LTexto, Itens(LDmDev->infoPerApur.ideEstabLot));
        for (const auto& LAcordo : LDmDev->infoPerAnt.ideADC)
            LTexto = Juntar(LTexto, LAcordo->dsc + " " + Itens(LAcordo->idePeriodoS2299.ideEstabLot));
    }
    return LTexto;
}

std::string ItensDoS2399()
{
    std::string LTexto;
    const auto LEvento = Carregar<TTarvoESocialCamposS2399>();
    for (const auto& LDmDev : LEvento->infoTSVTermino.verbasResc.dmDev)
        LTexto = Juntar(LTexto, Itens(LDmDev->ideEstabLot));
    return LTexto;
}

struct TLinhaDeCalculo {
    int Verba = 1;
    const char* Tipo = "'01'";
    int SubTipo = 104;
    const char* Pagto = "'31.03.2021'";
    const char* Depto = "NULL";
    const char* Convocacao = "NULL";
    const char* Fim = "'31.03.2021'";
};

/// A calculated row whose value is its key and whose reference ten times that.
std::string Calculo(int AId, const TLinhaDeCalculo& A = {})
{
    return "CALCULO (IDCALCULO, IDEMPREGADO, COD_EMPRESA, COD_EMPREGADO, COD_FILIAL, COD_DEPTO, COD_VERBA, TIPO, "
           "SUBTIPO, DATA_INICIO, DATA_FIM, DATA_PAGTO, BASE, REFERENCIA, VALOR, IDDETCONVOCACAO) VALUES (" +
           std::to_string(AId) + ", 1, 7, 101, 1, " + A.Depto + ", " + std::to_string(A.Verba) + ", " + A.Tipo + ", " +
           std::to_string(A.SubTipo) + ", '01.03.2021', " + A.Fim + ", " + A.Pagto + ", 0, " +
           std::to_string(AId * 10) + ", " + std::to_string(AId) + ", " + A.Convocacao + ")";
}

/// A split row of a calculation, with its value and ten times that as reference.
std::string Quebra(int AId, int ACalculo, int AFilial, int AValor)
{
    const auto LFilial = std::to_string(AFilial);
    return "CALC_QUEBRA (IDCALCQUEBRA, IDCALCULO, COD_FILIAL, COD_DEPTO, REFERENCIA, VALOR, DIASTRAB) VALUES (" +
           std::to_string(AId) + ", " + std::to_string(ACalculo) + ", " + LFilial + ", " + LFilial + "0, " +
           std::to_string(AValor * 10) + ", " + std::to_string(AValor) + ", 5)";
}

const std::string RESCISAO = Calculo(1, {.Tipo = "'05'", .SubTipo = 0, .Fim = "'20.03.2021'"});
const std::string POR_DEPARTAMENTO = "SC00_EMPRESACFG (IDEMPRESA, ORIGEM, ESPECIE, TP, DATAINICIO, INFORMACAO1) VALUES "
                                     "(1, 90, 19, 1, '01.01.2018', '3')";

/// Settings from their keys and validities, each with its key as INFORMACAO1.
std::vector<std::string> Configuracoes(const std::string& ATabela, const std::string& AChave, const std::string& ADono,
                                       const std::string& AEspecieETp,
                                       const std::vector<std::pair<const char*, const char*>>& AValidades)
{
    std::vector<std::string> LLinhas;
    for (const auto& [LInicio, LFim] : AValidades) {
        const auto LId = std::to_string(LLinhas.size() + 1);
        LLinhas.push_back(ATabela + " (" + AChave + ", " + ADono +
                          ", ORIGEM, ESPECIE, TP, INFORMACAO1, DATAINICIO, DATAFIM) VALUES (" + LId + ", 1, 90, " +
                          AEspecieETp + ", '" + LId + "', " + LInicio + ", " + LFim + ")");
    }
    return LLinhas;
}

std::vector<std::string> Com(std::vector<std::string> ALinhas, const std::vector<std::string>& AOutras)
{
    ALinhas.insert(ALinhas.end(), AOutras.begin(), AOutras.end());
    return ALinhas;
}

/// "table of rubrics/nature" of the first item.
std::string TabelaENatureza()
{
    const auto LEvento = Carregar<TTarvoESocialCamposS2299>();
    const auto& LLotacao = *LEvento->infoDeslig.verbasResc.dmDev.at(0)->infoPerApur.ideEstabLot.at(0);
    const auto& LVerba = *LLotacao.detVerbas.at(0);
    return LVerba.ideTabRubr + "/" + IntToStr(LVerba.CodNaturezaRubricaRelac);
}

const std::vector<TCasoDeOrdem> CASOS{
    {"DetalheDaRescisao",
     {"FP_EMPREGADOSDET (IDEMPREGADOSDET, IDEMPREGADO, ESPECIE, TP, INFORMACAO1, INFORMACAO5) VALUES (1, 1, 4, 1, 'a', "
      "'b')",
      "FP_EMPREGADOSDET (IDEMPREGADOSDET, IDEMPREGADO, ESPECIE, TP, INFORMACAO1, INFORMACAO5) VALUES (2, 1, 4, 1, 'c', "
      "'d')",
      "TAB_RESCISAO (IDRESCISAO, COD_EMPRESA, COD_EMPREGADO, DIAS_INDEN, MTVDESLIGTSV) VALUES (1, 7, 101, 30, '03')",
      "TAB_RESCISAO (IDRESCISAO, COD_EMPRESA, COD_EMPREGADO, DIAS_INDEN, MTVDESLIGTSV) VALUES (2, 7, 101, 15, '01')"},
     [] {
         const auto LEvento = Carregar<TTarvoESocialCamposS2299>();
         const auto& LInfo = LEvento->infoDeslig;
         return LInfo.nrCertObito + LInfo.ConsigFGTS.insConsig + " " + LInfo.indPagtoAPI + " " +
                Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.mtvDesligTSV;
     },
     "ab 30 03"},
    {"PensaoVigenteMaisNova",
     Configuracoes("SC00_EMPREGADOCFG", "IDEMPREGADOCFG", "IDEMPREGADO", "14, 3",
                   {{"'01.01.2020'", "NULL"}, {"'01.02.2021'", "NULL"}, {"'01.02.2021'", "'31.12.2021'"}}),
     [] { return Carregar<TTarvoESocialCamposS2299>()->infoDeslig.percAliment; }, "2"},
    // Open, but not begun by the end of the work: after those that have.
    {"PensaoAbertaDoS2399",
     Com(Configuracoes(
             "SC00_EMPREGADOCFG", "IDEMPREGADOCFG", "IDEMPREGADO", "14, 3",
             {{"'01.04.2021'", "NULL"}, {"'01.01.2020'", "NULL"}, {"'20.03.2021'", "NULL"}, {"'20.03.2021'", "NULL"}}),
         {"TAB_RESCISAO (COD_EMPRESA, COD_EMPREGADO) VALUES (7, 101)"}),
     [] { return FloatToStr(Carregar<TTarvoESocialCamposS2399>()->infoTSVTermino.percAliment); }, "3"},
    {"TransferenciaDaMenorChave",
     {"TRANSF_EMPREG (IDTRANSF_EMPREG, COD_EMPRESAORIGEM, MOTIVO, MOTIVOESOCIAL, INSCRICAO) VALUES (1, 7, 3, 14, '99')",
      "TRANSF_EMPREG (IDTRANSF_EMPREG, COD_EMPRESAORIGEM, COD_EMPRESADESTINO, MOTIVO, MOTIVOESOCIAL) VALUES (2, 7, 7, "
      "1, 11)",
      "TRANSF_EMPREG (IDTRANSF_EMPREG, COD_EMPRESAORIGEM, MOTIVO, MOTIVOESOCIAL, INSCRICAO) VALUES (3, 7, 3, 34, '98')",
      "TRANSF_EMPREG (IDTRANSF_EMPREG, COD_EMPRESAORIGEM, MOTIVO, MOTIVOESOCIAL, INSCRICAO) VALUES (4, 7, 3, 34, '97')",
      "TRANSF_EMPREGDET (IDTRANSF_EMPREG, COD_EMPREGADOORIGEM) VALUES (1, 101)",
      "TRANSF_EMPREGDET (IDTRANSF_EMPREG, COD_EMPREGADOORIGEM) VALUES (2, 101)",
      "TRANSF_EMPREGDET (IDTRANSF_EMPREG, COD_EMPREGADOORIGEM) VALUES (3, 101)",
      "TRANSF_EMPREGDET (IDTRANSF_EMPREG, COD_EMPREGADOORIGEM) VALUES (4, 101)"},
     [] {
         const auto LEvento = Carregar<TTarvoESocialCamposS2299>();
         const auto& LInfo = LEvento->infoDeslig;
         return LInfo.mtvDeslig + " " + LInfo.sucessaoVincS2299.cnpjSucessora + " " + LInfo.transfTit.cpfSubstituto;
     },
     "14 99 98"},
    {"ProcessoDoEstabelecimento",
     {"MOV_TRANSF (IDEMPREGADO, IDFILIAL, COD_EMPRESA, DATAINICIOMOV) VALUES (1, 1, 7, '02.01.2018')",
      "ES02_SPPROC (IDSPPROC, INDMATERIA, IDFILIAL, NUMERO) VALUES (1, 7, 1, 'P1')",
      "ES02_SPPROC (IDSPPROC, INDMATERIA, IDFILIAL, NUMERO) VALUES (2, 1, 1, 'P2')"},
     [] { return Carregar<TTarvoESocialCamposS2299>()->infoDeslig.verbasResc.procCs.nrProcJud; },
     "P1"},
    {"NaturezaVigenteNaDemissao",
     {RESCISAO, Calculo(2), "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (9001, 3, '1001')",
      "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (9002, 3, '1002')",
      "FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO, DATAFIM) VALUES (1, 1001, 9001, "
      "'01.01.2021', '28.02.2021')",
      "FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO, DATAFIM) VALUES (2, 1001, 9001, "
      "'01.01.2018', NULL)",
      "FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO, DATAFIM) VALUES (3, 1001, 9002, "
      "'01.01.2020', '20.03.2021')",
      "FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO, DATAFIM) VALUES (4, 1001, 9001, "
      "'01.04.2021', NULL)"},
     TabelaENatureza,
     "0/1002"},
    {"TabelaDeRubricasVigente",
     Com(Configuracoes("SC00_EMPRESACFG", "IDEMPRESACFG", "IDEMPRESA", "38, 13",
                       {{"'01.01.2021'", "'28.02.2021'"},
                        {"'01.01.2019'", "NULL"},
                        {"'01.01.2020'", "NULL"},
                        {"'01.01.2020'", "NULL"},
                        {"'01.04.2021'", "NULL"}}),
         {RESCISAO, Calculo(2)}),
     TabelaENatureza, "3/0"},
    {"ReferenciaDaLinhaDeMenorChave", {RESCISAO, Calculo(2), Calculo(3), Calculo(4)}, ItensDoS2299, "F1: 9/20"},
    // The split rows of a rubric in a lotação become one item, whose quantity is that of the lowest key.
    {"ItensQuebradosPelasChavesDoCalculo",
     {RESCISAO, POR_DEPARTAMENTO, Calculo(2), Calculo(3), Quebra(1, 2, 1, 7), Quebra(2, 2, 2, 5), Quebra(3, 3, 1, 4),
      Quebra(4, 2, 1, 9)},
     ItensDoS2299,
     "D10: 20/70 D20: 5/50"},
    // By rubric and then by key, so that a lotação in between parts the rows of another.
    {"ItensQuebradosDoS2399",
     {RESCISAO, POR_DEPARTAMENTO, Calculo(2), Calculo(3), Calculo(4, {.Depto = "10"}), Quebra(1, 2, 1, 7),
      Quebra(2, 3, 2, 5), Quebra(3, 3, 1, 4)},
     ItensDoS2399,
     "D10: 7/70 8/40 D20: 5/50"},
    // A call comes by the columns as they stand, which the amounts lead: one rubric parts the rows of the other.
    {"ItensDaConvocacao",
     {POR_DEPARTAMENTO, Calculo(2, {.SubTipo = 0, .Depto = "10", .Convocacao = "5"}),
      Calculo(3, {.SubTipo = 0, .Convocacao = "5"}),
      Calculo(4, {.Verba = 2, .SubTipo = 0, .Depto = "10", .Convocacao = "5"}),
      Calculo(6, {.SubTipo = 0, .Depto = "10", .Convocacao = "5"}), Quebra(1, 3, 1, 30), Quebra(2, 3, 1, 3)},
     ItensDoS2299,
     "D10: 35/30 4/40 6/60"},
    {"AdiantamentosPelaChave",
     {Calculo(2, {.Tipo = "'02'", .SubTipo = 0, .Pagto = "'25.03.2021'"}),
      Calculo(3, {.Tipo = "'02'", .SubTipo = 0, .Pagto = "'10.03.2021'", .Fim = "'15.03.2021'"}),
      Calculo(4, {.Tipo = "'02'", .SubTipo = 0, .Pagto = "'15.03.2021'", .Fim = "'28.03.2021'"})},
     [] { return ItensDoS2299() + " " + ItensDoS2399(); },
     "F1: 2/20 F1: 3/30 F1: 4/40 F1: 2/20 F1: 3/30 F1: 4/40"},
    // One row that belongs to two agreements.
    {"AcordosDaMesmaLinha",
     {"FP_INFOGFIP650660 (IDINFOGFIP650660, DATAOCORRENCIA, DESCRICAO) VALUES (5, '10.03.2021', 'Cinco')",
      "FP_INFOGFIP650660 (IDINFOGFIP650660, DATAOCORRENCIA, DESCRICAO) VALUES (6, '05.03.2021', 'Seis')",
      "CALCCOMPL (IDCALCCOMPL, COD_EMPRESA, TIPO, TIPOCALCULO, IDINFOGFIP650660) VALUES (8, 7, '01', 1, 6)",
      "CALCCOMPL (IDCALCCOMPL, COD_EMPRESA, TIPO, TIPOCALCULO, IDINFOGFIP650660) VALUES (9, 7, '01', 1, 5)",
      "CALCCOMPLPER (IDCALCCOMPL, DATA_INICIO, DATA_FIM, COMPET_PGTO) VALUES (8, '01.03.2021', '31.03.2021', "
      "'05.04.2021')",
      "CALCCOMPLPER (IDCALCCOMPL, DATA_INICIO, DATA_FIM, COMPET_PGTO) VALUES (9, '01.03.2021', '31.03.2021', "
      "'05.04.2021')",
      "FP_CALCCOMPLEMPREG (IDCALCCOMPL, IDEMPREGADO) VALUES (8, 1)",
      "FP_CALCCOMPLEMPREG (IDCALCCOMPL, IDEMPREGADO) VALUES (9, 1)",
      Calculo(2, {.SubTipo = 4, .Pagto = "'05.04.2021'"})},
     ItensDoS2299,
     "Cinco F1: 2/20 Seis F1: 2/20"},
    {"LotacaoDeMesmoCodigo",
     {RESCISAO, POR_DEPARTAMENTO, Calculo(2), Quebra(1, 2, 1, 7),
      "SC00_DEPTO (IDDEPTO, IDFILIAL, DEPTO, CODIGOESOCIAL) VALUES (8, 1, 10, 'D8')",
      "SC00_DEPTO (IDDEPTO, IDFILIAL, DEPTO, CODIGOESOCIAL) VALUES (11, 1, 10, 'D11')"},
     ItensDoS2299,
     "D8: 7/70"},
    {"OutrosEmpregadoresPelaInscricao",
     {"RENDIMENTOS (IDRENDIMENTOS, COD_EMPRESA, COD_EMPREGADO, TIPOREND, TPINSCRICAO, INSCRICAO, DATA_INICIO, VALOR) "
      "VALUES (1, 7, 101, 'INSS', 1, '98', '01.03.2021', 1)",
      "RENDIMENTOS (IDRENDIMENTOS, COD_EMPRESA, COD_EMPREGADO, TIPOREND, TPINSCRICAO, INSCRICAO, DATA_INICIO, VALOR) "
      "VALUES (2, 7, 101, 'INSS', 1, '97', '01.03.2021', 2)"},
     [] {
         std::string LTexto;
         const auto LEvento = Carregar<TTarvoESocialCamposS2399>();
         for (const auto& A : LEvento->infoTSVTermino.verbasResc.infoMV.remunOutrEmpr)
             LTexto = Juntar(LTexto, A->nrInsc + "=" + A->vlrRemunOE);
         return LTexto;
     },
     "97=2 98=1"},
};

TEST_P(TTesteOrdemDoDesligamento, NaoDependeDeComoAsLinhasForamGravadas) { Conferir(); }

INSTANTIATE_TEST_SUITE_P(Desligamento, TTesteOrdemDoDesligamento,
                         ::testing::Combine(::testing::ValuesIn(CASOS), ::testing::Bool()), NomeDoCasoDeOrdem);

} // namespace
} // namespace tarvo::testes
