#include <firebird/Interface.h>

#include <stdexcept>

#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/banco/UnOvraScriptSql.h"
#include "imports/firebird/UnOvraFirebirdMensagem.h"

namespace tarvo::testes {
namespace {

/// The text of the EDatabaseError that an operation raises; empty when it raises none.
template <class TOperacao>
std::string TextoDoErro(TOperacao AOperacao)
{
    try {
        AOperacao();
    } catch (const EDatabaseError& LErro) {
        return LErro.what();
    }
    return {};
}

bool Contem(const std::string& ATexto, std::string_view AParte) { return ATexto.find(AParte) != std::string::npos; }

class OvraConnectionComBanco : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Executar("INSERT INTO TAB_VERBAS (IDVERBA, CODIGO) VALUES (1, 10)");
    }
    void TearDown() override
    {
        Conexao().DefinirReaproveitamento(true);
        Conexao().DefinirVigia({});
        Conexao().DefinirObservador({});
        TTesteComBanco::TearDown();
    }
    static std::string Verbas() { return Consultar("SELECT LIST(IDVERBA || '=' || CODIGO) FROM TAB_VERBAS"); }
};

TEST_F(OvraConnectionComBanco, ParametroSemValorEhRecusado)
{
    const std::string LConsultas[] = {
        "SELECT IDVERBA FROM TAB_VERBAS WHERE IDVERBA > ?",
        "SELECT IDVERBA FROM TAB_VERBAS WHERE IDVERBA = 1 AND CODIGO > ?",
        "SELECT IDVERBA FROM TAB_VERBAS WHERE CODIGO > ? AND IDVERBA = 1 /* '?' */",
        "SELECT IDVERBA FROM TAB_VERBAS WHERE FORMULA = '?' OR CODIGO IN (10, ?)",
        "WITH V AS (SELECT IDVERBA FROM TAB_VERBAS WHERE CODIGO = ?) SELECT * FROM V",
        "SELECT ? FROM RDB$DATABASE", // the engine finds no type for it
        "EXECUTE BLOCK (X INTEGER = ?) RETURNS (Y INTEGER) AS BEGIN Y = X; SUSPEND; END",
        "UPDATE TAB_VERBAS SET CODIGO = ? WHERE IDVERBA = 1 RETURNING CODIGO",
    };
    const std::string LComandos[] = {
        "UPDATE TAB_VERBAS SET CODIGO = ?",
        "DELETE FROM TAB_VERBAS WHERE CODIGO > ?",
        "INSERT INTO TAB_VERBAS (IDVERBA, CODIGO) VALUES (2, ?)",
        "EXECUTE BLOCK (X INTEGER = ?) AS BEGIN DELETE FROM TAB_VERBAS WHERE CODIGO > :X; END",
    };
    for (const bool LReaproveitar : {true, false}) {
        Conexao().DefinirReaproveitamento(LReaproveitar);
        for (const auto& LSql : LConsultas)
            for (int i = 0; i < 2; ++i) // a statement whose shape is known too
                EXPECT_PRED2(Contem, TextoDoErro([&] { Conexao().Consultar(LSql); }), "parâmetro sem valor (?)")
                    << LSql;
        for (const auto& LSql : LComandos) {
            EXPECT_PRED2(Contem, TextoDoErro([&] { Conexao().Executar(LSql); }), "parâmetro sem valor (?)") << LSql;
            EXPECT_PRED2(Contem, Conexao().ExecutouSQL({LSql}, false).Mensagem, "parâmetro sem valor (?)") << LSql;
        }
    }
    EXPECT_EQ(Verbas(), "1=10");
}

TEST_F(OvraConnectionComBanco, InterrogacaoQueNaoEhParametro)
{
    EXPECT_EQ(Consultar("SELECT 'a?' /* ? */ AS \"X?\" -- ?\nFROM RDB$DATABASE WHERE '?' = '?'"), "a?");
    EXPECT_EQ(Conexao().Executar("UPDATE TAB_VERBAS SET FORMULA = 'por quê?' -- ?\nWHERE CODIGO = 10"), 1);
    EXPECT_EQ(Consultar("SELECT q'{d'água?}' FROM RDB$DATABASE"), "d'água?");
    // An error of another kind, told as the engine tells it.
    const auto LErro = TextoDoErro([] { Consultar("SELECT NADA FROM TAB_VERBAS WHERE FORMULA = '?'"); });
    EXPECT_PRED2(Contem, LErro, "NADA");
    EXPECT_FALSE(Contem(LErro, "parâmetro"));
}

