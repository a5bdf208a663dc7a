#include <rapidjson/document.h>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <set>
#include <typeindex>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnEventosDoCatalogo.h"
#include "apoio/UnTestesLongos.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"

// Whatever a payroll database may hold: each bound property takes the value or raises the error that the binding's
// rules say, and a load over spoiled tables ends in a tree or in a clear error.

namespace tarvo::testes {
namespace {

/// Tables, each spoiled in one way, of one event in a short run.
constexpr std::size_t MAXIMO_DE_ESTRAGOS = 24;

/// A value of a column, and what it is as each kind of property. Without a number it counts as 0, without a date it is
/// an error.
struct TValorRuim {
    std::string Sql;
    /// Trimmed; nothing for a null.
    std::optional<std::string> Texto;
    std::int64_t Inteiro = 0;
    long double Numero = 0;
    std::optional<TDateTime> Data = std::nullopt;
};

const std::vector<TValorRuim>& ValoresRuins()
{
    const auto Dia = [](int AAno, int AMes, int ADia) { return std::optional(EncodeDate(AAno, AMes, ADia)); };
    static const std::vector<TValorRuim> LValores{
        {"CAST(NULL AS VARCHAR(10))", std::nullopt},
        {"'abc'", "abc"},
        {"''", ""},
        {"CAST('   ' AS CHAR(9))", ""},
        {"CAST(' 12 ' AS CHAR(9))", "12", 12, 12},
        {"'-3'", "-3", -3, -3},
        {"'+ 3'", "+ 3"},
        {"'1 2'", "1 2"},
        {"'12x'", "12x"},
        {"'0x10'", "0x10"},
        {"'NaN'", "NaN"},
        {"'INF'", "INF"},
        {"'10.5'", "10.5"},
        {"'10,5'", "10,5", 0, 10.5L},
        {"'1.234,56'", "1.234,56"},
        {"'127'", "127", 127, 127},
        {"'128'", "128", 128, 128},
        {"'-129'", "-129", -129, -129},
        {"'2147483648'", "2147483648", 2147483648, 2147483648.0L},
        {"'-2147483649'", "-2147483649", -2147483649, -2147483649.0L},
        {"'9223372036854775808'", "9223372036854775808", 0, 9223372036854775808.0L},
        {"'99999999999999999999'", "99999999999999999999", 0, 1e20L},
        {"'1E400'", "1E400"},
        {"'1E-400'", "1E-400"},
        {"'31/02/2021'", "31/02/2021"},
        {"'00/00/0000'", "00/00/0000"},
        {"'2021-03-01'", "2021-03-01"},
        {"'01/03/2021'", "01/03/2021", 0, 0, Dia(2021, 3, 1)},
        {"'1.3.21'", "1.3.21", 0, 0, Dia(2021, 3, 1)},
        {"'01/03/2021 25:00'", "01/03/2021 25:00"},
        {"'01/03/2021 08:30'", "01/03/2021 08:30", 0, 0, JuntarDataHora(*Dia(2021, 3, 1), EncodeTime(8, 30, 0))},
        {"RPAD('x', 8000, 'x')", std::string(8000, 'x')},
        {"RPAD('9', 8000, '9')", std::string(8000, '9')},
        {"CAST(RPAD('x', 8000, 'x') AS BLOB SUB_TYPE TEXT)", std::string(8000, 'x')},
        // Bytes that are no UTF-8, from a column without a character set: cut sequences, a lone E9, a surrogate.
        {"CAST(CAST(x'41E9' AS VARCHAR(9) CHARACTER SET OCTETS) AS VARCHAR(9) CHARACTER SET NONE)", "Aé"},
        {"CAST(CAST(x'41C3' AS VARCHAR(9) CHARACTER SET OCTETS) AS VARCHAR(9) CHARACTER SET NONE)", "AÃ"},
        {"CAST(CAST(x'EDA080' AS VARCHAR(9) CHARACTER SET OCTETS) AS VARCHAR(9) CHARACTER SET NONE)", "í\u00A0€"},
        {"CAST(CAST(x'C3A9' AS VARCHAR(9) CHARACTER SET OCTETS) AS VARCHAR(9) CHARACTER SET NONE)", "é"},
        {"'a' || ASCII_CHAR(0) || 'b'", std::string("a\0b", 3)},
        {"'a' || ASCII_CHAR(31) || 'b'", "a\x1F"
                                         "b"},
        {"DATE '0001-01-01'", "01/01/0001", 0, 0, Dia(1, 1, 1)},
        {"DATE '1899-12-30'", "30/12/1899", 0, 0, Dia(1899, 12, 30)},
        {"DATE '9999-12-31'", "31/12/9999", 0, 0, Dia(9999, 12, 31)},
        {"TIMESTAMP '0001-01-01 12:00:00'", "01/01/0001 12:00:00", 0, 0,
         JuntarDataHora(*Dia(1, 1, 1), EncodeTime(12, 0, 0))},
        {"TIMESTAMP '9999-12-31 23:59:59'", "31/12/9999 23:59:59", 0, 0,
         JuntarDataHora(*Dia(9999, 12, 31), EncodeTime(23, 59, 59))},
        {"TIME '23:59:59'", "23:59:59"},
        {"CAST(-2147483648 AS INTEGER)", "-2147483648", -2147483648, -2147483648.0L},
        {"CAST('-9223372036854775808' AS BIGINT)", "-9223372036854775808", std::numeric_limits<std::int64_t>::min(),
         -9223372036854775808.0L},
        {"CAST('99999999999999.9999' AS NUMERIC(18,4))", "99999999999999,9999", 0, 99999999999999.9999L},
        {"CAST('-0.0001' AS NUMERIC(18,4))", "-0,0001", 0, -0.0001L},
        {"CAST('1E300' AS DOUBLE PRECISION)", "1E+300", 0, 1e300L},
        {"CAST('1E-300' AS DOUBLE PRECISION)", "1E-300", 0, 1e-300L},
        {"CAST('1200' AS DOUBLE PRECISION)", "1200", 1200, 1200},
        {"CAST('507.1' AS FLOAT)", "507,1", 0, 507.1L},
        {"TRUE", "True"},
    };
    return LValores;
}

/// What a property holds after the binding, or the error; worked out from the rules, not from the binding's code.
struct TEsperado {
    TValorPropriedade Valor;
    bool Erro = false;
};

TEsperado Esperado(const TPropriedade& APropriedade, const TValorRuim& AValor)
{
    const auto LTexto = APropriedade.Field()->ClasseConversor()->Criar()->BuscarValor(*AValor.Texto);
    const bool LMesmo = LTexto == *AValor.Texto;
    const auto LInteiro = LMesmo ? AValor.Inteiro : StrToInt64Def(LTexto, 0);
    const auto LNumero = LMesmo ? AValor.Numero : StrToFloatDef(LTexto, 0);
    const auto LNaFaixa = [&](std::int64_t AMaximo) {
        return TEsperado{LInteiro, LInteiro > AMaximo || LInteiro < -AMaximo - 1};
    };
    switch (APropriedade.Tipo()) {
    case TTipoPropriedade::Texto:
        return {LTexto};
    case TTipoPropriedade::ShortInt:
        return LNaFaixa(127);
    case TTipoPropriedade::Int32:
        return LNaFaixa(2147483647);
    case TTipoPropriedade::Int64:
        return {LInteiro};
    case TTipoPropriedade::Double:
        return {static_cast<long double>(static_cast<double>(LNumero))};
    case TTipoPropriedade::Extended:
        return {LNumero};
    case TTipoPropriedade::Currency:
        if (LNumero > 922337203685477.5807L || LNumero < -922337203685477.5808L)
            return {{}, true};
        return {Currency(LNumero)};
    case TTipoPropriedade::Data:
        return LMesmo && AValor.Data ? TEsperado{*AValor.Data} : TEsperado{{}, true};
    default:
        ADD_FAILURE() << APropriedade.Nome() << " não pode ter coluna";
        return {};
    }
}

bool Iguais(const TValorPropriedade& A, const TValorPropriedade& B)
{
    // Texts of a FLOAT or a DOUBLE read back to the nearest number of the property's own kind.
    if (const auto* LA = std::get_if<long double>(&A), *LB = std::get_if<long double>(&B);
        LA != nullptr && LB != nullptr)
        return static_cast<double>(*LA) == static_cast<double>(*LB);
    return A == B;
}

class TTesteDadosRuins : public TTesteComExemplo, public ::testing::WithParamInterface<std::string> {
protected:
    static void TearDownTestSuite()
    {
        std::printf("Dados ruins: %zu classes, %zu propriedades com coluna, %zu valores; %zu cargas sobre tabelas "
                    "estragadas, %zu com erro claro%s\n",
                    FClasses.size(), FPropriedades, FValores, FCargas, FErros,
                    TestesLongos() ? "" : " (TESTES_LONGOS=1 estraga todas, em todos os casos)");
    }
    void TearDown() override
    {
        Conexao().DefinirReaproveitamento(true);
        TTesteComExemplo::TearDown();
    }

