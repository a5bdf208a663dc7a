#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "imports/UnOvraUtilsDialogs.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

namespace {

using enum TTipoRetornoIncidVerbas;

// Lists of formulas that several codes name.

constexpr const char* LISTA_A_SEM_O_FIM =
    "'6BC','8BM','6BPA','6BPB','6BPC','6BPD','6BPE','6BPF','6BPG','6BPH','6BPI','6BPJ','6BPK','6BPL','6CH','8BPL',"
    "'8BMA','8BMB','8BMC','8BMD','8BME','8BMF','8BMG','8BMH','8BMI','8BMJ','8BMK','6BPV','6BPN','6BPM'";
constexpr const char* FIM_DA_LISTA_A = "'8BMM','8BML'";
constexpr const char* LISTA_B =
    "'1F','1P','3HA','3IA','4V','4X','4CAA','4CAB','4CAC','4CAD','4CAE','4CAF','4CAG','4CAH',"
    "'4CAI','4CAJ','4CAL','4CAM','4CAK'";
constexpr const char* LISTA_C =
    "'7B','7CC','7BC','7BE','7BF','7BG','7BA','7BH','7BB','7BI','7BJ','7BL','7BM','7BN','7BO',"
    "'7BP','7BR','7BQ'";

// Lists of one code.

constexpr const char* MATERNIDADE_13_DO_EMPREGADOR =
    "'4U','6BA','8BL','6BOA','6BOB','6BOC','6BOD','6BOE','6BOF','6BOG','6BOH','6BOI','6BOJ','6BOK','6BOL','6CF','8BOL',"
    "'8BLA','8BLB','8BLC','8BLD','8BLE','8BLF','8BLG','8BLH','8BLI','8BLJ','8BLK','6BOV','6BON','8BLM','6BOM','8BLL'";
constexpr const char* MATERNIDADE_DO_EMPREGADOR =
    "'3H','3I','8W','8U','1FA','1PA','4U','4VA','4XA','4CBA','4CBB','4CBC','4CBD','4CBE','4CBF','4CBG','4CBH','4CBI',"
    "'4CBJ','4CBL','4CBM','4CBK'";
constexpr const char* INDENIZACOES =
    "'8AA','8AAA','8DLA','8HA','8HAA','8GB','8G','8DLB','8AAB','8HC','8AAD','8DLD','8DLE','8AAE','8AAC','8DLC','8AB',"
    "'8AAF','8AAG','8AAH','8AAI','8AAJ','8AAK','8AAL','8HD','8DLF','8DLG','8DLH','8DLI','8DLJ','8DLK','8DLL','8DN',"
    "'8DNB','8DNC','8DND','8DNE','8DNF','8DNG','8DNH','8DNI','8DNJ','8DNK','8DNL','8DO','8DNA','8HAB','8HAC','8HAD',"
    "'8HAF','8HAE','8HAG','8HAH','8HAI','8HAJ','8HAK','8HAL','8HB','8BN','8BO','8HAM','8AAM','8BRL','8BSL','8HAN',"
    "'8AAO','8DLN','8DNN','8HAP','8BNL','8AAN','8DLM','8DNM','8HAO','8BNM'";
constexpr const char* FERIAS =
    "'7CA','7AB','7A','7AA','7AC','7CE','7AE','7AF','7AG','7AH','7CB','7AI','7AJ','7AL','7AM','7AN','7AO','7AP','7E',"
    "'7EE','7EC','7EG','7EH','7EI','7EJ','7EL','7EM','7EN','7EO','7EP','7AR','7AS','7ER','7AQ','7EQ'";
constexpr const char* FERIAS_DA_RESCISAO = "'7AS','8DO'";
constexpr const char* FORA_DA_BASE_DO_IRRF =
    "'1EAA','1EAB','1EBA','1EBB','1G','1H','1I','1J','1Q','1R','1S','1T','3P','3Q','3U','3V','4CDA','4CDB',"
    "'4CDC','4CDD','4CDE','4CDF','4CDG','4CDH','4CDI','4CDJ','4CDK','4CEA','4CEB','4CEC','4CED','4CEE','4CEF','4CEG',"
    "'4CEH','4CEI','4CEJ','4CEK','6AAM','6ANA','6ANK','6ANL','6ANM','6APA','6APB','6APC','6APD','6APE','6APF','6APG',"
    "'6APH','6API','6APJ','6APK','6APL','6APM','6APN','6APV','6ARL','6ASL','6BCA','6BCAK','6BCAL','6BCB','6BRL','6BSL'";
constexpr const char* BASE_DA_CONTRIBUICAO_SINDICAL = "'1A','1AA','1AD','1B','1BA','1BE','1F','1FA','1FB','1H','1K','"
                                                      "1L','1M','1N','1O','1P','1PA','1PB','1R','1U','1V','1W',"
                                                      "'1X','1Y','3J','7A','7AA','7E','7EE','8C'";

// Conditions.

constexpr const char* INSS_SIM = "TAB_VERBAS.INSS_NORMAL = 'Sim'";
constexpr const char* IRRF_SIM = "TAB_VERBAS.IRRF_NORMAL = 'Sim'";
constexpr const char* IRRF_NAO = "TAB_VERBAS.IRRF_NORMAL = 'Nao'";
constexpr const char* FGTS_SIM = "TAB_VERBAS.FGTS = 'Sim'";
constexpr const char* FGTS_NAO_SIM = "TAB_VERBAS.FGTS <> 'Sim'";
constexpr const char* SINDICAL_SIM = "TAB_VERBAS.BC_CSIND = 'Sim'";
constexpr const char* SINDICAL_NAO = "TAB_VERBAS.BC_CSIND = 'Nao'";
constexpr const char* DECIMO_TERCEIRO_SIM = "TAB_VERBAS.REMUN_13 = 'Sim'";
constexpr const char* DECIMO_TERCEIRO_NAO = "TAB_VERBAS.REMUN_13 = 'Nao'";
constexpr const char* DEDUZ_IRRF = "TAB_VERBAS.DED_IRRF = 'Sim'";
constexpr const char* TIPO_1 = "TAB_VERBAS.TIPO = '1'";
constexpr const char* TIPO_1_OU_3 = "TAB_VERBAS.TIPO IN ('1','3')";
constexpr const char* TIPO_NAO_3 = "TAB_VERBAS.TIPO <> '3'";

using TTextos = std::initializer_list<std::string>;

std::string Unir(TTextos ATextos, std::string_view ASeparador)
{
    std::string LTexto;
    for (const auto& LItem : ATextos)
        (LTexto += LTexto.empty() ? std::string_view() : ASeparador) += LItem;
    return LTexto;
}

std::string Todas(TTextos ACondicoes) { return Unir(ACondicoes, " AND "); }
std::string Alguma(TTextos ACondicoes) { return "(" + Unir(ACondicoes, " OR ") + ")"; }
std::string Listas(TTextos AListas) { return Unir(AListas, ","); }

std::string Formula(const std::string& AFormula) { return "TAB_VERBAS.FORMULA = '" + AFormula + "'"; }
std::string FormulaEm(const std::string& ALista) { return "TAB_VERBAS.FORMULA IN (" + ALista + ")"; }
std::string FormulaComeca(const std::string& AInicio) { return "TAB_VERBAS.FORMULA STARTING '" + AInicio + "'"; }
/// The statement goes through Format, which halves the percent sign.
std::string FormulaComo(const std::string& AInicio) { return "TAB_VERBAS.FORMULA LIKE '" + AInicio + "%%'"; }
std::string FormulaNaoComo(const std::string& AInicio) { return "TAB_VERBAS.FORMULA NOT LIKE '" + AInicio + "%%'"; }
std::string NomeContem(const std::string& ATexto) { return "TAB_VERBAS.NOME CONTAINING '" + ATexto + "'"; }
std::string NomeNaoContem(const std::string& ATexto) { return "TAB_VERBAS.NOME NOT CONTAINING '" + ATexto + "'"; }

/// A code and when it holds.
struct TRegra {
    const char* Codigo;
    std::string Condicao;
};

/// The first rule that holds gives the code.
std::string Coluna(const char* ANome, const std::vector<TRegra>& ARegras, const char* ACodigoDosDemais)
{
    std::string LTermos;
    for (const auto& LRegra : ARegras)
        LTermos += "IIF(" + LRegra.Condicao + ", '" + LRegra.Codigo + "', NULL),\n         ";
    return "COALESCE(" + LTermos + "'" + ACodigoDosDemais + "') AS " + ANome;
}

std::string ColunaPrevidencia()
{
    return Coluna(
        "CODINCPREVSOC",
        {
            {"51", FormulaEm("'3F','3FA','3O','5U'")},
            {"35", Formula("99CF")},
            {"34", Formula("99CE")},
            {"32", Formula("99D")},
            {"31", FormulaEm("'99C','99CA','99CD','99EA','99E','98B'")},
            {"26", Todas({INSS_SIM, DECIMO_TERCEIRO_SIM, FormulaEm(Listas({LISTA_A_SEM_O_FIM, FIM_DA_LISTA_A}))})},
            {"25", Todas({INSS_SIM, DECIMO_TERCEIRO_NAO, FormulaEm(LISTA_B)})},
            {"22", Todas({INSS_SIM, DECIMO_TERCEIRO_SIM, FormulaEm(MATERNIDADE_13_DO_EMPREGADOR)})},
            {"21", Todas({INSS_SIM, DECIMO_TERCEIRO_NAO, FormulaEm(MATERNIDADE_DO_EMPREGADOR)})},
            {"12", Formula("900G")},
            {"12", Todas({INSS_SIM, DECIMO_TERCEIRO_SIM})},
            {"11", Alguma({INSS_SIM, FormulaComeca("2"), FormulaEm("'900F','6CA'")})},
        },
        "00");
}

// 15, 44, 55 and the codes from 91 on come from AlimentarListasIncid.
std::string ColunaIrrf()
{
    const auto Fapi = [](const char* ADecimoTerceiro) {
        return Todas({IRRF_NAO, DEDUZ_IRRF, ADecimoTerceiro, NomeContem("FAPI"), Formula("5Q")});
    };
    const auto PrevidenciaPrivada = [](const char* ADecimoTerceiro) {
        return Todas({IRRF_NAO, DEDUZ_IRRF, ADecimoTerceiro, NomeContem("PREVID"), NomeContem("PRIVADA"),
                      NomeNaoContem("FAPI"), Formula("5Q")});
    };
    return Coluna("CODINCIRRF",
                  {
                      {"75", Todas({IRRF_NAO, FormulaEm(LISTA_C)})},
                      {"74", Todas({IRRF_NAO, FormulaEm(INDENIZACOES)})},
                      {"73", Todas({IRRF_NAO, NomeContem("AJUDA"), NomeContem("CUSTO"), Formula("4R")})},
                      {"72", Todas({IRRF_NAO, NomeContem("DIARIA"), Formula("4R")})},
                      {"62", Fapi(DECIMO_TERCEIRO_SIM)},
                      {"61", Fapi(DECIMO_TERCEIRO_NAO)},
                      {"53", Formula("5EA")},
                      {"52", Formula("5EB")},
                      {"51", FormulaEm("'5E','5EC'")},
                      {"47", PrevidenciaPrivada(DECIMO_TERCEIRO_SIM)},
                      {"46", PrevidenciaPrivada(DECIMO_TERCEIRO_NAO)},
                      {"43", FormulaEm("'99E','99EA'")},
                      {"42", Formula("99D")},
                      {"41", FormulaEm("'99C','99CA','99CD'")},
                      {"35", Formula("99M")},
                      {"34", Formula("99K")},
                      {"33", FormulaEm("'99H','99HA','99I'")},
                      {"32", FormulaEm("'99G','99GA'")},
                      {"31", Formula("99F")},
                      {"14", Todas({IRRF_SIM, Formula("3T")})},
                      {"13", Todas({IRRF_SIM, DECIMO_TERCEIRO_NAO,
                                    Alguma({FormulaEm(Listas({FERIAS, LISTA_C, FERIAS_DA_RESCISAO})),
                                            FormulaComeca("8H"), FormulaComeca("8A"), FormulaComeca("8DN")})})},
                      {"12", Formula("900I")},
                      {"12", Todas({IRRF_SIM, DECIMO_TERCEIRO_SIM})},
                      {"09", Todas({TIPO_NAO_3, FormulaEm(Listas({LISTA_A_SEM_O_FIM, LISTA_B, FIM_DA_LISTA_A,
                                                                  FORA_DA_BASE_DO_IRRF}))})},
                      {"11", Todas({IRRF_SIM, TIPO_1})},
                      {"11", FormulaComeca("2")},
                      {"11", FormulaEm("'900H','6CA'")},
                      {"00", Todas({IRRF_NAO, TIPO_1_OU_3})},
                  },
                  "09");
}

// 91 comes from AlimentarListasIncid.
std::string ColunaFgts()
{
    return Coluna(
        "CODINCFGTS",
        {
            {"21",
             Todas({FGTS_SIM, Alguma({FormulaComo("8DL"), FormulaComo("8DN"), Formula("8DO"), FormulaComo("8DM")})})},
            {"12", Todas({FGTS_SIM, DECIMO_TERCEIRO_SIM, FormulaNaoComo("8DM")})},
            {"12", Formula("6CA")},
            {"11", Todas({FGTS_SIM, DECIMO_TERCEIRO_NAO})},
            {"11", FormulaComeca("2")},
            {"00", FGTS_NAO_SIM},
        },
        "00");
}

// 91 comes from AlimentarListasIncid.
std::string ColunaSindical()
{
    return Coluna("CODINCS",
                  {
                      {"31", Formula("5C")},
                      {"11", Alguma({SINDICAL_SIM, FormulaEm(BASE_DA_CONTRIBUICAO_SINDICAL)})},
                      {"00", SINDICAL_NAO},
                  },
                  "00");
}

/// The whole statement, for one rubric as %0:d.
const std::string& SqlDaBusca()
{
    static constexpr const char* INICIO = R"(SELECT TAB_VERBAS.CODIGO,
       TAB_VERBAS.NOME,
       TAB_VERBAS.TIPO,
       TAB_VERBAS.FORMULA,
       TAB_VERBAS.IRRF_NORMAL,
       TAB_VERBAS.FGTS,
       TAB_VERBAS.BC_CSIND,
       TAB_VERBAS.REMUN_13,
       )";
    static constexpr const char* FIM = R"(
FROM TAB_VERBAS
WHERE TAB_VERBAS.FORMULA NOT IN ('700A','900A','98A','99B','99BA','99BB','99BC','8J','7D','99CB')
  AND TAB_VERBAS.FORMULA NOT LIKE '96%%'
  AND TAB_VERBAS.FORMULA NOT LIKE '97%%'
  AND TAB_VERBAS.FORMULA NOT LIKE '99J%%'
  AND TAB_VERBAS.IDVERBA = %0:d)";
    static const std::string LSql =
        INICIO + Unir({ColunaPrevidencia(), ColunaIrrf(), ColunaFgts(), ColunaSindical()}, ",\n       ") + FIM;
    return LSql;
}

