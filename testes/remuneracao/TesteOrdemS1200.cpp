#include <algorithm>
#include <functional>
#include <vector>

#include "imports/valores/UnOvraFormat.h"
#include "remuneracao/UnCenarioDeFolha.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200.h"

namespace tarvo::testes {
namespace {

using remuneracao::TTarvoESocialCamposS1200;

/// Rows that nothing but their keys tells apart, inserted in the order of the keys and the other way round: the result
/// is the same.
class TTesteOrdemS1200 : public TTesteDeFolha {
public:
    using TPasso = std::function<void(TTesteOrdemS1200&)>;
    struct TCaso {
        const char* Rotulo;
        std::vector<TPasso> Linhas;
        std::string (*Ler)(const TTarvoESocialCamposS1200&);
        const char* Esperado;
        TPasso Antes = [](TTesteOrdemS1200&) {};
    };

    /// A calculated row of rubric 1, which is told in hours: the reference shows.
    static TPasso Calculada(std::int64_t AId, double AReferencia, int ASubTipo = 0)
    {
        return [=](TTesteOrdemS1200&) {
            Inserir("CALCULO", {{"IDCALCULO", AId},
                                {"IDEMPREGADO", 1},
                                {"COD_EMPRESA", 7},
                                {"COD_FILIAL", 1},
                                {"IDFILIAL", 1},
                                {"COD_VERBA", 1},
                                {"TIPO", "01"},
                                {"SUBTIPO", ASubTipo},
                                {"DATA_INICIO", D(2021, 3, 1)},
                                {"DATA_FIM", D(2021, 3, 31)},
                                {"DATA_PAGTO", D(2021, 3, 31)},
                                {"BASE", 0},
                                {"REFERENCIA", AReferencia},
                                {"VALOR", 10}});
        };
    }
    static TPasso Dividida(std::int64_t AId, double AReferencia, double AValor)
    {
        return [=](TTesteOrdemS1200&) {
            Inserir("CALC_QUEBRA", {{"IDCALCQUEBRA", AId},
                                    {"IDCALCULO", 50},
                                    {"COD_FILIAL", 1},
                                    {"IDFILIAL", 1},
                                    {"BASE", 0},
                                    {"REFERENCIA", AReferencia},
                                    {"VALOR", AValor},
                                    {"DIASTRAB", 1}});
        };
    }
    static TPasso Configuracao(int AId, int ATp, const char* AInformacao, TDateTime AInicio, TValorSql AFim = nullptr)
    {
        return [=](TTesteOrdemS1200&) {
            Inserir("SC00_EMPRESACFG", {{"IDEMPRESACFG", AId},
                                        {"IDEMPRESA", 1},
                                        {"ORIGEM", 90},
                                        {"ESPECIE", 38},
                                        {"TP", ATp},
                                        {"DATAINICIO", AInicio},
                                        {"DATAFIM", AFim},
                                        {"INFORMACAO1", AInformacao}});
        };
    }
    static TPasso Contrato(std::int64_t AId, TValorSql APis, TValorSql ADemissao = nullptr)
    {
        return [=](TTesteOrdemS1200&) {
            Inserir("EMPREGADOS", {{"IDEMPREGADO", AId},
                                   {"IDEMPRESA", 1},
                                   {"COD_EMPRESA", 7},
                                   {"COD_EMPREGADO", 100 + AId},
                                   {"CPF", CPF},
                                   {"PIS", APis},
                                   {"CODIGOESOCIAL", "MAT" + std::to_string(AId)},
                                   {"IDCATEGORIAESOCIAL", 101},
                                   {"DATA_ADMISSAO", D(2018, 1, 2)},
                                   {"DATA_DEMISSAO", ADemissao}});
        };
    }
    static TPasso Comando(const char* ASql)
    {
        return [=](TTesteOrdemS1200&) { Executar(ASql); };
    }
    static TPasso Quebra(int ATipo)
    {
        return [=](TTesteOrdemS1200& ATeste) { ATeste.TipoDeQuebra(ATipo); };
    }
    static TPasso Autonomo(std::int64_t AId, const char* ANome)
    {
        return [=](TTesteOrdemS1200& ATeste) {
            ATeste.Prestador(AId, "11122233396", 701);
            Executar("UPDATE PREST_SERVICO SET NOME = '" + std::string(ANome) + "', CBO = '" + ANome +
                     "' WHERE IDPRESTSERVICO = " + std::to_string(AId));
        };
    }
    /// A complementary dismissal that is paid in the month (SUBTIPO 2), or the normal one before it (0).
    static TPasso Rescisao(std::int64_t AId, std::int64_t AIdEmpregado, int ASubTipo, TDateTime AInicio)
    {
        return [=](TTesteOrdemS1200&) {
            Inserir("CALCULO", {{"IDCALCULO", AId},
                                {"IDEMPREGADO", AIdEmpregado},
                                {"COD_EMPRESA", 7},
                                {"COD_EMPREGADO", 100 + AIdEmpregado},
                                {"COD_FILIAL", 1},
                                {"IDFILIAL", 1},
                                {"COD_VERBA", 1},
                                {"TIPO", "05"},
                                {"SUBTIPO", ASubTipo},
                                {"DATA_INICIO", AInicio},
                                {"DATA_FIM", AInicio},
                                {"DATA_PAGTO", ASubTipo == 2 ? D(2021, 3, 31) : AInicio},
                                {"BASE", 0},
                                {"REFERENCIA", 0},
                                {"VALOR", 10}});
        };
    }