    void ProvarPropriedade(TTarvoESocialCamposGrupoBase& AGrupo, const TPropriedade& APropriedade)
    {
        const auto& LField = *APropriedade.Field();
        ++FPropriedades;
        for (const auto& LValor : ValoresRuins()) {
            SCOPED_TRACE(LField.Campo() + " = " + LValor.Sql.substr(0, 100));
            TOvraClientDataSetWithConnection LCds;
            LCds.SetCommandText("SELECT " + LValor.Sql + " AS \"" + LField.Campo() + "\" FROM RDB$DATABASE");
            LCds.Open();
            const auto LAntes = APropriedade.Ler(AGrupo);
            auto LEsperado = LValor.Texto ? Esperado(APropriedade, LValor) : TEsperado{LAntes};
            if (!LValor.Texto && !LField.ValorDefault().empty() && APropriedade.Tipo() == TTipoPropriedade::Texto)
                LEsperado.Valor = LField.ValorDefault();
            try {
                AGrupo.SetarValoresDoCdsNasProperties(LCds);
                EXPECT_FALSE(LEsperado.Erro) << "falta o erro";
            } catch (const EConvertError& LErro) {
                EXPECT_TRUE(LEsperado.Erro && APropriedade.Tipo() != TTipoPropriedade::Currency) << LErro.what();
                EXPECT_NE(std::string::npos, std::string(LErro.what()).find(LValor.Texto->c_str()))
                    << "the error names the text";
            } catch (const EIntOverflow& LErro) {
                EXPECT_TRUE(LEsperado.Erro && APropriedade.Tipo() == TTipoPropriedade::Currency) << LErro.what();
            }
            EXPECT_TRUE(Iguais(LEsperado.Erro ? LAntes : LEsperado.Valor, APropriedade.Ler(AGrupo)));
            ++FValores;
        }
    }