constexpr std::array<std::string_view, 4> CSqlDeletaRelac{
    "DELETE FROM FP_ESOCIALINCIDCP WHERE IDVERBA =  %0:d;",
    "DELETE FROM FP_ESOCIALINCIDCSIND WHERE IDVERBA =  %0:d;",
    "DELETE FROM FP_ESOCIALINCIDFGTS WHERE IDVERBA =  %0:d;",
    "DELETE FROM FP_ESOCIALINCIDIRRF WHERE IDVERBA =  %0:d;",
};

/// %2:s is the end of the table's name, %3:d the code table. A code that the code table doesn't have inserts nothing.
constexpr std::string_view SQL_INSERE_RELAC =
    "INSERT INTO FP_ESOCIALINCID%2:s( FP_ESOCIALINCID%2:s.IDESOCIALINCID%2:s, FP_ESOCIALINCID%2:s.IDVERBA, "
    "FP_ESOCIALINCID%2:s.IDESOCIALTABELA) SELECT GEN_ID(GN_FP_ESOCIALINCID%2:s,1), %0:d, "
    "FP_ESOCIALTABELA.IDESOCIALTABELA "
    "FROM FP_ESOCIALTABELA WHERE FP_ESOCIALTABELA.TABELA = %3:d AND FP_ESOCIALTABELA.CODIGO = %1:d";