TEST_F(OvraConnectionComBanco, ComandoDeTransacaoEhRecusado)
{
    for (const std::string LSql : {"COMMIT", "commit work", "COMMIT RETAIN", "ROLLBACK", "/* x */ Rollback Work",
                                   "ROLLBACK RETAIN", "SET TRANSACTION", "SET TRANSACTION READ ONLY WAIT"}) {
        SCOPED_TRACE(LSql);
        const char* LTexto = "use Confirmar, Desfazer ou IniciarTransacao";
        EXPECT_PRED2(Contem, TextoDoErro([&] { Conexao().Executar(LSql); }), LTexto);
        EXPECT_PRED2(Contem, TextoDoErro([&] { Conexao().Consultar(LSql); }), LTexto);
        const auto LResultado = Conexao().ExecutouSQL({"DELETE FROM TAB_VERBAS", LSql}, true);
        EXPECT_FALSE(LResultado.Sucesso);
        EXPECT_PRED2(Contem, LResultado.Mensagem, LTexto);
        EXPECT_PRED2(Contem, TextoDoErro([&] { ExecutarScriptSql(Conexao(), LSql + ";\nDELETE FROM TAB_VERBAS;"); }),
                     LTexto);
        EXPECT_TRUE(Conexao().EmTransacao());
        EXPECT_EQ(Verbas(), "1=10");
    }
    Executar("SAVEPOINT UM");
    Executar("DELETE FROM TAB_VERBAS");
    Executar("ROLLBACK TO SAVEPOINT UM");
    Executar("RELEASE SAVEPOINT UM");
    EXPECT_EQ(Verbas(), "1=10");
    Conexao().Desfazer();
    EXPECT_EQ(Verbas(), "");
}

TEST_F(OvraConnectionComBanco, ExecutouSqlContaOPrimeiroMotivo)
{
    // From the second statement on nothing runs, its undoing neither.
    int LExecutados = 0;
    Conexao().DefinirVigia([&](TPassoSql APasso) {
        if (APasso == TPassoSql::Executar && ++LExecutados > 2)
            throw EDatabaseError(LExecutados == 3 ? "primeiro motivo" : "segundo motivo", 335544436, "XX001");
    });
    const auto LResultado =
        Conexao().ExecutouSQL({"UPDATE TAB_VERBAS SET CODIGO = 11", "UPDATE TAB_VERBAS SET CODIGO = 12"}, true);
    Conexao().DefinirVigia({});
    EXPECT_EQ(LExecutados, 4);
    EXPECT_FALSE(LResultado.Sucesso);
    EXPECT_EQ(LResultado.Mensagem.find("primeiro motivo"), 0U) << LResultado.Mensagem;
    // What could not be undone is there still: the caller has to know.
    EXPECT_EQ(Verbas(), "1=11");
    EXPECT_PRED2(Contem, LResultado.Mensagem, "não pôde ser desfeito: segundo motivo");
}

TEST_F(OvraConnectionComBanco, ExecutouSqlDesfazPorQualquerExcecao)
{
    Conexao().DefinirObservador([](const TExecucaoSql&) { throw std::runtime_error("do observador"); });
    EXPECT_THROW(static_cast<void>(Conexao().ExecutouSQL({"UPDATE TAB_VERBAS SET CODIGO = 11"}, true)),
                 std::runtime_error);
    Conexao().DefinirObservador({});
    EXPECT_EQ(Verbas(), "1=10");
    // Of two reasons the first, whatever they are.
    Conexao().DefinirVigia([LPassos = 0](TPassoSql) mutable {
        if (++LPassos > 4)
            throw std::runtime_error(LPassos == 5 ? "primeiro" : "segundo");
    });
    try {
        static_cast<void>(Conexao().ExecutouSQL({"UPDATE TAB_VERBAS SET CODIGO = 11"}, true));
        FAIL();
    } catch (const std::runtime_error& LErro) {
        EXPECT_STREQ(LErro.what(), "primeiro");
    }
}

