#include "sst/s2210/UnTarvoESocialCamposS2210.h"
#include "sst/s2245/UnTarvoESocialCamposS2245.h"
#include "trabalhador/UnOrdemDasLinhas.h"

namespace tarvo::testes {
namespace {

using namespace tarvo::sst;

constexpr const char* CAT = "INSERT INTO TABCAT (IDTABCAT, IDTABCATORIGEM) VALUES (1, 9)";
constexpr const char* CURSO = "INSERT INTO FP_CURSOEMPREGADO (IDCURSOEMPREGADO, DATAINICIO) VALUES (1, '01.03.2021')";

class TTesteOrdemSst : public TTesteComBanco, public ::testing::WithParamInterface<TParametroDeOrdem> {};

TEST_P(TTesteOrdemSst, NaoMudaOResultado) { ConferirOrdem(GetParam()); }

std::string Lesoes()
{
    TTarvoESocialCamposCat LCat(1);
    LCat.CarregarDados();
    std::string LTexto;
    for (const auto& LParte : LCat.parteAtingida)
        LTexto += std::to_string(LParte->lateralidade);
    for (const auto& LAgente : LCat.agenteCausador)
        LTexto += "/" + std::to_string(LAgente->codAgntCausador);
    return LTexto;
}

std::string Cbos()
{
    TTarvoESocialCamposS2245 LEvento(1);
    LEvento.CarregarDados();
    std::string LTexto;
    for (const auto& LProfissional : LEvento.treiCap.infoComplem.ideProfResp)
        LTexto += LProfissional->formProf + LProfissional->codCBO + " ";
    return LTexto;
}

const TCasoDasLinhas CASOS[] = {
    {"partesAtingidas",
     "FP_CATPARTEATINGIDA (IDCATPARTEATINGIDA, IDTABCAT, IDPARTEATINGIDA, LATERALIDADE)",
     {"1, 1, 13, 3", "2, 1, 13, 1", "3, 1, 13, 2"},
     Lesoes,
     "312",
     {CAT, "INSERT INTO FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (13, 13, '1')"}},
    {"agentesCausadores",
     "FP_CATAGENTECAUSADOR (IDCATAGENTECAUSADOR, IDTABCAT, IDAGENTECAUSADOR)",
     {"1, 1, 3", "2, 1, 1", "3, 1, 2"},
     Lesoes,
     "/30/10/20",
     {CAT, "INSERT INTO FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (1, 14, '10')",
      "INSERT INTO FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (2, 15, '20')",
      "INSERT INTO FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (3, 14, '30')"}},
    // The certificate and its issuer are of one row.
    {"atestadosDeUmaCat",
     "FP_CATATESTADO (IDCATATESTADO, IDTABCAT, IDPRESTSERVICO, DURTRATAMENTO)",
     {"1, 1, 8, 30", "2, 1, 6, 10", "3, 1, 7, 20"},
     [] {
         TTarvoESocialCamposAtestado LAtestado(1);
         LAtestado.CarregarDados();
         return std::to_string(LAtestado.durTrat) + LAtestado.emitente.nmEmit;
     },
     "30Zoé",
     {CAT, "INSERT INTO PREST_SERVICO (IDPRESTSERVICO, NOME) VALUES (6, 'Ana')",
      "INSERT INTO PREST_SERVICO (IDPRESTSERVICO, NOME) VALUES (8, 'Zoé')"}},
    {"recibosDaCatDeOrigem",
     "SC00_ESOCIALREINFDET (IDESOCIALREINFDET, IDEVENTO, STATUS, DESCRICAO)",
     {"1, 2, 201, 'c'", "2, 1, 202, 'd'", "3, 1, 201, 'a'"},
     [] {
         TTarvoESocialCamposcatOrigem LOrigem(1);
         LOrigem.CarregarDados();
         return LOrigem.nrCatOrig;
     },
     "d",
     {CAT,
      "INSERT INTO SC00_ESOCIALREINFXML (IDESOCIALREINFXML, TPAMB, STATUS, TPEVENTO, IDTABELAEVENTO) "
      "VALUES (2, 1, 201, 'S-2210', 9)",
      "INSERT INTO SC00_ESOCIALREINFXML (IDESOCIALREINFXML, TPAMB, STATUS, TPEVENTO, IDTABELAEVENTO) "
      "VALUES (1, 1, 201, 'S-2210', 9)"}},
    {"profissionais",
     "FP_CURSOEMPREGADODET (IDCURSOEMPREGADODET, IDCURSOEMPREGADO, FORMACAOPROFISRESP)",
     {"1, 1, 'z'", "2, 1, 'a'", "3, 1, 'm'"},
     Cbos,
     "z a m ",
     {CURSO}},
    // Of the positions of the instructor that of the day of the course, the first entered of those of one day.
    {"cargosDoProfissional",
     "CARGOS (IDCARGOS, IDEMPREGADO, DATA, CBO2002)",
     {"1, 5, '01.04.2021', '111'", "2, 5, '01.01.2020', '222'", "3, 5, '01.01.2021', '444'",
      "4, 5, '01.01.2021', '333'"},
     Cbos,
     "z444 ",
     {CURSO, "INSERT INTO EMPREGADOS (IDEMPREGADO) VALUES (5)",
      "INSERT INTO FP_CURSOEMPREGADODET (IDCURSOEMPREGADO, IDEMPREGADO, FORMACAOPROFISRESP) VALUES (1, 5, 'z')"}},
};

INSTANTIATE_TEST_SUITE_P(Sst, TTesteOrdemSst, ::testing::Combine(::testing::ValuesIn(CASOS), ::testing::Bool()),
                         NomeDaOrdem);

} // namespace
} // namespace tarvo::testes
