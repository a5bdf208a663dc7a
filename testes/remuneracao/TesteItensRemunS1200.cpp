#include "imports/UnOvraExcecoes.h"
#include "remuneracao/UnCenarioDeFolha.h"
#include "remuneracao/periodo/UnTarvoESocialCamposItensRemunS1200.h"

namespace tarvo::testes {
namespace {

using remuneracao::GerarListaItensRemun;
using remuneracao::TDadosCalculo;
using remuneracao::TTarvoESocialCamposItensRemunS1200;

class TTesteItensRemun : public TTesteDeFolha {
protected:
    void SetUp() override
    {
        TTesteDeFolha::SetUp();
        Info.SetIdEmpregado(1);
        Info.SetTipoEmpregado(TTipoTrabalhador::Empregado);
    }

    static TDadosCalculo Dados(int ACodVerba, double AValor, const char* AFormula = "1A", double ABase = 0,
                               double AReferencia = 0)
    {
        TDadosCalculo LDados;
        LDados.Cod_Verba = ACodVerba;
        LDados.IdVerba = 1000 + ACodVerba;
        LDados.Valor = AValor;
        LDados.Formula = AFormula;
        LDados.Base = ABase;
        LDados.Referencia = AReferencia;
        LDados.Horas = "Nao";
        LDados.Vlr_Calc = 1.5;
        return LDados;
    }

    TListaDeGrupos<TTarvoESocialCamposItensRemunS1200> Itens(const std::vector<TDadosCalculo>& ADados)
    {
        TListaDeGrupos<TTarvoESocialCamposItensRemunS1200> LItens;
        GerarListaItensRemun(Info, ADados, nullptr, LItens);
        return LItens;
    }

