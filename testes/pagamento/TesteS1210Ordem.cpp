#include <algorithm>
#include <functional>
#include <ostream>

#include "UnPagamentoDeTeste.h"
#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"

namespace tarvo::testes {
namespace {

/// Rows of which one comes first, and what the load tells of them whatever the order in which they were stored.
struct TCasoDePagamento {
    const char* Nome;
    std::function<void()> Preparar;
    std::vector<std::function<void()>> Linhas;
    std::function<std::string()> Resultado;
    const char* Esperado;
};
void PrintTo(const TCasoDePagamento& ACaso, std::ostream* ASaida) { *ASaida << ACaso.Nome; }

class TTesteOrdemDosPagamentos : public TTestePagamento,
                                 public ::testing::WithParamInterface<std::tuple<TCasoDePagamento, bool>> {
public:
    static std::vector<TCasoDePagamento> Casos();

private:
    /// The one rubric of withheld tax of the one demonstrative.
    static const pagamento::TTarvoESocialCamposretPgtoTot& Retida(const TPagamentoCarregado& APagamento)
    {
        return *APagamento.Pagamentos().at(0)->detPgtoFl.at(0)->retPgtoTot.at(0);
    }
    static std::string TabelaDeRubricas() { return Retida(Carregar()).ideTabRubr; }
    static std::string QuantidadeEFator()
    {
        const auto LPagamento = Carregar();
        return FloatToStr(static_cast<double>(Retida(LPagamento).qtdRubr)) + " " +
               FloatToStr(static_cast<double>(Retida(LPagamento).fatorRubr));
    }
    static std::string Identificadores()
    {
        std::string LTexto;
        const auto LPagamento = Carregar();
        for (const auto& LPgto : LPagamento.Pagamentos()) {
            LTexto += "[" + FormatDateTime("DD", LPgto->dtPgto) + "/" + std::to_string(LPgto->tpPgto);
            for (const auto& LDetalhe : LPgto->detPgtoFl)
                LTexto +=
                    " " + LDetalhe->ideDmDev.substr(0, 10) + "=" + FloatToStr(static_cast<double>(LDetalhe->vrLiq));
            LTexto += "]";
        }
        return LTexto;
    }

    static std::function<void()> Calculado(const TCalculoDeTeste& A)
    {
        return [A] { Calculo(A); };
    }
    /// The company's table of rubrics.
    static std::function<void()> Configurada(int AId, TValorSql AInicio, TValorSql AFim, const char* ATabela)
    {
        return [=] {
            Inserir("SC00_EMPRESACFG", {{"IDEMPRESACFG", AId},
                                        {"IDEMPRESA", 1},
                                        {"ORIGEM", 90},
                                        {"ESPECIE", 38},
                                        {"TP", 13},
                                        {"DATAINICIO", AInicio},
                                        {"DATAFIM", AFim},
                                        {"INFORMACAO1", ATabela}});
        };
    }
    static std::function<void()> RelacaoDoRecibo(int AId, int AIrrf)
    {
        return [=] {
            Inserir("FP_RUBRICARELACRPA", {{"IDRUBRICARELACRPA", AId},
                                           {"IDRPATPVALOR", 3},
                                           {"IDESOCIALTABELA", 9203},
                                           {"IDESOCIALTABELACP", 7000},
                                           {"IDESOCIALTABELAIRRF", AIrrf},
                                           {"IDESOCIALTABELAFGTS", 6000},
                                           {"IDESOCIALTABELACS", 5000}});
        };
    }
    static std::function<void()> Contratado(int AId, int ACategoria)
    {
        return [=] { Empregado(AId, ACategoria); };
    }
    static void ContratoComImpostoRetido()
    {
        Empregado(1);
        Calculo({.Verba = vLiquido});
        Calculo({.Verba = vIrrf});
    }
};

std::vector<TCasoDePagamento> TTesteOrdemDosPagamentos::Casos()
{
    const auto CINCO_DE_MARCO = D(2021, 3, 5);
    return {
        {"RubricasDaTabelaVigente",
         ContratoComImpostoRetido,
         {Configurada(1, D(2019, 1, 1), D(2021, 2, 28), "vencida"), Configurada(2, D(2021, 3, 2), nullptr, "futura"),
          Configurada(3, D(2020, 1, 1), nullptr, "velha"), Configurada(5, D(2021, 1, 1), nullptr, "de id maior"),
          Configurada(4, D(2021, 1, 1), D(2021, 3, 1), "vigente"), Configurada(6, nullptr, nullptr, "sem datas")},
         TabelaDeRubricas,
         "vigente"},
        {"RubricasDaTabelaMaisNova",
         ContratoComImpostoRetido,
         {Configurada(1, D(2019, 1, 1), D(2019, 12, 31), "vencida"), Configurada(6, nullptr, nullptr, "sem datas"),
          Configurada(2, D(2020, 1, 1), D(2021, 2, 28), "a mais nova")},
         TabelaDeRubricas,
         "a mais nova"},
        {"QuantidadeEFatorDoPrimeiroCalculo",
         [] {
             Empregado(1);
             Calculo({.Verba = vLiquido});
             Executar("UPDATE TAB_VERBAS SET HORAS = 'Sim' WHERE IDVERBA = 126");
         },
         {Calculado({.Verba = vIrrf, .Referencia = 7.3, .Id = 30}),
          Calculado({.Verba = vIrrf, .Referencia = 9, .Id = 10}),
          Calculado({.Verba = vIrrf, .Referencia = 8, .Id = 20})},
         QuantidadeEFator,
         "9 9"},
        {"ReciboDoContratoDoPrimeiroCalculo",
         [] {
             for (const int LId : {1, 2}) {
                 Empregado(LId, 101, D(2021, 3, 15));
                 Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", LId},
                                                  {"IDEMPRESA", 1},
                                                  {"TPEVENTO", "S-2299"},
                                                  {"TPAMB", 1},
                                                  {"STATUS", 201},
                                                  {"IDTABELAEVENTO", LId},
                                                  {"DATA", D(2021, 3, 20)}});
                 Inserir("SC00_ESOCIALREINFDET",
                         {{"IDEVENTO", LId}, {"STATUS", 201}, {"DESCRICAO", "recibo " + std::to_string(LId)}});
             }
         },
         {Calculado({.Verba = vLiquidoRescisao, .Tipo = "05", .Id = 20}),
          Calculado({.Verba = vLiquidoRescisao, .Empregado = 2, .Tipo = "05", .Id = 10})},
         [] { return Carregar().Pagamentos().at(0)->detPgtoFl.at(0)->nrRecArq; },
         "recibo 2"},
        {"IncidenciasDaPrimeiraRelacaoDoRecibo",
         [] {
             Prestador(7);
             Recibo(10, 7, D(2021, 2, 1), D(2021, 3, 10), 500);
             Inserir("RPATPVALOR", {{"IDRPATPVALOR", 3}, {"NOME", "VLRIRRF"}});
             Inserir("RPAVALOR", {{"IDRPA", 10}, {"IDRPATPVALOR", 3}, {"VALOR", 75}});
             Codigo(9203, 3, "9203");
             Codigo(7000, 9997, "00");
             Codigo(6000, 9996, "11");
             Codigo(5000, 9995, "31");
         },
         {RelacaoDoRecibo(3, 9051), RelacaoDoRecibo(1, 9033), RelacaoDoRecibo(2, 9031)},
         [] { return Retida(Carregar()).codRubr; },
         "00003P000I033F011C031RPA"},
        {"CategoriaDoPrimeiroContratoDasFerias",
         [] {
             Inserir("FERIAS_AQUISITIVO", {{"IDFERIAS_AQUISITIVO", 1}, {"COD_EMPRESA", 1}, {"COD_EMPREGADO", 1002}});
             Inserir("FERIAS_AVOS", {{"IDFERIAS_AVOS", 1}, {"IDFERIAS_AQUISITIVO", 1}});
             Inserir("FERIAS_QUITACAO", {{"IDFERIAS_AVOS", 1}, {"DIAS_QUITADOS", 30}, {"DATA_PAGTO", D(2021, 3, 4)}});
             for (const int LId : {1, 2})
                 Calculo({.Verba = vLiquidoFerias, .Empregado = LId, .Tipo = "04", .Pagto = D(2021, 3, 4)});
         },
         {Contratado(2, 103), Contratado(1, 101)},
         [] {
             const auto LPagamento = Carregar();
             const auto& LFerias = *LPagamento.Pagamentos().at(0)->detPgtoFer.at(0);
             return LFerias.matricula + " " + std::to_string(LFerias.codCateg);
         },
         "M2 101"},
        // The kinds of one list of contracts are told together, though another list stands between them.
        {"PagamentosPorDataTipoELista",
         [] {
             Empregado(10);
             Empregado(2);
             Empregado(3, 101, D(2021, 3, 31));
         },
         {Calculado({.Verba = vLiquido, .Valor = 1, .Empregado = 2}),
          Calculado({.Verba = vLiquido, .Valor = 2, .Empregado = 10}),
          Calculado({.Verba = vLiquido, .Valor = 3, .Empregado = 10, .Tipo = "02"}),
          Calculado({.Verba = vLiquido, .Valor = 4, .Empregado = 10, .Tipo = "03"}),
          Calculado({.Verba = vLiquido, .Valor = 5, .Empregado = 2, .Tipo = "03"}),
          Calculado({.Verba = vLiquido, .Valor = 6, .Empregado = 3}),
          Calculado({.Verba = vLiquido, .Valor = 7, .Empregado = 2, .Tipo = "02", .Pagto = CINCO_DE_MARCO}),
          Calculado({.Verba = vLiquido, .Valor = 8, .Empregado = 2, .Inicio = D(2021, 2, 1), .Pagto = CINCO_DE_MARCO}),
          Calculado({.Verba = vLiquido, .Valor = 9, .Empregado = 2, .Pagto = CINCO_DE_MARCO, .Convocacao = 7})},
         Identificadores,
         "[05/1 01_000_0_0=8 01_000_0_0=9 02_000_0_0=7][31/1 02_000_0_0=3][31/1 01_000_0_0=3 03_000_0_0=9]"
         "[31/2 01_000_0_0=6]"},
    };
}

