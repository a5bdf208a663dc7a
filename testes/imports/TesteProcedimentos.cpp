#include "apoio/UnBancoDeTeste.h"

// The procedures of our own schema.

namespace tarvo::testes {
namespace {

class TTesteProcedimentos : public TTesteComExemplo {
protected:
    static std::int64_t Numero(const std::string& ASql) { return OvraConnection().Consultar(ASql).Inteiro(0, 0); }

    /// Rows that the engine reads one after the other, by no index, to answer a statement which it has prepared before.
    std::int64_t LidasSemIndice(const std::string& ASql)
    {
        const auto Contador = [&] {
            Conexao().Desfazer(); // a new transaction sees a new state of the engine
            return Numero("SELECT S.MON$RECORD_SEQ_READS FROM MON$RECORD_STATS S JOIN MON$ATTACHMENTS A ON "
                          "(A.MON$STAT_ID = S.MON$STAT_ID) WHERE A.MON$ATTACHMENT_ID = CURRENT_CONNECTION");
        };
        Consultar(ASql);
        const auto LAntes = Contador();
        Consultar(ASql);
        return Contador() - LAntes;
    }
};

TEST_F(TTesteProcedimentos, AAlocacaoDeUmEhADeTodosSemLerADosOutros)
{
    const auto LTodos = Conexao().Consultar("SELECT * FROM SP_BUSCARALOCACAOEMPREGADO('31.03.2021')");
    EXPECT_GT(LTodos.QuantidadeDeLinhas(), 20U);
    const auto DeUm = [](const std::string& AId) {
        return "SELECT * FROM SP_BUSCARALOCACAOEMPREGADO('31.03.2021', NULL, " + AId + ")";
    };
    for (std::size_t i = 0; i < LTodos.QuantidadeDeLinhas(); ++i) {
        const auto LDeUm = Conexao().Consultar(DeUm(LTodos.Texto(i, 0)));
        ASSERT_EQ(1U, LDeUm.QuantidadeDeLinhas()) << LTodos.Texto(i, 0);
        for (std::size_t c = 0; c < LTodos.Colunas().size(); ++c)
            EXPECT_EQ(LTodos.Texto(i, c), LDeUm.Texto(0, c)) << LTodos.Texto(i, 0);
    }
    EXPECT_EQ("", Consultar(DeUm("-1")));
    EXPECT_EQ(0, LidasSemIndice(DeUm("1")));
}

} // namespace
} // namespace tarvo::testes