    std::string Texto(const std::vector<TDadosCalculo>& ADados)
    {
        std::string LTexto;
        for (const auto& LItem : Itens(ADados))
            LTexto += (LTexto.empty() ? "" : " ") + LItem->codRubr.substr(0, 5) + "=" + FloatToStr(LItem->vrRubr);
        return LTexto;
    }
};

TEST_F(TTesteItensRemun, LinhasSeguidasDaMesmaVerbaSeJuntam)
{
    Verba(1, "1A");
    Verba(2, "1A");
    const struct {
        std::vector<TDadosCalculo> Dados;
        const char* Esperado;
    } LCasos[] = {
        {{Dados(1, 483.33), Dados(1, 25.08), Dados(2, 10)}, "00001=508,41 00002=10"},
        {{Dados(1, 10), Dados(2, 20), Dados(1, 30)}, "00001=10 00002=20 00001=30"},
        // The first row alone decides: what follows may take the sum below zero.
        {{Dados(1, 10), Dados(1, -15)}, "00001=-5"},
        // After an item that was left out the next row starts anew.
        {{Dados(1, 0), Dados(1, 30), Dados(1, 5)}, "00001=35"},
        {{Dados(1, -1), Dados(1, 0)}, ""},
        {{Dados(1, 10), Dados(2, 0), Dados(1, 5)}, "00001=10 00001=5"},
        {{}, ""},
    };
    for (const auto& LCaso : LCasos)
        EXPECT_EQ(LCaso.Esperado, Texto(LCaso.Dados));
    EXPECT_THROW(Texto({Dados(0, 1)}), EAccessViolation);
}

TEST_F(TTesteItensRemun, VerbasQueNaoVaoNaRemuneracao)
{
    const struct {
        const char* Formula;
        TCamposSql Campos;
        const char* DoEmpregado;
        const char* SemVinculo;
    } LCasos[] = {
        {"1A", {}, "=1", "=1"},
        {"98A", {}, "", ""},                                                // no incidences
        {"99F", {}, "", ""},                                                // income tax 31
        {"99M", {}, "", ""},                                                // 35
        {"5E", {}, "", ""},                                                 // 51
        {"5EB", {}, "", ""},                                                // 52
        {"99C", {}, "=1", "=1"},                                            // 41 stays
        {"3F", {}, "=1", ""},                                               // social security 51
        {"1F", {{"INSS_NORMAL", "Sim"}}, "=1", ""},                         // 25
        {"6BC", {{"INSS_NORMAL", "Sim"}, {"REMUN_13", "Sim"}}, "=1", ""},   // 26
        {"6BA", {{"INSS_NORMAL", "Sim"}, {"REMUN_13", "Sim"}}, "=1", "=1"}, // 22
    };
    int LCodigo = 0;
    for (const auto& LCaso : LCasos) {
        Verba(++LCodigo, LCaso.Formula, LCaso.Campos);
        for (const auto& [LCategoria, LSemVinculo] : {std::pair{101, false}, {700, false}, {701, true}, {723, true}}) {
            Executar("UPDATE EMPREGADOS SET IDCATEGORIAESOCIAL = " + std::to_string(LCategoria));
            const auto LTexto = Texto({Dados(LCodigo, 1, LCaso.Formula)});
            EXPECT_EQ(LSemVinculo ? LCaso.SemVinculo : LCaso.DoEmpregado, LTexto.empty() ? "" : LTexto.substr(5))
                << LCaso.Formula << " " << LCategoria;
        }
    }
}

TEST_F(TTesteItensRemun, CodigoDaRubricaComIncidenciasEProcesso)
{
    Verba(125, "1A", {{"INSS_NORMAL", "Sim"}, {"IRRF_NORMAL", "Sim"}, {"FGTS", "Sim"}});
    Inserir("SC00_EMPRESACFG", {{"IDEMPRESA", 1}, {"ORIGEM", 90}, {"ESPECIE", 38}, {"TP", 13}, {"INFORMACAO1", "TAB"}});
    EXPECT_EQ("00125P011I011F011C011", Itens({Dados(125, 1)})[0]->codRubr);
    Inserir("ES02_SPPROC", {{"IDSPPROC", 1}, {"DATAABERTURA", D(2021, 3, 2)}, {"INDMATERIATPTRIB", 1 + 4}});
    Inserir("FP_VERBAPROCESSO", {{"IDVERBA", 1125}, {"IDSPPROC", 1}});
    EXPECT_EQ("00125P011I011F011C011", Itens({Dados(125, 1)})[0]->codRubr) << "opened after the start of the run";
    Executar("UPDATE ES02_SPPROC SET DATAABERTURA = '01.03.2021'");
    const auto LItens = Itens({Dados(125, 1)});
    EXPECT_EQ("00125P011I091F091C011", LItens[0]->codRubr);
    EXPECT_EQ(91, LItens[0]->CodIncIrrf);
    EXPECT_EQ("TAB", LItens[0]->ideTabRubr);
    EXPECT_EQ(1125, LItens[0]->IdVerba);
}

TEST_F(TTesteItensRemun, BaseNoLugarDoValor)
{
    const struct {
        const char* Natureza;
        const char* Formula;
        double Esperado;
    } LCasos[] = {{"9905", "1R", 900},   {"9930", "3HA", 900}, {"9931", "8BN", 7},
                  {"9930", "6BCA", 7},   {"9932", "1P", 900},  {"9932", "8BNM", 7},
                  {"9932", "8BN2", 900}, {"9933", "1P", 7},    {"1000", "1A", 7}};
    int LCodigo = 0;
    for (const auto& LCaso : LCasos) {
        Verba(++LCodigo, LCaso.Formula);
        Natureza(LCodigo, LCaso.Natureza);
        EXPECT_EQ(LCaso.Esperado, Itens({Dados(LCodigo, 7, LCaso.Formula, 900)})[0]->vrRubr)
            << LCaso.Natureza << LCaso.Formula;
    }
}

TEST_F(TTesteItensRemun, QuantidadeEFatorPelaFormula)
{
    const struct {
        const char* Formula;
        const char* Horas;
        double Quantidade;
        double Fator;
    } LCasos[] = {{"1A", "Nao", 0, 0}, {"1A", "Sim", 7.5, 0},   {"1A", "sim", 0, 0},  {"4TB", "Nao", 7.5, 0},
                  {"4A", "Nao", 0, 0}, {"99C", "Nao", 0, 14.6}, {"1CA", "Nao", 0, 3}, {"1Z", "Sim", 7.5, 3},
                  {"3G", "Nao", 0, 3}, {"3C", "Nao", 0, 3},     {"3CA", "Nao", 0, 0}, {"1ZA", "Nao", 0, 0}};
    int LCodigo = 0;
    for (const auto& LCaso : LCasos) {
        Verba(++LCodigo, LCaso.Formula);
        auto LPrimeira = Dados(LCodigo, 1, LCaso.Formula, 0, 7.3);
        LPrimeira.Horas = LCaso.Horas;
        const auto LItens = Itens({LPrimeira, LPrimeira});
        ASSERT_EQ(1u, LItens.size());
        EXPECT_EQ(LCaso.Quantidade, LItens[0]->qtdRubr) << LCaso.Formula << ": the last row's, not the sum";
        EXPECT_EQ(LCaso.Fator, LItens[0]->fatorRubr) << LCaso.Formula << ": the sum";
    }
}

TEST_F(TTesteItensRemun, PrestadorUsaOCodigoDoReciboESoOValor)
{
    Info.SetTipoEmpregado(TTipoTrabalhador::Prestador);
    TDadosCalculo LDados;
    LDados.Cod_Verba = 1;
    LDados.Cod_Rubr = "00001P011I011F000C000RPA";
    LDados.Valor = 12.5;
    const auto LItens = Itens({LDados});
    ASSERT_EQ(1u, LItens.size());
    EXPECT_EQ(LDados.Cod_Rubr, LItens[0]->codRubr);
    EXPECT_EQ(12.5, LItens[0]->vrRubr);
    LDados.Cod_Rubr.clear();
    EXPECT_TRUE(Itens({LDados}).empty());
}

} // namespace
} // namespace tarvo::testes