TEST_P(TTesteOrdemDosPagamentos, OResultadoNaoDependeDaOrdemEmQueSeGravou)
{
    const auto& [LCaso, LAoContrario] = GetParam();
    auto LLinhas = LCaso.Linhas;
    if (LAoContrario)
        std::reverse(LLinhas.begin(), LLinhas.end());
    LCaso.Preparar();
    for (const auto& LInserir : LLinhas)
        LInserir();
    EXPECT_EQ(LCaso.Esperado, LCaso.Resultado());
}

INSTANTIATE_TEST_SUITE_P(Casos, TTesteOrdemDosPagamentos,
                         ::testing::Combine(::testing::ValuesIn(TTesteOrdemDosPagamentos::Casos()), ::testing::Bool()),
                         [](const auto& AInfo) {
                             return std::get<0>(AInfo.param).Nome +
                                    std::string(std::get<1>(AInfo.param) ? "AoContrario" : "");
                         });

/// A database may hold its amounts as binary floating numbers.
TEST_F(TTestePagamento, ASomaSegueAOrdemDaChave)
{
    static constexpr const char* VALORES = R"(SELECT VALOR
FROM (
  SELECT 0.3e0 VALOR, 3 ID FROM RDB$DATABASE
  UNION ALL
  SELECT 0.1e0, 1 FROM RDB$DATABASE
  UNION ALL
  SELECT 0.2e0, 2 FROM RDB$DATABASE))";
    EXPECT_EQ(0.1 + 0.2 + 0.3, static_cast<double>(pagamento::BuscarSomaDoSql(VALORES, "ID")));
    EXPECT_EQ(0.3 + 0.2 + 0.1, static_cast<double>(pagamento::BuscarSomaDoSql(VALORES, "-ID")));
}

} // namespace
} // namespace tarvo::testes