/// A code and the variant that it has.
struct TVariante {
    std::int32_t Base;
    std::int32_t Codigo;
};

void AcrescentarVariante(std::vector<std::int32_t>& ALista, std::int32_t ABase,
                         std::initializer_list<TVariante> AVariantes)
{
    for (const auto& LVariante : AVariantes)
        if (LVariante.Base == ABase)
            ALista.push_back(LVariante.Codigo);
}

std::int32_t EsvaziarEDarOPrimeiro(std::vector<std::int32_t>& ALista)
{
    const auto LPrimeiro = ALista.empty() ? 0 : ALista.front();
    ALista.clear();
    return LPrimeiro;
}

bool UmDe(TTipoRetornoIncidVerbas ATipo, TTipoRetornoIncidVerbas A, TTipoRetornoIncidVerbas B)
{
    return ATipo == A || ATipo == B;
}

} // namespace

TTarvoESocialCamposBuscaIncidVerbas::TTarvoESocialCamposBuscaIncidVerbas(std::int64_t AIdVerba) : FIdVerba(AIdVerba) {}

TIncidVerba TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(std::int64_t AIdVerba)
{
    TTarvoESocialCamposBuscaIncidVerbas LBusca(AIdVerba);
    LBusca.BuscarIncidVerba();
    return std::move(LBusca.FIncidVerba);
}

