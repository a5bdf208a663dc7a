#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraFormaSql.h"

// Prepared statements that are kept by their shape: no meaning may change with them.

namespace tarvo::testes {
namespace {

std::vector<std::string> Levantados(std::string_view ASql)
{
    std::vector<std::string> LTextos;
    const auto LForma = LerFormaSql(ASql);
    const auto LLevantaveis = LiteraisLevantaveis(ASql, LForma);
    for (std::size_t i = 0; i < LLevantaveis.size(); ++i)
        if (LLevantaveis[i])
            LTextos.emplace_back(ASql.substr(LForma.Literais[i].Posicao, LForma.Literais[i].Tamanho));
    return LTextos;
}

TEST(TTesteFormaSql, SoLevantaOQueEhValorDeComparacao)
{
    using L = std::vector<std::string>;
    const std::pair<const char*, L> LCasos[] = {
        {"SELECT A FROM T WHERE T.ID = 5 AND T.D <= '01.03.2021'", {"5", "'01.03.2021'"}},
        {"SELECT 1, 'x', CAST('5' AS INTEGER) FROM T WHERE 1=1", {}},
        {"SELECT FIRST 1 A FROM T WHERE A > 2 ORDER BY 1", {"2"}},
        {"SELECT FIRST 1A FROM T", {}},
        {"SELECT (SELECT B FROM U WHERE U.X = 3) FROM T GROUP BY 1", {"3"}},
        {"SELECT COALESCE((SELECT B FROM U WHERE U.X = 3), 1) FROM T", {"3"}},
        {"SELECT CASE WHEN A = 1 THEN 2 END FROM T WHERE CASE WHEN A = 1 THEN 2 END = 3", {"3"}},
        {"SELECT A FROM T WHERE COALESCE(A, 0) = 4 AND SUBSTRING(B FROM 1 FOR 2) = 'ab'", {"4", "'ab'"}},
        {"SELECT A FROM T WHERE A LIKE 'x%' AND B STARTING WITH 'y' AND C CONTAINING 'z'", {}},
        {"SELECT A FROM T WHERE A BETWEEN 1 AND 5 AND B = 'it''s'", {"1", "5", "'it''s'"}},
        {"SELECT A FROM T WHERE A IN (1,2,3) AND B IN ('a')", {"1", "2", "3", "'a'"}},
        {"SELECT A FROM T WHERE A IN (1,2,3,4,5,6,7,8,9)", {}},
        {"SELECT A FROM T WHERE A = -1 OR B = 1.5 OR C = 2 + 3 OR D = 'a' || 'b'", {}},
        {"SELECT A FROM SP_X('01.03.2021', NULL, 7) S JOIN U ON (U.ID = S.ID AND U.T = 8)", {"'01.03.2021'", "7", "8"}},
        {"WITH C AS (SELECT A FROM T WHERE T.X = 1) SELECT A FROM C WHERE C.A <> 2", {"1", "2"}},
        {"SELECT A FROM T WHERE EXTRACT(MONTH FROM T.D) = 3 GROUP BY A HAVING SUM(B) > 0", {"3", "0"}},
        {"SELECT A FROM T WHERE A = 1 -- B = 2\n AND /* C = 3 */ D = 4", {"1", "4"}},
        {"SELECT A FROM T WHERE \"A = 1\" = 2 AND B = x'41' AND C = _UTF8'c'", {"2"}},
        {"SELECT A FROM T WHERE A = 1)", {}},
        {"SELECT A FROM T WHERE A = 'sem fim", {}},
        {"EXECUTE BLOCK RETURNS (A INTEGER) AS BEGIN FOR SELECT A FROM T WHERE A = 1 INTO :A DO SUSPEND; END", {}},
        {"UPDATE T SET A = 1 WHERE B = 2", {}},
    };
    for (const auto& [LSql, LEsperado] : LCasos)
        EXPECT_EQ(LEsperado, Levantados(LSql)) << LSql;
}

class TTesteReaproveitamento : public TTesteComBanco {
protected:
    void TearDown() override
    {
        Conexao().DefinirReaproveitamento(true);
        TTesteComBanco::TearDown();
    }
    static std::string Resposta(const std::string& ASql)
    {
        try {
            const auto LLinhas = OvraConnection().Consultar(ASql);
            std::string LTexto;
            for (std::size_t i = 0; i < LLinhas.QuantidadeDeLinhas(); ++i)
                for (std::size_t c = 0; c < LLinhas.Colunas().size(); ++c)
                    LTexto += (LLinhas.Nulo(i, c) ? "NULL" : LLinhas.Texto(i, c)) + "|";
            return LTexto;
        } catch (const EDatabaseError& LErro) {
            return std::string("erro: ") + LErro.what();
        }
    }
    void EsperarOMesmo(const std::string& ASql)
    {
        Conexao().DefinirReaproveitamento(false);
        const auto LComoEsta = Resposta(ASql);
        Conexao().DefinirReaproveitamento(true);
        EXPECT_EQ(LComoEsta, Resposta(ASql)) << ASql;
        EXPECT_EQ(LComoEsta, Resposta(ASql)) << "again: " << ASql;
    }
};

TEST_F(TTesteReaproveitamento, CadaComparacaoRespondeComoEsta)
{
    for (int i = 0; i < 6; ++i)
        Inserir("TAB_VERBAS", {{"IDVERBA", i},
                               {"CODIGO", i * 20000},
                               {"NOME", i % 2 == 0 ? "Salário" : "Férias"},
                               {"TIPO", std::to_string(i)},
                               {"FORMULA", i == 3 ? "98A" : "1"},
                               {"VLR_CALC", i * 0.25}});
    for (int i = 0; i < 3; ++i)
        Inserir("CALCULO", {{"IDCALCULO", i},
                            {"TIPO", "0" + std::to_string(i)},
                            {"VALOR", i * 100.5},
                            {"DATA_INICIO", D(2021, 3, 1 + i)}});
    const char* const LColunas[] = {"TAB_VERBAS.IDVERBA", "TAB_VERBAS.CODIGO",  "TAB_VERBAS.NOME",
                                    "TAB_VERBAS.TIPO",    "TAB_VERBAS.FORMULA", "TAB_VERBAS.VLR_CALC"};
    const char* const LOperadores[] = {"=", "<>", "<", ">="};
    const char* const LValores[] = {"0",
                                    "3",
                                    "40000",
                                    "99999999999",
                                    "'3'",
                                    "'Salário'",
                                    "'1'",
                                    "'98A'",
                                    "'98A '",
                                    "''",
                                    "'01.03.2021'",
                                    "'um texto mais longo do que qualquer coluna daria conta de guardar, e mais'"};
    for (const char* LColuna : LColunas)
        for (const char* LOperador : LOperadores)
            for (const char* LValor : LValores)
                EsperarOMesmo(std::string("SELECT TAB_VERBAS.IDVERBA FROM TAB_VERBAS WHERE ") + LColuna + " " +
                              LOperador + " " + LValor + " ORDER BY 1");
    for (const char* LColuna :
         {"CALCULO.DATA_INICIO", "CALCULO.TIPO", "CALCULO.VALOR", "CAST(CALCULO.DATA_INICIO AS DATE)"})
        for (const char* LOperador : LOperadores)
            for (const char* LValor : {"'02.03.2021'", "'02.03.2021 00:00:00'", "'31.02.2021'", "'2021-03-02'",
                                       "'TODAY'", "'01'", "100", "101", "'100,5'"})
                EsperarOMesmo(std::string("SELECT CALCULO.IDCALCULO FROM CALCULO WHERE ") + LColuna + " " + LOperador +
                              " " + LValor + " ORDER BY 1");
    EXPECT_LE(Conexao().ComandosGuardados(), 256U);
}

TEST_F(TTesteReaproveitamento, TabelaRefeitaComOutroTipoEhLidaDeNovo)
{
    const auto LParametros = CriarBancoDeTeste("refeita.fdb", false);
    TOvraConnection LConexao(LParametros);
    for (const char* LTipo : {"INTEGER", "VARCHAR(10)", "DATE"}) {
        LConexao.Executar(std::string("CREATE TABLE REFEITA (X ") + LTipo + ")");
        LConexao.Confirmar();
        LConexao.Executar(std::string_view(LTipo) == "DATE" ? "INSERT INTO REFEITA VALUES ('01.03.2021')"
                                                            : "INSERT INTO REFEITA VALUES (5)");
        const char* LSql = std::string_view(LTipo) == "DATE" ? "SELECT X FROM REFEITA WHERE X = '01.03.2021'"
                                                             : "SELECT X FROM REFEITA WHERE X = 5";
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(1U, LConexao.Consultar(LSql).QuantidadeDeLinhas()) << LTipo;
        LConexao.Confirmar();
        LConexao.Executar("DROP TABLE REFEITA");
        LConexao.Confirmar();
        EXPECT_THROW(LConexao.Consultar(LSql), EDatabaseError);
    }
}

/// Every golden with the reuse off, then on, then on again with everything kept.
class TTesteReaproveitamentoDosGoldens : public TTesteComExemplo {};

TEST_F(TTesteReaproveitamentoDosGoldens, OJsonEhOMesmoLigadoEDesligado)
{
    const auto LCasos = LerCasosDosGoldens();
    std::vector<std::string> LDesligado;
    LDesligado.reserve(LCasos.size());
    Conexao().DefinirReaproveitamento(false);
    for (const auto& LCaso : LCasos)
        LDesligado.push_back(CarregarCaso(LCaso));
    Conexao().DefinirReaproveitamento(true);
    for (int LVez = 0; LVez < 2; ++LVez)
        for (std::size_t i = 0; i < LCasos.size(); ++i)
            EXPECT_EQ(LDesligado[i], CarregarCaso(LCasos[i])) << LCasos[i].Evento << "/" << LCasos[i].Nome;
    EXPECT_LE(Conexao().ComandosGuardados(), 256U);
}

} // namespace
} // namespace tarvo::testes
