#include "bench/UnGeradorDeEmpresa.h"

#include <array>
#include <map>
#include <random>
#include <string>

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::bancada {

namespace {

/// Ids of the generated start here; the sample company's are below.
constexpr std::int64_t PRIMEIRO_ID = 1'000'000;

/// How many of ten workers follow a worker of the sample: paid by the month, split over two departments, vacation with
/// its complement, a complementary calculation, without a department, paid by the hour.
constexpr std::array<int, 10> MODELOS = {1, 1, 1, 1, 1, 2, 3, 4, 9, 10};

using TSubstituicoes = std::map<std::string, std::string>;

std::string Cpf(std::uint32_t ANumero)
{
    const auto LDigitos = Format("%.9d", static_cast<std::int64_t>(ANumero));
    const auto LVerificador = [](const std::string& ATexto) {
        int LSoma = 0;
        for (std::size_t i = 0; i < ATexto.size(); ++i)
            LSoma += (ATexto[i] - '0') * static_cast<int>(ATexto.size() + 1 - i);
        const int LResto = LSoma * 10 % 11;
        return static_cast<char>('0' + LResto % 10);
    };
    std::string LCpf = LDigitos + LVerificador(LDigitos);
    LCpf += LVerificador(LCpf);
    return LCpf.substr(0, 3) + "." + LCpf.substr(3, 3) + "." + LCpf.substr(6, 3) + "-" + LCpf.substr(9);
}

/// Copies the rows of a table for every generated worker: `M` is the model's row, `B` the generated worker. Columns
/// without a substitution are copied, but for those that the table numbers itself.
void Copiar(TOvraConnection& AConexao, const std::string& ATabela, const TSubstituicoes& ASubstituicoes,
            const std::string& AOrigem)
{
    const auto LColunas =
        AConexao.Consultar(Format("SELECT TRIM(RDB$FIELD_NAME), RDB$IDENTITY_TYPE FROM RDB$RELATION_FIELDS WHERE "
                                  "RDB$RELATION_NAME = '%s' ORDER BY RDB$FIELD_POSITION",
                                  ATabela));
    std::string LNomes;
    std::string LValores;
    for (std::size_t i = 0; i < LColunas.QuantidadeDeLinhas(); ++i) {
        const auto LNome = LColunas.Texto(i, 0);
        const auto LSubstituicao = ASubstituicoes.find(LNome);
        const bool LCopiada = LSubstituicao == ASubstituicoes.end();
        if (LCopiada && !LColunas.Nulo(i, 1))
            continue; // numbered by the table itself
        const auto LValor = LCopiada ? "M." + LNome : LSubstituicao->second;
        LNomes += (LNomes.empty() ? "" : ", ") + LNome;
        LValores += (LValores.empty() ? "" : ", ") + LValor;
    }
    AConexao.Executar("INSERT INTO " + ATabela + " (" + LNomes + ") SELECT " + LValores + " " + AOrigem);
}

void CriarTrabalhadores(TOvraConnection& AConexao, int AQuantidade, std::uint32_t ASemente)
{
    AConexao.Executar("RECREATE TABLE BANCADA_TRABALHADOR (N INTEGER, MODELO BIGINT, CPF VARCHAR(14))");
    AConexao.Executar("RECREATE TABLE BANCADA_MES (MES INTEGER)");
    AConexao.Confirmar();
    for (int LMes = 1; LMes <= 12; ++LMes)
        AConexao.Executar(Format("INSERT INTO BANCADA_MES VALUES (%d)", LMes));
    std::mt19937 LSorteio(ASemente);
    const auto LPrimeiroCpf = static_cast<std::uint32_t>(200'000'000 + LSorteio() % 100'000'000);
    for (int i = 0; i < AQuantidade; ++i)
        AConexao.Executar(Format("INSERT INTO BANCADA_TRABALHADOR VALUES (%d, %d, '%s')", i,
                                 MODELOS[LSorteio() % MODELOS.size()],
                                 Cpf(LPrimeiroCpf + static_cast<std::uint32_t>(i) * 7)));
    AConexao.Confirmar();
}

/// The engine chooses its plans by what it knows of the indexes, and it knows what they held when they were made.
void AtualizarEstatisticas(TOvraConnection& AConexao)
{
    const auto LIndices = AConexao.Consultar("SELECT TRIM(RDB$INDEX_NAME) FROM RDB$INDICES WHERE RDB$SYSTEM_FLAG = 0");
    for (std::size_t i = 0; i < LIndices.QuantidadeDeLinhas(); ++i)
        AConexao.Executar("SET STATISTICS INDEX " + LIndices.Texto(i, 0));
    AConexao.Confirmar();
}

} // namespace

void GerarTrabalhadores(TOvraConnection& AConexao, int AQuantidade, std::uint32_t ASemente)
{
    CriarTrabalhadores(AConexao, AQuantidade, ASemente);
    const auto LId = "(" + std::to_string(PRIMEIRO_ID) + " + B.N)";
    const auto LDeTrabalhador = [](const std::string& ATabela) {
        return "FROM BANCADA_TRABALHADOR B JOIN " + ATabela + " M ON (M.IDEMPREGADO = B.MODELO)";
    };
    const TSubstituicoes LTrabalhador = {{"IDEMPREGADO", LId},
                                         {"COD_EMPREGADO", LId},
                                         {"CPF", "B.CPF"},
                                         {"CODIGOESOCIAL", "CAST(" + LId + " AS VARCHAR(9))"},
                                         {"PIS", "CAST(17000000000 + B.N * 10 AS VARCHAR(11))"}};
    for (const char* LTabela : {"EMPREGADOS", "CARGOS", "SALARIO", "MOV_TRANSF", "SC00_EMPREGADOCFG",
                                "FP_EMPREGADOSDET", "FP_EMPREGADOSCONTATO"})
        Copiar(AConexao, LTabela, LTrabalhador, LDeTrabalhador(LTabela));
    AConexao.Confirmar();

    // A thousand of ten thousands a worker and month: the sample's own ids fit below.
    const std::string LIdCalculo = "((" + LId + " * 12 + MESES.MES) * 10000 + MOD(%s, 10000))";
    const std::string LDesvio = "MESES.MES - 3 MONTH";
    TSubstituicoes LCalculo = LTrabalhador;
    LCalculo["IDCALCULO"] = Format(LIdCalculo, "M.IDCALCULO");
    for (const char* LData : {"DATA_INICIO", "DATA_PAGTO"})
        LCalculo[LData] = "DATEADD(" + LDesvio + " TO M." + LData + ")";
    LCalculo["DATA_FIM"] = "DATEADD(-1 DAY TO DATEADD(MESES.MES - 2 MONTH TO M.DATA_INICIO))";
    LCalculo["VALOR"] = "ROUND(M.VALOR * (80 + MOD(B.N * 37 + M.COD_VERBA * 11 + MESES.MES * 5, 41)) / 100, 2)";
    const auto LDosMeses = " JOIN BANCADA_MES MESES ON (1 = 1) WHERE M.DATA_INICIO = '01.03.2021'";
    Copiar(AConexao, "CALCULO", LCalculo, LDeTrabalhador("CALCULO") + LDosMeses);
    AConexao.Confirmar();
    Copiar(AConexao, "CALC_QUEBRA", {{"IDCALCULO", Format(LIdCalculo, "M.IDCALCULO")}},
           "FROM BANCADA_TRABALHADOR B JOIN CALCULO C ON (C.IDEMPREGADO = B.MODELO)"
           " JOIN CALC_QUEBRA M ON (M.IDCALCULO = C.IDCALCULO) JOIN BANCADA_MES MESES ON (1 = 1)"
           " WHERE C.DATA_INICIO = '01.03.2021'");
    AConexao.Confirmar();
    AtualizarEstatisticas(AConexao);
}

} // namespace tarvo::bancada