TIncidVerba TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(std::int64_t AIdVerba,
                                                                   TTipoRetornoIncidVerbas ATpRetornoInss,
                                                                   TTipoRetornoIncidVerbas ATpRetornoIrrf,
                                                                   TTipoRetornoIncidVerbas ATpRetornoFgts,
                                                                   TTipoRetornoIncidVerbas ATpRetornoCs)
{
    TTarvoESocialCamposBuscaIncidVerbas LBusca(AIdVerba);
    LBusca.BuscarIncidVerba(ATpRetornoInss, ATpRetornoIrrf, ATpRetornoFgts, ATpRetornoCs);
    return std::move(LBusca.FIncidVerba);
}

TIncidVerba TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(std::int64_t AIdVerba,
                                                                   const TTributosComProcesso& AProcessos)
{
    const auto Tipo = [](bool AComProcesso) { return AComProcesso ? trProcesso : trNormal; };
    return BuscarIncidencias(AIdVerba, Tipo(AProcessos.INSS), Tipo(AProcessos.IRRF), Tipo(AProcessos.FGTS),
                             Tipo(AProcessos.CS));
}

void TTarvoESocialCamposBuscaIncidVerbas::AtualizarIncidencias(std::int64_t AIdVerba)
{
    TTarvoESocialCamposBuscaIncidVerbas(AIdVerba).AtualizarIncidVerba();
}

