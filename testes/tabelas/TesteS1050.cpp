#include "apoio/UnBancoDeTeste.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "tabelas/s1050/UnTarvoESocialCamposS1050.h"

namespace tarvo::testes {
namespace {

class TTesteS1050 : public TTesteComBanco {
protected:
    static std::string Texto(std::int64_t AIdHorario, std::int64_t AIdHorarioDet, TDiaSemana ADiaSemana)
    {
        tabelas::TTarvoESocialCamposS1050 LEvento(AIdHorario, AIdHorarioDet, ADiaSemana);
        LEvento.CarregarDados();
        const auto& LInfo = LEvento.infoHorContratual;
        const auto& LDados = LInfo.dadosHorContratual;
        const auto& LIntervalo = LDados.HorarioIntervalo;
        EXPECT_EQ("", LInfo.ideHorContratual.iniValid + LInfo.ideHorContratual.fimValid);
        EXPECT_EQ(ADiaSemana, LIntervalo.DiaSemana);
        return LInfo.ideHorContratual.codHorContrat + ": " + LDados.hrEntr + "-" + LDados.hrSaida + " " +
               LDados.durJornada + LDados.perHorFlexivel + " " + LIntervalo.tpInterv + " " + LIntervalo.durInterv +
               " " + LIntervalo.iniInterv + "-" + LIntervalo.termInterv;
    }
};

TEST_F(TTesteS1050, CadaDiaDaSemanaTemAsSuasColunas)
{
    Inserir("TAB_HORARIOS", {{"IDHORARIO", 1}, {"CODIGO", "101"}, {"PERMITEHORFLEXIVEL", "S"}, {"TIPOINTERVALO", 2}});
    int LDia = 0;
    for (const std::string LPrefixo : {"DOM", "SEG", "TER", "QUA", "QUI", "SEX", "SAB"}) {
        const auto LDigito = std::to_string(LDia++);
        Executar("UPDATE TAB_HORARIOS SET " + LPrefixo + "_ENTR = '080" + LDigito + "', " + LPrefixo + "_SAI = '170" +
                 LDigito + "', " + LPrefixo + "_INT_E = '120" + LDigito + "', " + LPrefixo + "_INT_S = '130" + LDigito +
                 "', DURJORNADA" + LPrefixo + " = 48" + LDigito + ", DURINTERV" + LPrefixo + " = 6" + LDigito);
    }
    for (LDia = 0; LDia < 7; ++LDia) {
        const auto N = std::to_string(LDia);
        EXPECT_EQ("101: 080" + N + "-170" + N + " 48" + N + "S 2 6" + N + " 120" + N + "-130" + N,
                  Texto(1, 0, static_cast<TDiaSemana>(LDia)));
    }
    // The weekday that the caller is given is no setting of the load.
    tabelas::TTarvoESocialCamposHorarioIntervalo LIntervalo(1, 0, TDiaSemana::Segunda);
    LIntervalo.DiaSemana = TDiaSemana::Sexta;
    LIntervalo.CarregarDados();
    EXPECT_EQ("1201", LIntervalo.iniInterv);
    EXPECT_THROW(ConstruirEvento("S-1050", {{"AIdHorario", "1"}, {"AIdHorarioDet", "0"}, {"ADiaSemana", "7"}}),
                 EArgumentoInvalido);
}

TEST_F(TTesteS1050, DetalheNaoOlhaHorarioNemDia)
{
    Inserir(
        "TAB_HORARIOS",
        {{"IDHORARIO", 1}, {"CODIGO", "101"}, {"PERMITEHORFLEXIVEL", "S"}, {"TIPOINTERVALO", 2}, {"SEG_ENTR", "0800"}});
    Inserir("TAB_HORARIOSDET", {{"IDHORARIODET", 9},
                                {"IDHORARIO", 1},
                                {"CODIGOESOCIAL", "1019"},
                                {"ENTR", "1900"},
                                {"SAI", "0700"},
                                {"DURJORNADA", 660},
                                {"INT_E", "0000"},
                                {"INT_S", "0100"},
                                {"DURINTERV", 60}});
    for (const std::int64_t LIdHorario : {0, 1, 77})
        EXPECT_EQ("1019: 1900-0700 660S 2 60 0000-0100", Texto(LIdHorario, 9, TDiaSemana::Segunda));
    EXPECT_EQ(": -    -", Texto(1, 8, TDiaSemana::Segunda));
}

} // namespace
} // namespace tarvo::testes