    /// Every class of the tree that no earlier tree had.
    void ProvarArvore(TTarvoESocialCamposGrupoBase& AGrupo)
    {
        const bool LNova = FClasses.insert(typeid(AGrupo)).second;
        for (const auto& LPropriedade : AGrupo.PropriedadesDaClasse()) {
            // The tree is ours; its walk is const because the JSON's is.
            const auto Provar = [&](const TTarvoESocialCamposGrupoBase* AFilho) {
                if (AFilho != nullptr)
                    ProvarArvore(const_cast<TTarvoESocialCamposGrupoBase&>(*AFilho));
            };
            if (LPropriedade.Tipo() == TTipoPropriedade::Grupo)
                Provar(LPropriedade.Filho(AGrupo));
            else if (LPropriedade.Tipo() == TTipoPropriedade::ListaDeGrupos)
                for (std::size_t i = 0; i < LPropriedade.Quantidade(AGrupo); ++i)
                    Provar(LPropriedade.Item(AGrupo, i));
            else if (LNova && LPropriedade.Field() != nullptr) {
                SCOPED_TRACE(std::string(typeid(AGrupo).name()) + "." + LPropriedade.Nome());
                ProvarPropriedade(AGrupo, LPropriedade);
            }
        }
    }

    void CarregarEstragado(const TCasoDoGolden& ACaso)
    {
        ++FCargas;
        try {
            rapidjson::Document LDocumento;
            EXPECT_FALSE(
                LDocumento.Parse<rapidjson::kParseValidateEncodingFlag>(CarregarCaso(ACaso).c_str()).HasParseError());
        } catch (const Exception& LErro) {
            ++FErros;
            EXPECT_STRNE("", LErro.what());
            EXPECT_TRUE(Utf8Valido(LErro.what())) << LErro.what();
        } catch (const std::exception& LErro) {
            ADD_FAILURE() << "um erro que não é dos nossos: " << LErro.what();
        }
    }