/// The metadata of a message of two columns; one of its answers fails.
class TMetadadosQueFalham : public Firebird::IMessageMetadataImpl<TMetadadosQueFalham, Firebird::CheckStatusWrapper> {
public:
    using TEstado = Firebird::CheckStatusWrapper;

    explicit TMetadadosQueFalham(int APasso) : FPassoQueFalha(APasso) {}

    int Passos() const { return FPassos; }

    void addRef() override {}
    int release() override { return 1; }
    unsigned getCount(TEstado* AEstado) override { return Responder(AEstado, 2U); }
    const char* getField(TEstado* AEstado, unsigned) override { return Responder(AEstado, "X"); }
    const char* getRelation(TEstado* AEstado, unsigned) override { return Responder(AEstado, "T"); }
    const char* getOwner(TEstado* AEstado, unsigned) override { return Responder(AEstado, "D"); }
    const char* getAlias(TEstado* AEstado, unsigned) override { return Responder(AEstado, "X"); }
    unsigned getType(TEstado* AEstado, unsigned) override { return Responder(AEstado, unsigned{SQL_LONG}); }
    FB_BOOLEAN isNullable(TEstado* AEstado, unsigned) override { return Responder(AEstado, FB_BOOLEAN{1}); }
    int getSubType(TEstado* AEstado, unsigned) override { return Responder(AEstado, 0); }
    unsigned getLength(TEstado* AEstado, unsigned) override { return Responder(AEstado, 4U); }
    int getScale(TEstado* AEstado, unsigned) override { return Responder(AEstado, 0); }
    unsigned getCharSet(TEstado* AEstado, unsigned) override { return Responder(AEstado, 0U); }
    unsigned getOffset(TEstado* AEstado, unsigned AIndice) override { return Responder(AEstado, AIndice * 8); }
    unsigned getNullOffset(TEstado* AEstado, unsigned AIndice) override { return Responder(AEstado, AIndice * 8 + 4); }
    Firebird::IMetadataBuilder* getBuilder(TEstado*) override { return nullptr; }
    unsigned getMessageLength(TEstado* AEstado) override { return Responder(AEstado, 16U); }
    // Of version 4.
    unsigned getAlignment(TEstado* AEstado) { return Responder(AEstado, 4U); }
    unsigned getAlignedLength(TEstado* AEstado) { return Responder(AEstado, 16U); }

private:
    /// The answer is a plausible one even where it fails: only the status tells.
    template <class T>
    T Responder(TEstado* AEstado, T AResposta)
    {
        if (FPassos++ == FPassoQueFalha) {
            const intptr_t LErros[] = {isc_arg_gds, isc_network_error, isc_arg_string,
                                       reinterpret_cast<intptr_t>("servidor"), isc_arg_end};
            AEstado->setErrors(LErros);
        }
        return AResposta;
    }

    int FPassoQueFalha;
    int FPassos = 0;
};

} // namespace

TEST(OvraConnection, NenhumPassoDaDescricaoFalhaEmSilencio)
{
    TMetadadosQueFalham LBons(-1);
    EXPECT_EQ(firebird::Descrever(LBons).Colunas->size(), 2U);
    ASSERT_GT(LBons.Passos(), 10);
    for (int i = 0; i < LBons.Passos(); ++i) {
        SCOPED_TRACE(i);
        TMetadadosQueFalham LMaus(i);
        try {
            firebird::Descrever(LMaus);
            ADD_FAILURE() << "a falha passou em silêncio";
        } catch (const EDatabaseError& LErro) {
            EXPECT_EQ(LErro.Codigo(), isc_network_error);
            EXPECT_EQ(LErro.SqlState(), "08006");
            EXPECT_PRED2(Contem, LErro.what(), "servidor");
        }
        EXPECT_EQ(LMaus.Passos(), i + 1); // nothing is asked after it
    }
}

} // namespace tarvo::testes