TResultStatus TTarvoESocialCamposBuscaIncidVerbas::EfetuarCargaInicialIncidencias(
    const TAcompanhamento& AAcompanhamento)
{
    TTarvoESocialCamposBuscaIncidVerbas LBusca(0);
    LBusca.EfetuarCargaInicial(AAcompanhamento);
    return LBusca.FResultStatus;
}

void TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidVerba(TTipoRetornoIncidVerbas ATpRetornoInss,
                                                           TTipoRetornoIncidVerbas ATpRetornoIrrf,
                                                           TTipoRetornoIncidVerbas ATpRetornoFgts,
                                                           TTipoRetornoIncidVerbas ATpRetornoCs)
{
    FTipoRetornoInss = ATpRetornoInss;
    FTipoRetornoIrrf = ATpRetornoIrrf;
    FTipoRetornoFgts = ATpRetornoFgts;
    FTipoRetornoCs = ATpRetornoCs;
    BuscarIncidVerba();
}

void TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidVerba()
{
    const auto LCds = BuscarInstanciaOvraUtilsDbManager().CreateClientDataSetWithConnection();
    LCds->SetCommandText(Format(SqlDaBusca(), FIdVerba));
    LCds->Open();
    if (LCds->IsEmpty())
        return;
    FIncidVerba.FCodVerba = LCds->FieldByName("CODIGO").AsInteger();
    FIncidVerba.FListInss.push_back(LCds->FieldByName("CODINCPREVSOC").AsInteger());
    FIncidVerba.FListIrrf.push_back(LCds->FieldByName("CODINCIRRF").AsInteger());
    FIncidVerba.FListFgts.push_back(LCds->FieldByName("CODINCFGTS").AsInteger());
    FIncidVerba.FListCs.push_back(LCds->FieldByName("CODINCS").AsInteger());
    AlimentarListasIncid();
}

