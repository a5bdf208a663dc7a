#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraClientDataSet.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::testes {
namespace {

class OvraDataSet : public TTesteComBanco {
protected:
    /// A dataset of one row with the one column X.
    TOvraClientDataSet& Valor(const std::string& AExpressao)
    {
        FCds.Atribuir(Conexao().Consultar("SELECT " + AExpressao + " AS X FROM RDB$DATABASE"));
        return FCds;
    }
    TField Campo(const std::string& AExpressao) { return Valor(AExpressao).FieldByName("X"); }

private:
    TOvraClientDataSet FCds;
};

TEST_F(OvraDataSet, TextoDeCadaTipoDeColuna)
{
    const std::pair<const char*, const char*> LCasos[] = {
        {"CAST(-7 AS SMALLINT)", "-7"},
        {"CAST(2147483647 AS INTEGER)", "2147483647"},
        {"CAST(-9223372036854775808 AS BIGINT)", "-9223372036854775808"},
        {"CAST(10.5 AS NUMERIC(4,2))", "10,5"},
        {"CAST(-0.25 AS NUMERIC(9,3))", "-0,25"},
        {"CAST(1200 AS NUMERIC(15,2))", "1200"},
        {"CAST(0.0001 AS NUMERIC(18,4))", "0,0001"},
        {"CAST(1234567.891234 AS NUMERIC(18,6))", "1234567,891234"},
        {"CAST(507.1 AS FLOAT)", "507,1"},
        {"CAST(0.1 AS DOUBLE PRECISION)", "0,1"},
        {"CAST(1e0/3 AS DOUBLE PRECISION)", "0,3333333333333333"},
        {"DATE '2021-03-01'", "01/03/2021"},
        {"DATE '1858-11-17'", "17/11/1858"},
        {"DATE '0001-01-01'", "01/01/0001"},
        {"TIMESTAMP '2021-03-01 00:00:00'", "01/03/2021"},
        {"TIMESTAMP '2021-03-01 08:30:05'", "01/03/2021 08:30:05"},
        {"TIMESTAMP '1890-03-01 18:00:00'", "01/03/1890 18:00:00"},
        {"TIMESTAMP '2021-03-01 23:59:59.9999'", "02/03/2021"},
        {"TIME '08:30:00'", "08:30:00"},
        {"TRUE", "True"},
        {"FALSE", "False"},
        {"CAST('ab' AS CHAR(10))", "ab"},
        {"CAST('  ab ' AS CHAR(10))", "  ab"},
        {"CAST('' AS CHAR(10))", ""},
        {"CAST('ab  ' AS VARCHAR(10))", "ab  "},
        {"CAST('São' AS CHAR(5))", "São"},
        {"CAST('São' AS VARCHAR(5) CHARACTER SET WIN1252)", "São"},
        {"CAST('São' AS CHAR(5) CHARACTER SET ISO8859_1)", "São"},
        {"CAST(x'53E36F' AS VARCHAR(5) CHARACTER SET NONE)", "São"},
        {"CAST(x'53E36F' AS CHAR(5) CHARACTER SET NONE)", "São"},
        {"CAST('São' AS VARCHAR(5) CHARACTER SET NONE)", "São"},
        {"CAST('texto de blob: ç' AS BLOB SUB_TYPE TEXT)", "texto de blob: ç"},
        {"CAST('São' AS BLOB SUB_TYPE TEXT CHARACTER SET WIN1252)", "São"},
        {"CAST('' AS BLOB SUB_TYPE TEXT)", ""},
        {"NULL", ""},
        {"CAST(NULL AS BLOB SUB_TYPE TEXT)", ""},
        {"CAST(NULL AS DATE)", ""},
    };
    for (const auto& [LExpressao, LTexto] : LCasos)
        EXPECT_EQ(Campo(LExpressao).AsString(), LTexto) << LExpressao;
}

TEST_F(OvraDataSet, BlobLongoVemInteiro)
{
    // Longer than a segment, with letters of two bytes on both sides of its end.
    Inserir("SC00_ESOCIALREINFXML", {{"IDESOCIALREINFXML", 1}, {"XML", "ç"}});
    for (int i = 0; i < 16; ++i)
        Executar("UPDATE SC00_ESOCIALREINFXML SET XML = XML || XML || 'a'");
    std::string LEsperado = "ç";
    for (int i = 0; i < 16; ++i)
        LEsperado += LEsperado + "a";
    EXPECT_EQ(Consultar("SELECT XML FROM SC00_ESOCIALREINFXML"), LEsperado);
}

TEST_F(OvraDataSet, NumerosDeCadaTipoDeColuna)
{
    struct TCaso {
        const char* Expressao;
        std::int64_t Inteiro;
        double Numero;
        const char* Moeda;
    };
    const TCaso LCasos[] = {
        {"CAST(10.99 AS NUMERIC(9,2))", 10, 10.99, "10,99"},
        {"CAST(-10.99 AS NUMERIC(9,2))", -10, -10.99, "-10,99"},
        {"CAST(0.12345 AS NUMERIC(18,5))", 0, 0.12345, "0,1234"},
        {"CAST(0.12355 AS NUMERIC(18,5))", 0, 0.12355, "0,1236"},
        {"CAST(-0.12355 AS NUMERIC(18,5))", 0, -0.12355, "-0,1236"},
        // Through a wider type it would be rounded twice, to the neighbour of 0.002877.
        {"CAST(0.002877 AS NUMERIC(18,6))", 0, 0.002877, "0,0029"},
        {"CAST(-9007199254.740993 AS NUMERIC(18,6))", -9007199254, -9007199254.740993, "-9007199254,741"},
        {"CAST(507.1 AS FLOAT)", 507, 507.1, "507,1"},
        {"CAST(-1.9 AS DOUBLE PRECISION)", -1, -1.9, "-1,9"},
        {"CAST(3 AS SMALLINT)", 3, 3.0, "3"},
        {"TRUE", 1, 1.0, "1"},
        {"CAST('42' AS CHAR(10))", 42, 42.0, "42"},
        {"CAST(NULL AS NUMERIC(9,2))", 0, 0.0, "0"},
    };
    for (const auto& LCaso : LCasos) {
        const auto LCampo = Campo(LCaso.Expressao);
        EXPECT_EQ(LCampo.AsLargeInt(), LCaso.Inteiro) << LCaso.Expressao;
        EXPECT_EQ(LCampo.AsFloat(), LCaso.Numero) << LCaso.Expressao;
        EXPECT_EQ(CurrToStr(LCampo.AsCurrency()), LCaso.Moeda) << LCaso.Expressao;
    }
    EXPECT_EQ(Campo("CAST('10,5' AS VARCHAR(10))").AsCurrency(), R("10,5"));
    EXPECT_THROW(Campo("CAST('10.5' AS VARCHAR(10))").AsCurrency(), EConvertError);
    EXPECT_THROW(Campo("CAST('x' AS VARCHAR(10))").AsLargeInt(), EConvertError);
    EXPECT_THROW(Campo("CAST('' AS VARCHAR(10))").AsFloat(), EConvertError);
    EXPECT_THROW(Campo("CAST(3000000000 AS BIGINT)").AsInteger(), EIntOverflow);
    EXPECT_THROW(Campo("CAST(922337203685477581 AS BIGINT)").AsCurrency(), EIntOverflow);
    EXPECT_THROW(Campo("CAST(1e300 AS DOUBLE PRECISION)").AsLargeInt(), EIntOverflow);
}

TEST_F(OvraDataSet, DatasDeCadaTipoDeColuna)
{
    EXPECT_EQ(Campo("DATE '2021-03-01'").AsDateTime(), D(2021, 3, 1));
    EXPECT_EQ(Campo("TIMESTAMP '2021-03-01 06:00:00'").AsDateTime(), D(2021, 3, 1) + 0.25);
    EXPECT_EQ(Campo("TIMESTAMP '1899-12-29 06:00:00'").AsDateTime(), TDateTime(-1.25));
    EXPECT_EQ(Campo("TIME '12:00:00'").AsDateTime(), TDateTime(0.5));
    EXPECT_EQ(Campo("'01/03/2021'").AsDateTime(), D(2021, 3, 1));
    EXPECT_TRUE(Campo("CAST(NULL AS TIMESTAMP)").AsDateTime().Vazia());
    EXPECT_THROW(Campo("'31/02/2021'").AsDateTime(), EConvertError);
}

TEST_F(OvraDataSet, CursorEhCampos)
{
    TOvraClientDataSet LCds;
    EXPECT_FALSE(LCds.Active());
    EXPECT_TRUE(LCds.IsEmpty());
    EXPECT_TRUE(LCds.Eof());
    EXPECT_FALSE(LCds.FindField("X"));

    LCds.Atribuir(Conexao().Consultar("SELECT 1 AS UM, CAST(NULL AS INTEGER) AS DOIS FROM RDB$DATABASE "
                                      "UNION ALL SELECT 2, 5 FROM RDB$DATABASE"));
    const auto LUm = LCds.FieldByName("um");
    const auto LDois = LCds.FieldByName("Dois");
    EXPECT_EQ(LUm.AsInteger(), 1);
    EXPECT_TRUE(LDois.IsNull());
    LCds.Next();
    EXPECT_EQ(LUm.AsInteger(), 2); // a field follows the cursor
    EXPECT_FALSE(LDois.IsNull());
    LCds.Next();
    LCds.Next();
    EXPECT_TRUE(LCds.Eof());
    EXPECT_TRUE(LUm.IsNull());
    EXPECT_EQ(LUm.AsString(), "");
    LCds.First();
    EXPECT_EQ(LUm.AsInteger(), 1);
    try {
        LCds.FieldByName("TRES");
        FAIL();
    } catch (const EDatabaseError& LErro) {
        EXPECT_STREQ(LErro.what(), "Campo 'TRES' não encontrado");
    }
    LCds.Close();
    EXPECT_TRUE(LCds.IsEmpty());
}

TEST_F(OvraDataSet, ComandoSemLinhasEhComandoDeUmaLinha)
{
    Executar("INSERT INTO TAB_VERBAS (IDVERBA) VALUES (1)");
    EXPECT_EQ(Conexao().Executar("UPDATE TAB_VERBAS SET CODIGO = 5 WHERE IDVERBA = 1"), 1);
    EXPECT_EQ(Conexao().Executar("UPDATE TAB_VERBAS SET CODIGO = 5 WHERE IDVERBA = 2"), 0);
    EXPECT_EQ(Consultar("UPDATE TAB_VERBAS SET CODIGO = 7 WHERE IDVERBA = 1 RETURNING CODIGO"), "7");
    EXPECT_EQ(Consultar("EXECUTE BLOCK RETURNS (X INTEGER) AS BEGIN X = 3; SUSPEND; END"), "3");
}

TEST_F(OvraDataSet, ErroDoMotorVemComTextoEhCodigo)
{
    try {
        Consultar("SELECT NADA FROM TAB_VERBAS");
        FAIL();
    } catch (const EDatabaseError& LErro) {
        EXPECT_NE(std::string(LErro.what()).find("NADA"), std::string::npos);
        EXPECT_NE(LErro.Codigo(), 0);
        EXPECT_EQ(LErro.SqlState(), "42S22");
    }
    // A failure while rows are read, and the connection goes on.
    EXPECT_THROW(Consultar("SELECT 1 / (IDVERBA - IDVERBA) FROM (SELECT 1 AS IDVERBA FROM RDB$DATABASE)"),
                 EDatabaseError);
    EXPECT_EQ(Consultar("SELECT 1 FROM RDB$DATABASE"), "1");
    EXPECT_THROW(TOvraConnection({"/caminho/que/nao/existe.fdb", "SYSDBA", ""}), EDatabaseError);
}

TEST_F(OvraDataSet, ExecutouSqlTudoOuNada)
{
    Executar("INSERT INTO TAB_VERBAS (IDVERBA, CODIGO) VALUES (1, 10)");
    const auto LFalha =
        Conexao().ExecutouSQL({"UPDATE TAB_VERBAS SET CODIGO = 11 WHERE IDVERBA = 1",
                               "INSERT INTO TAB_VERBAS (IDVERBA) VALUES (2)", "UPDATE TAB_VERBAS SET NADA = 1"},
                              false);
    EXPECT_FALSE(LFalha.Sucesso);
    EXPECT_NE(LFalha.Mensagem.find("NADA"), std::string::npos);
    EXPECT_EQ(Consultar("SELECT LIST(IDVERBA || '=' || CODIGO) FROM TAB_VERBAS"), "1=10"); // the earlier work stays

    const auto LSucesso = Conexao().ExecutouSQL({"UPDATE TAB_VERBAS SET CODIGO = 12 WHERE IDVERBA = 1",
                                                 "INSERT INTO TAB_VERBAS (IDVERBA, CODIGO) VALUES (2, 20)"},
                                                false);
    EXPECT_TRUE(LSucesso.Sucesso);
    EXPECT_EQ(LSucesso.Mensagem, "");
    EXPECT_EQ(Consultar("SELECT SUM(CODIGO) FROM TAB_VERBAS"), "32");
    EXPECT_TRUE(Conexao().ExecutouSQL({}, false).Sucesso);
    EXPECT_TRUE(Conexao().EmTransacao());
}

TEST_F(OvraDataSet, ExecutouSqlConfirmaOuDesfaz)
{
    const auto LParametros = ParametrosDoBanco("executou.fdb");
    TOvraConnection::CriarBanco(LParametros);
    EXPECT_THROW(TOvraConnection::CriarBanco(LParametros), EDatabaseError); // never over an existing file
    TOvraConnection LUma(LParametros);
    TOvraConnection LOutra(LParametros);
    ASSERT_TRUE(LUma.ExecutouSQL({"CREATE TABLE T (ID INTEGER NOT NULL PRIMARY KEY)"}, true).Sucesso);
    const auto Quantas = [&] {
        LOutra.Desfazer();
        return LOutra.Consultar("SELECT COUNT(*) FROM T").Texto(0, 0);
    };
    EXPECT_TRUE(LUma.ExecutouSQL({"INSERT INTO T VALUES (1)", "INSERT INTO T VALUES (2)"}, true).Sucesso);
    EXPECT_EQ(Quantas(), "2");
    EXPECT_FALSE(LUma.ExecutouSQL({"INSERT INTO T VALUES (3)", "INSERT INTO T VALUES (1)"}, true).Sucesso);
    EXPECT_TRUE(LUma.ExecutouSQL({"INSERT INTO T VALUES (4)"}, false).Sucesso);
    EXPECT_EQ(Quantas(), "2"); // not confirmed
    LUma.Confirmar();
    EXPECT_EQ(Quantas(), "3");
    LUma.Executar("DELETE FROM T");
    LUma.Desfazer();
    EXPECT_EQ(Quantas(), "3");
    // A row that another connection holds: no waiting, a plain failure.
    LUma.Executar("UPDATE T SET ID = 9 WHERE ID = 1");
    EXPECT_FALSE(LOutra.ExecutouSQL({"UPDATE T SET ID = 8 WHERE ID = 1"}, true).Sucesso);
    LUma.Desfazer();
    EXPECT_TRUE(LOutra.ExecutouSQL({"UPDATE T SET ID = 8 WHERE ID = 1"}, true).Sucesso);
}

TEST_F(OvraDataSet, BancoApagadoPodeSerCriadoDeNovo)
{
    const auto LParametros = ParametrosDoBanco("apagado.fdb");
    EXPECT_THROW(TOvraConnection::ApagarBanco(LParametros), EDatabaseError);
    for (int i = 0; i < 2; ++i) {
        TOvraConnection::CriarBanco(LParametros);
        TOvraConnection::ApagarBanco(LParametros);
        EXPECT_THROW(TOvraConnection{LParametros}, EDatabaseError);
    }
}

TEST_F(OvraDataSet, ObservadorVeCadaComandoUmaVez)
{
    std::vector<std::pair<std::string, std::int64_t>> LVistos;
    Conexao().DefinirObservador(
        [&](const TExecucaoSql& AExecucao) { LVistos.emplace_back(AExecucao.Sql, AExecucao.Linhas); });
    Consultar("SELECT 1 FROM RDB$DATABASE WHERE 1 = 0");
    EXPECT_THROW(Consultar("SELECT"), EDatabaseError);
    EXPECT_TRUE(Conexao().ExecutouSQL({"INSERT INTO TAB_VERBAS (IDVERBA) VALUES (1)"}, false).Sucesso);
    Conexao().DefinirObservador({});
    Consultar("SELECT 2 FROM RDB$DATABASE");
    ASSERT_EQ(LVistos.size(), 2U);
    EXPECT_EQ(LVistos[0], (std::pair<std::string, std::int64_t>("SELECT 1 FROM RDB$DATABASE WHERE 1 = 0", 0)));
    EXPECT_EQ(LVistos[1], (std::pair<std::string, std::int64_t>("INSERT INTO TAB_VERBAS (IDVERBA) VALUES (1)", 1)));
}

TEST_F(OvraDataSet, SemConexaoDefinidaHaUmErroClaro)
{
    DefinirOvraConnection(nullptr);
    TOvraClientDataSetWithConnection LCds;
    LCds.SetCommandText("SELECT 1 FROM RDB$DATABASE");
    EXPECT_THROW(LCds.Open(), Exception);
    DefinirOvraConnection(&Conexao());
    LCds.Open();
    EXPECT_EQ(LCds.RecordCount(), 1U);
    LCds.SetCommandText("SELECT NADA FROM RDB$DATABASE");
    EXPECT_THROW(LCds.Open(), EDatabaseError);
    EXPECT_FALSE(LCds.Active()); // never the rows of the former statement
}

} // namespace

TEST(OvraConnection, ServidorOuArquivo)
{
    const std::pair<const char*, bool> LCasos[] = {{"/dados/folha.fdb", false},
                                                   {"folha.fdb", false},
                                                   {"localhost:/dados/folha.fdb", true},
                                                   {"host/3051:/dados/folha.fdb", true},
                                                   {"inet://host/folha", true},
                                                   {"C:\\dados\\folha.fdb", false},
                                                   {"C:/dados/folha.fdb", false},
                                                   {"host:C:\\folha.fdb", true},
                                                   {"/dados/a:b.fdb", false},
                                                   {"./a:b.fdb", false},
                                                   {"../dados/a:b.fdb", false},
                                                   {"", false}};
    for (const auto& [LBanco, LServidor] : LCasos)
        EXPECT_EQ((TParametrosConexao{LBanco, "SYSDBA", ""}.EhServidor()), LServidor) << LBanco;
}

} // namespace tarvo::testes