    /// "rubric=value/quantity" of each item.
    static std::string Itens(const TTarvoESocialCamposS1200& AEvento)
    {
        return DosItens(AEvento, [](const auto& AItem) {
            return AItem.codRubr.substr(0, 5) + "=" + FloatToStr(AItem.vrRubr) + "/" + FloatToStr(AItem.qtdRubr);
        });
    }
    static std::string TabelasDeRubricas(const TTarvoESocialCamposS1200& AEvento)
    {
        return DosItens(AEvento, [](const auto& AItem) { return AItem.ideTabRubr; });
    }
    static std::string Nis(const TTarvoESocialCamposS1200& AEvento) { return AEvento.IdeTrabalhador.nisTrab; }
    static std::string DoAutonomo(const TTarvoESocialCamposS1200& AEvento)
    {
        return AEvento.IdeTrabalhador.infoComplem.nmTrab + " " + AEvento.dmDev.at(0)->infoComplCont.codCBO;
    }
    static std::string Atividade(const TTarvoESocialCamposS1200& AEvento)
    {
        return AEvento.dmDev.at(0)->infoComplCont.natAtividade;
    }
    static std::string PeriodosAnteriores(const TTarvoESocialCamposS1200& AEvento)
    {
        std::string LTexto;
        for (const auto& LDmDev : AEvento.dmDev)
            for (const auto& LAcordo : LDmDev->infoPerAnt.ideAdc)
                for (const auto& LPeriodo : LAcordo->idePeriodo)
                    LTexto += FormatDateTime("DD/MM/YYYY", LPeriodo->perRef) + ";";
        return LTexto;
    }