// From lists that start with the base codes it makes the same lists again: AtualizarIncidVerba relies on it.
void TTarvoESocialCamposBuscaIncidVerbas::AlimentarListasIncid()
{
    auto& [LCodVerba, LInss, LIrrf, LFgts, LCs] = FIncidVerba;
    const auto LBaseInss = EsvaziarEDarOPrimeiro(LInss);
    const auto LBaseIrrf = EsvaziarEDarOPrimeiro(LIrrf);
    const auto LBaseFgts = EsvaziarEDarOPrimeiro(LFgts);
    const auto LBaseCs = EsvaziarEDarOPrimeiro(LCs);

    const auto AcrescentarBase = [](auto& ALista, auto ATipo, auto ABase) {
        if (UmDe(ATipo, trTodos, trNormal))
            ALista.push_back(ABase);
    };
    AcrescentarBase(LInss, FTipoRetornoInss, LBaseInss);
    AcrescentarBase(LIrrf, FTipoRetornoIrrf, LBaseIrrf);
    AcrescentarBase(LFgts, FTipoRetornoFgts, LBaseFgts);
    AcrescentarBase(LCs, FTipoRetornoCs, LBaseCs);

    if (UmDe(FTipoRetornoInss, trTodos, trProcesso))
        AcrescentarVariante(LInss, LBaseInss, {{11, 91}, {12, 92}, {21, 93}, {25, 93}, {22, 94}, {26, 94}});

    if (UmDe(FTipoRetornoIrrf, trTodos, trRRA))
        AcrescentarVariante(LIrrf, LBaseIrrf,
                            {{11, 15}, {12, 15}, {13, 15}, {41, 44}, {42, 44}, {43, 44}, {51, 55}, {52, 55}, {53, 55}});
    if (UmDe(FTipoRetornoIrrf, trTodos, trProcesso))
        AcrescentarVariante(LIrrf, LBaseIrrf, {{11, 91}, {12, 92}, {13, 93}, {14, 94}});
    // Accumulated income under a process goes by the kind asked for of social security, not of income tax; meant.
    if (const auto LRra = std::find(LIrrf.begin(), LIrrf.end(), 15);
        LRra != LIrrf.end() && UmDe(FTipoRetornoInss, trTodos, trProcesso)) {
        if (FTipoRetornoInss == trProcesso)
            LIrrf.erase(LRra);
        LIrrf.push_back(95);
    }

    if (UmDe(FTipoRetornoFgts, trTodos, trProcesso))
        AcrescentarVariante(LFgts, LBaseFgts, {{11, 91}, {12, 91}, {21, 91}});
    if (UmDe(FTipoRetornoCs, trTodos, trProcesso))
        AcrescentarVariante(LCs, LBaseCs, {{11, 91}});

    AlertarSobreMaisDeUmCodigo();
}