    static inline std::set<std::type_index> FClasses;
    static inline std::size_t FPropriedades = 0;
    static inline std::size_t FValores = 0;
    static inline std::size_t FCargas = 0;
    static inline std::size_t FErros = 0;
};

TEST_P(TTesteDadosRuins, CadaPropriedadeComColunaSegueAsRegras)
{
    Conexao().DefinirReaproveitamento(false);
    const TBrencoLigado LBrenco(Conexao());
    for (const auto& LCaso : CasosDoEvento(GetParam(), true)) {
        const auto LEvento = ConstruirEvento(LCaso.Evento, LCaso.Argumentos);
        ProvarArvore(*LEvento.Evento); // what the constructor makes is there even if the load changes it
        LEvento.Evento->CarregarDados();
        ProvarArvore(*LEvento.Evento);
        if (HasFailure())
            return;
    }
}

/// What takes the place of every value of a table: by the kind of the column, an expression; empty to leave it.
struct TEstrago {
    const char* Nome;
    const char* Texto;
    const char* Data;
    const char* Numero;
};

constexpr TEstrago ESTRAGOS[] = {
    {"nulos", "NULL", "NULL", "NULL"},
    {"vazios e zeros", "''", "DATE '0001-01-01'", "0"},
    {"lixo e negativos", R"('ç"\ <&>' || ASCII_CHAR(0) || '%0:d')", "DATE '9999-12-31'", "-1"},
    {"números em texto", "'-99999999999999999999'", "DATE '1899-12-30'", "32767"},
    {"datas em texto", "'31/02/2021'", "", "99"},
};

/// The columns of a table that may be changed: no key, none that must have a value.
std::string ComandoDoEstrago(const std::string& ATabela, const TEstrago& AEstrago)
{
    const auto LColunas = OvraConnection().Consultar(
        "SELECT TRIM(RF.RDB$FIELD_NAME), F.RDB$FIELD_TYPE, F.RDB$CHARACTER_LENGTH FROM RDB$RELATION_FIELDS RF "
        "JOIN RDB$FIELDS F ON (F.RDB$FIELD_NAME = RF.RDB$FIELD_SOURCE) "
        "WHERE RF.RDB$RELATION_NAME = '" +
        ATabela +
        "' AND RF.RDB$NULL_FLAG IS NULL AND F.RDB$COMPUTED_SOURCE IS NULL "
        "AND NOT EXISTS (SELECT 1 FROM RDB$RELATION_CONSTRAINTS C JOIN RDB$INDEX_SEGMENTS S ON (S.RDB$INDEX_NAME = "
        "C.RDB$INDEX_NAME) WHERE C.RDB$RELATION_NAME = RF.RDB$RELATION_NAME AND S.RDB$FIELD_NAME = RF.RDB$FIELD_NAME) "
        "AND RF.RDB$FIELD_NAME NOT STARTING WITH 'ID'");
    std::string LMudancas;
    for (std::size_t i = 0; i < LColunas.QuantidadeDeLinhas(); ++i) {
        const auto LTipo = LColunas.Inteiro(i, 1);
        std::string LValor = AEstrago.Numero;
        if (LTipo == 14 || LTipo == 37)
            LValor = "LEFT(" + std::string(AEstrago.Texto) + ", " + LColunas.Texto(i, 2) + ")";
        else if (LTipo == 261)
            LValor = AEstrago.Texto;
        else if (LTipo == 12 || LTipo == 35)
            LValor = AEstrago.Data;
        else if (LTipo == 13)
            LValor = "NULL";
        else if (LTipo == 23)
            continue;
        if (!LValor.empty())
            LMudancas += (LMudancas.empty() ? "" : ", ") + LColunas.Texto(i, 0) + " = " + LValor;
    }
    return LMudancas.empty() ? "" : "UPDATE " + ATabela + " SET " + LMudancas;
}

TEST_P(TTesteDadosRuins, TabelasEstragadasDaoUmaArvoreOuUmErroClaro)
{
    for (const auto& LCaso : CasosDoEvento(GetParam(), TestesLongos())) {
        std::string LComandos;
        Conexao().DefinirObservador(
            [&](const TExecucaoSql& AExecucao) { LComandos += Maiusculas(AExecucao.Sql) + "\n"; });
        const auto LEsperado = CarregarCaso(LCaso);
        Conexao().DefinirObservador({});
        const auto LTabelas = Conexao().Consultar(
            "SELECT TRIM(RDB$RELATION_NAME) FROM RDB$RELATIONS WHERE RDB$SYSTEM_FLAG = 0 AND RDB$VIEW_BLR IS NULL");
        std::vector<std::pair<std::string, std::string>> LEstragos;
        for (std::size_t i = 0; i < LTabelas.QuantidadeDeLinhas(); ++i) {
            const auto LTabela = LTabelas.Texto(i, 0);
            if (LComandos.find(LTabela + " ") == std::string::npos &&
                LComandos.find(LTabela + "\n") == std::string::npos)
                continue;
            for (const auto& LEstrago : ESTRAGOS)
                if (auto LSql = ComandoDoEstrago(LTabela, LEstrago); !LSql.empty())
                    LEstragos.emplace_back(LTabela + " com " + LEstrago.Nome, std::move(LSql));
        }
        // Each table has five ways: a distance that is no multiple of five meets all of them.
        auto LSalto = Intervalo(LEstragos.size(), MAXIMO_DE_ESTRAGOS);
        if (LSalto % std::size(ESTRAGOS) == 0)
            ++LSalto;
        for (std::size_t i = 0; i < LEstragos.size(); i += LSalto) {
            SCOPED_TRACE(LCaso.Nome + ": " + LEstragos[i].first);
            Executar(LEstragos[i].second);
            CarregarEstragado(LCaso);
            Conexao().Desfazer();
        }
        EXPECT_EQ(LEsperado, CarregarCaso(LCaso));
    }
}

INSTANTIATE_TEST_SUITE_P(Eventos, TTesteDadosRuins, ::testing::ValuesIn(EventosDoCatalogo()), NomeDoEvento);

} // namespace
} // namespace tarvo::testes