    static std::vector<TCaso> Casos();

private:
    template <class TLer>
    static std::string DosItens(const TTarvoESocialCamposS1200& AEvento, TLer ALer)
    {
        std::string LTexto;
        for (const auto& LDmDev : AEvento.dmDev)
            for (const auto& LLotacao : LDmDev->infoPerApur.ideEstabLot)
                for (const auto& LRemuneracao : LLotacao->remunPerApur)
                    for (const auto& LItem : LRemuneracao->itensRemun)
                        LTexto += (LTexto.empty() ? "" : " ") + ALer(*LItem);
        return LTexto;
    }
};

std::vector<TTesteOrdemS1200::TCaso> TTesteOrdemS1200::Casos()
{
    const auto SemPis = Comando("UPDATE EMPREGADOS SET PIS = ' ' WHERE IDEMPREGADO = 1");
    return {
        {"the quantity of a merged item: with the break table that of the lowest key",
         {Calculada(50, 79), Calculada(60, 77), Calculada(70, 75)},
         Itens,
         "00001=30/79",
         Quebra(2)},
        {"without it that of the highest",
         {Calculada(50, 79), Calculada(60, 77), Calculada(70, 75)},
         Itens,
         "00001=30/75"},
        {"of a complementary run with the break table",
         {Calculada(50, 77, 4), Calculada(60, 79, 4), Calculada(70, 75, 4)},
         Itens,
         "00001=30/77",
         [](TTesteOrdemS1200& ATeste) {
             ATeste.TipoDeQuebra(2);
             ATeste.Complementar(1, 2, D(2021, 3, 1), D(2021, 3, 31), D(2021, 3, 31));
         }},
        {"of the parts of one row: those alike in all are one, with the lowest of their keys",
         {Dividida(5, 3, 10), Dividida(6, 8, 20), Dividida(7, 3, 10), Dividida(8, 1, 5)},
         Itens,
         "00001=35/3",
         [](TTesteOrdemS1200& ATeste) {
             ATeste.TipoDeQuebra(2);
             Calculada(50, 99)(ATeste);
         }},
        {"two values of a receipt with one sequence: the code of the last",
         {Comando("INSERT INTO RPAVALOR (IDRPAVALOR, IDRPA, IDRPATPVALOR, VALOR) VALUES (1, 1, 2, 30)"),
          Comando("INSERT INTO RPAVALOR (IDRPAVALOR, IDRPA, IDRPATPVALOR, VALOR) VALUES (2, 1, 1, 40)"),
          Comando("INSERT INTO RPAVALOR (IDRPAVALOR, IDRPA, IDRPATPVALOR, VALOR) VALUES (3, 1, 2, 50)")},
         Itens,
         "00002=120/0",
         [](TTesteOrdemS1200& ATeste) {
             ATeste.Prestador(5, "11122233396", 701);
             ATeste.Recibo(1, 1234, 5, D(2021, 3, 5), 100);
             Executar("DELETE FROM RPAVALOR");
             ATeste.TipoDeValor(2, 1, 3501);
         }},
        {"the providers of a receipt's number",
         {[](TTesteOrdemS1200& ATeste) { ATeste.Recibo(1, 1234, 5, D(2021, 3, 5), 100); },
          [](TTesteOrdemS1200& ATeste) { ATeste.Recibo(2, 1234, 6, D(2021, 3, 5), 200); },
          [](TTesteOrdemS1200& ATeste) { ATeste.Recibo(3, 1234, 4, D(2021, 3, 5), 300); }},
         Itens,
         "00001=300/0 00001=100/0 00001=200/0",
         [](TTesteOrdemS1200& ATeste) {
             for (const auto LId : {4, 5, 6})
                 ATeste.Prestador(LId, "11122233396", 701);
         }},
        {"a provider with two records",
         {Autonomo(5, "Z"), Autonomo(6, "A"), Autonomo(7, "B")},
         DoAutonomo,
         "Z Z",
         Calculada(50, 1)},
        {"the rubric table in force",
         {Configuracao(1, 13, "FUTURA", D(2021, 4, 1)), Configuracao(2, 13, "PRIMEIRA", D(2018, 1, 1)),
          Configuracao(3, 13, "ATUAL", D(2021, 1, 1)), Configuracao(4, 13, "OUTRA", D(2021, 1, 1)),
          Configuracao(5, 13, "VENCIDA", D(2021, 2, 1), D(2021, 2, 28))},
         TabelasDeRubricas,
         "ATUAL",
         Calculada(50, 1)},
        {"without one in force the newest start",
         {Configuracao(1, 13, "VENCIDA", D(2020, 1, 1), D(2021, 2, 28)), Configuracao(2, 13, "FUTURA", D(2021, 4, 1)),
          Configuracao(3, 13, "OUTRA", D(2021, 4, 1))},
         TabelasDeRubricas,
         "FUTURA",
         Calculada(50, 1)},
        {"two tax classifications of one day",
         {Configuracao(1, 1, "7", D(2021, 1, 1)), Configuracao(2, 1, "1", D(2021, 1, 1))},
         Atividade,
         "1",
         [](TTesteOrdemS1200& ATeste) {
             Autonomo(5, "Z")(ATeste);
             Calculada(50, 1)(ATeste);
         }},
        {"the NIS of the first contract", {Contrato(2, "070"), Contrato(3, "060")}, Nis, "170"},
        {"an empty one hides no other",
         {Contrato(2, ""), Contrato(3, "060"), Contrato(4, nullptr)},
         Nis,
         "060",
         SemPis},
        {"nor one that is dismissed, which comes after the provider",
         {Contrato(2, "222", D(2020, 1, 1)), Autonomo(5, "Z")},
         Nis,
         "999",
         SemPis},
        {"a dismissed contract's alone",
         {Contrato(2, "333", D(2020, 1, 1)), Contrato(3, "222", D(2020, 1, 1))},
         Nis,
         "333",
         SemPis},
        {"none at all", {Contrato(2, ""), Contrato(3, nullptr)}, Nis, "", SemPis},
        {"the normal dismissal of the contract with the first complementary row",
         {Rescisao(40, 2, 2, D(2021, 3, 1)), Rescisao(41, 1, 2, D(2021, 3, 1)), Rescisao(42, 1, 0, D(2018, 5, 1)),
          Rescisao(43, 2, 0, D(2019, 4, 1))},
         PeriodosAnteriores,
         "01/04/2019;",
         [](TTesteOrdemS1200& ATeste) {
             Contrato(2, "170")(ATeste);
             ATeste.Acordo(9, D(2021, 3, 10));
             for (const int LCodigo : {101, 102})
                 Inserir("RESC_COMPL", {{"COD_EMPRESA", 7},
                                        {"COD_EMPREGADO", LCodigo},
                                        {"DATA_PGTO", D(2021, 3, 31)},
                                        {"IDINFOGFIP650660", 9}});
         }},
    };
}

TEST_F(TTesteOrdemS1200, AOrdemEmQueAsLinhasEntraramNaoMudaOResultado)
{
    for (auto& LCaso : Casos()) {
        for (const bool LAoContrario : {false, true}) {
            TearDown();
            SetUp();
            Verba(1, "1A", {{"HORAS", "Sim"}});
            LCaso.Antes(*this);
            if (LAoContrario)
                std::reverse(LCaso.Linhas.begin(), LCaso.Linhas.end());
            for (const auto& LLinha : LCaso.Linhas)
                LLinha(*this);
            TTarvoESocialCamposS1200 LEvento(Info);
            LEvento.CarregarDados();
            EXPECT_EQ(LCaso.Esperado, LCaso.Ler(LEvento))
                << LCaso.Rotulo << (LAoContrario ? ", the other way round" : "");
        }
    }
}

} // namespace
} // namespace tarvo::testes