void TTarvoESocialCamposBuscaIncidVerbas::AlertarSobreMaisDeUmCodigo() const
{
    const auto MaisDeUm = [](auto ATipo, const auto& ALista) { return ATipo != trTodos && ALista.size() > 1; };
    if (MaisDeUm(FTipoRetornoInss, FIncidVerba.FListInss) || MaisDeUm(FTipoRetornoIrrf, FIncidVerba.FListIrrf) ||
        MaisDeUm(FTipoRetornoFgts, FIncidVerba.FListFgts) || MaisDeUm(FTipoRetornoCs, FIncidVerba.FListCs))
        GOvraUtilsDialogs.Alerta(
            "A busca de incidências das verbas está retornando mais de um valor para cada tipo de retorno :/");
}

void TTarvoESocialCamposBuscaIncidVerbas::AtualizarIncidVerba()
{
    BuscarIncidVerba();
    // Once more: the lists of a rubric that the search found stay as they are, those of one that it left out get code
    // 0, so that every rubric has its rows.
    AlimentarListasIncid();
    LimparVerbaNoBanco();
    InserirIncidInssNoBanco();
    InserirIncidIrrfNoBanco();
    InserirIncidFgtsNoBanco();
    InserirIncidCsNoBanco();
}

void TTarvoESocialCamposBuscaIncidVerbas::EfetuarCargaInicial(const TAcompanhamento& AAcompanhamento)
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        "SELECT TAB_VERBAS.IDVERBA FROM TAB_VERBAS ORDER BY TAB_VERBAS.IDVERBA + 0");
    for (std::size_t LFeitas = 1; !LCds->Eof(); LCds->Next(), ++LFeitas) {
        // An instance of its own: its status is not this one's, which stays success; meant.
        TTarvoESocialCamposBuscaIncidVerbas LBusca(LCds->FieldByName("IDVERBA").AsLargeInt());
        LBusca.AtualizarIncidVerba();
        if (AAcompanhamento)
            AAcompanhamento(LBusca.FIdVerba, LBusca.FResultStatus, LFeitas, LCds->RecordCount());
    }
}

void TTarvoESocialCamposBuscaIncidVerbas::LimparVerbaNoBanco()
{
    for (const auto LSql : CSqlDeletaRelac)
        ExecutarSeSemFalha(Format(LSql, FIdVerba));
}

void TTarvoESocialCamposBuscaIncidVerbas::InserirIncidInssNoBanco() { Inserir("CP", 9997, FIncidVerba.FListInss); }

void TTarvoESocialCamposBuscaIncidVerbas::InserirIncidIrrfNoBanco() { Inserir("IRRF", 9998, FIncidVerba.FListIrrf); }

void TTarvoESocialCamposBuscaIncidVerbas::InserirIncidFgtsNoBanco() { Inserir("FGTS", 9996, FIncidVerba.FListFgts); }

void TTarvoESocialCamposBuscaIncidVerbas::InserirIncidCsNoBanco() { Inserir("CSIND", 9995, FIncidVerba.FListCs); }

void TTarvoESocialCamposBuscaIncidVerbas::Inserir(const char* ATributo, std::int32_t ATabela,
                                                  const std::vector<std::int32_t>& ACodigos)
{
    for (const auto LCodigo : ACodigos)
        ExecutarSeSemFalha(Format(SQL_INSERE_RELAC, FIdVerba, LCodigo, ATributo, ATabela));
}

void TTarvoESocialCamposBuscaIncidVerbas::ExecutarSeSemFalha(const std::string& ASql)
{
    if (FResultStatus.Sucesso)
        FResultStatus = OvraConnection().ExecutouSQL({ASql}, true);
}

} // namespace tarvo::regras
