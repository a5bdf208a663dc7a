#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>
#include <random>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnEventosDoCatalogo.h"
#include "apoio/UnTestesLongos.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/UnOvraSerializacaoXmlReader.h"
#include "imports/banco/UnOvraFormaSql.h"
#include "imports/banco/UnOvraScriptSql.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnOvraUtilsStrings.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

// Texts that nobody wrote: whatever reads a text gives a value or its own error, always ends, and what can be put
// together again is the same text.

namespace tarvo::testes {
namespace {

using TTempo = std::chrono::steady_clock;

/// Texts from a seed; a failure names the seed and the text.
class TGerador {
public:
    explicit TGerador(std::uint32_t ASemente) : FSorteio(ASemente) {}

    std::size_t Ate(std::size_t AMaximo) { return std::uniform_int_distribution<std::size_t>(0, AMaximo)(FSorteio); }
    std::int64_t Inteiro()
    {
        const auto LBits = static_cast<std::int64_t>(FSorteio());
        return LBits >> Ate(63);
    }
    /// Any number that a column may hold: of every magnitude, never infinite.
    double Numero() { return std::ldexp(static_cast<double>(Inteiro()), static_cast<int>(Ate(600)) - 300); }
    TDateTime Data() { return TDateTime(static_cast<double>(Ate(3'650'000)) - 693'593 + (Ate(1) != 0 ? 0.0 : 0.36)); }

    /// Pieces of an alphabet, one after the other.
    std::string Texto(const std::vector<std::string>& APecas, std::size_t AMaximo)
    {
        std::string LTexto;
        for (auto LQuantas = Ate(AMaximo); LQuantas > 0; --LQuantas)
            LTexto += APecas[Ate(APecas.size() - 1)];
        return LTexto;
    }
    /// Bytes of any kind.
    std::string Bytes(std::size_t AMaximo)
    {
        std::string LTexto(Ate(AMaximo), '\0');
        for (auto& LByte : LTexto)
            LByte = static_cast<char>(Ate(255));
        return LTexto;
    }
    /// A text with a few of its stretches removed, doubled, exchanged or replaced.
    std::string Estragado(std::string ATexto, const std::vector<std::string>& APecas)
    {
        for (auto LVezes = Ate(4) + 1; LVezes > 0 && !ATexto.empty(); --LVezes) {
            const auto LPosicao = Ate(ATexto.size() - 1);
            const auto LTamanho = Ate(std::min<std::size_t>(20, ATexto.size() - LPosicao));
            const auto LTrecho = ATexto.substr(LPosicao, LTamanho);
            switch (Ate(3)) {
            case 0:
                ATexto.erase(LPosicao, LTamanho);
                break;
            case 1:
                ATexto.insert(LPosicao, LTrecho);
                break;
            case 2:
                ATexto.replace(LPosicao, LTamanho, APecas[Ate(APecas.size() - 1)]);
                break;
            default:
                ATexto[LPosicao] = static_cast<char>(Ate(255));
            }
        }
        return ATexto;
    }

private:
    std::mt19937_64 FSorteio;
};

/// Runs a property over generated inputs, up to a time that a slow build may reach first; tells how many.
void Gerar(const char* ANome, std::size_t AQuantidade, const std::function<void(TGerador&)>& AProva)
{
    const auto LFim = TTempo::now() + std::chrono::seconds(TestesLongos() ? 60 : 3);
    const std::size_t LTotal = TestesLongos() ? AQuantidade * 100 : AQuantidade;
    std::size_t LFeitos = 0;
    for (; LFeitos < LTotal && TTempo::now() < LFim && !::testing::Test::HasFailure(); ++LFeitos) {
        const auto LSemente = static_cast<std::uint32_t>(LFeitos + 1);
        SCOPED_TRACE("semente " + std::to_string(LSemente));
        TGerador LGerador(LSemente);
        AProva(LGerador);
    }
    std::printf("%s: %zu textos gerados\n", ANome, LFeitos);
}

/// The value, or nothing where the operation raised the conversion error that it may raise.
template <class TOperacao>
auto Tentar(TOperacao AOperacao) -> std::optional<decltype(AOperacao())>
{
    try {
        return AOperacao();
    } catch (const EConvertError& LErro) {
        EXPECT_STRNE("", LErro.what());
        return std::nullopt;
    }
}

TEST(TTesteTextosGerados, ModelosDoFormat)
{
    const std::vector<std::string> LPecas{
        "%", "%0:d", "%1:s", "%2:d", "%d", "%s", "%%", ":", "-", ".", "0", "7", "99999999999999999999",
        "x", "ç",    "D",    "S",    "\n"};
    Gerar("Format", 40'000, [&](TGerador& A) {
        const auto LModelo = A.Texto(LPecas, 12);
        SCOPED_TRACE(LModelo);
        const auto LTexto = A.Bytes(8);
        if (const auto LResultado = Tentar([&] { return Format(LModelo, A.Inteiro(), LTexto); })) {
            EXPECT_LE(LResultado->size(), 4200 * (LModelo.size() + 1));
        }
        // An argument is data: whatever stands in it comes out as it is.
        EXPECT_EQ("[" + LTexto + "]" + LModelo, Format("[%0:s]%1:s", LTexto, LModelo));
    });
}

TEST(TTesteTextosGerados, Mascaras)
{
    Gerar("Máscaras", 40'000, [](TGerador& A) {
        const auto LMascara = A.Texto({"0", "#", ".", "00", "0.00"}, 6);
        SCOPED_TRACE(LMascara);
        for (const double LValor : {A.Numero(), static_cast<double>(A.Inteiro()) / 100})
            if (const auto LTexto = Tentar([&] { return FormatFloat(LMascara, LValor); })) {
                EXPECT_EQ(std::string::npos, LTexto->find_first_not_of("-0123456789,")) << *LTexto;
            }
        Tentar([&] { return FormatFloat(A.Texto({"0", "#", ".", "x", ",", "ç"}, 5), A.Inteiro()); });
        const auto LData = A.Data();
        EXPECT_EQ(DateTimeToStr(LData).substr(0, 10), FormatDateTime("dd/mm/yyyy", LData));
        FormatDateTime(A.Texto({"d", "m", "yyyy", "h", "N", "s", "-", "ç", "\xFF"}, 9), LData);
        const auto LTexto = A.Bytes(12);
        EXPECT_TRUE(FormatarTexto("0000", LTexto).ends_with(LTexto));
    });
}

TEST(TTesteTextosGerados, ConversoesDeTexto)
{
    const std::vector<std::string> LPecas{"0", "1", "9", "12", "2021", "/",  ".",  ",", ":",   "-",
                                          "+", " ", "e", "E",  "x",    "31", "\t", "ç", "\xE9"};
    constexpr std::int64_t NENHUM = -987654321;
    Gerar("Conversões", 100'000, [&](TGerador& A) {
        const auto LTexto = A.Ate(4) == 0 ? A.Bytes(12) : A.Texto(LPecas, 9);
        SCOPED_TRACE(LTexto);
        const auto LInteiro = Tentar([&] { return StrToInt64(LTexto); });
        EXPECT_EQ(LInteiro.value_or(NENHUM), StrToInt64Def(LTexto, NENHUM));
        const auto LNumero = Tentar([&] { return StrToFloat(LTexto); });
        EXPECT_EQ(LNumero.value_or(NENHUM), StrToFloatDef(LTexto, NENHUM));
        EXPECT_TRUE(!LNumero || std::isfinite(static_cast<double>(*LNumero)));
        const auto LData = Tentar([&] { return StrToDateTime(LTexto); });
        EXPECT_EQ(LData.value_or(TDateTime()), StrToDateTimeDef(LTexto, TDateTime()));
        if (LInteiro) {
            EXPECT_EQ(*LInteiro, StrToInt64(IntToStr(*LInteiro)));
        }
        if (LData) {
            EXPECT_EQ(*LData, StrToDateTime(DateTimeToStr(*LData)));
        }
        const double LQualquer = A.Numero();
        EXPECT_EQ(LQualquer, StrToDouble(FloatToStr(LQualquer))) << FloatToStr(LQualquer);
        // As far as a payroll goes; beyond that a text passes through a floating number that is coarser than Currency.
        const auto LMoeda = Currency::DeDecimosMilesimos(A.Inteiro() % 100'000'000'000'000'000);
        EXPECT_EQ(LMoeda, Currency(StrToFloat(CurrToStr(LMoeda)))) << CurrToStr(LMoeda);
        const auto LDia = A.Data();
        EXPECT_EQ(DateTimeToStr(LDia), DateTimeToStr(StrToDateTime(DateTimeToStr(LDia))));
    });
}

TEST(TTesteTextosGerados, LimpezaDeTextos)
{
    Gerar("Limpeza", 40'000, [](TGerador& A) {
        const auto LTexto = A.Ate(1) == 0
                                ? A.Bytes(40)
                                : A.Texto({"a", "Ç", " ", ".", "9", "€", "\xC3", "\xF0\x9F\x98\x80", "\x01"}, 12);
        const auto LUtf8 = ParaUtf8(LTexto);
        EXPECT_TRUE(Utf8Valido(LUtf8));
        EXPECT_EQ(LUtf8, ParaUtf8(LUtf8));
        // To clean twice changes nothing, and what is clean is UTF-8.
        const auto LLimpo = GOvraUtilsStrings.LimparTexto(LTexto);
        EXPECT_TRUE(Utf8Valido(LLimpo));
        EXPECT_EQ(LLimpo, GOvraUtilsStrings.LimparTexto(LLimpo));
        EXPECT_EQ(Trim(LLimpo), LLimpo);
        const auto LSemSinais = TTarvoUtilsStrings::RemoverCaracteresEspeciais(LTexto);
        EXPECT_EQ(LSemSinais, TTarvoUtilsStrings::RemoverCaracteresEspeciais(LSemSinais));
        EXPECT_TRUE(Utf8Valido(GOvraUtilsStrings.RemoverCaracteres(".ç/", LTexto)));
        EXPECT_EQ(std::string::npos, GOvraUtilsStrings.SomenteNumeros(LTexto).find_first_not_of("0123456789"));
        std::string LLista;
        for (const auto& LItem : TTarvoUtilsStrings::TransfereStringParaLista(LTexto + ", 1,,2 "))
            TTarvoUtilsStrings::AdicionarItemNaLista(LLista, LItem);
        EXPECT_TRUE(LLista.ends_with("1,2"));
        EXPECT_EQ("", FormatarListaParaClausulaIN("T", "C", A.Texto({",", " "}, 5), " AND "));
    });
}

TEST(TTesteTextosGerados, LeitorDeXml)
{
    const std::string LBase =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><eSocial xmlns=\"http://x/y\"><n:evt xmlns:n=\"z\" Id=\"ID1\">"
        "<ide><!-- c --><nr>12</nr><nr>13</nr></ide><nm><![CDATA[A & B]]></nm><v>&amp;&#233;</v></n:evt></eSocial>";
    ASSERT_EQ("12", TOvraSerializacaoXmlReader(LBase).BuscarValorTag("evt.ide.nr"));
    const std::vector<std::string> LPecas{
        "<",   ">",   "</",         "/>",   "<!--",         "-->", "<![CDATA[",
        "]]>", "&",   "&#x110000;", "&#0;", "<?",           "?>",  "<!DOCTYPE a [<!ENTITY b \"c\">]>",
        "n:",  "=\"", "\xFF",       "evt",  "\xEF\xBB\xBF", ".",   "nr"};
    Gerar("XML", 20'000, [&](TGerador& A) {
        const auto LXml = A.Ate(9) == 0 ? A.Texto(LPecas, 30) : A.Estragado(LBase, LPecas);
        SCOPED_TRACE(LXml);
        Tentar([&] {
            const TOvraSerializacaoXmlReader LLeitor(LXml);
            for (const std::string& LCaminho : {std::string("evt.ide.nr"), std::string("evt.v"), A.Texto(LPecas, 6)})
                LLeitor.BuscarValorTag(LCaminho);
            return 0;
        });
    });
    // As deep as an attacker likes: the text and the path.
    std::string LFundo;
    std::string LCaminho = "a";
    for (int i = 0; i < 200'000; ++i)
        LFundo += "<a>";
    for (int i = 0; i < 3'000; ++i)
        LCaminho += ".a";
    const auto LAberto = LFundo;
    for (int i = 0; i < 200'000; ++i)
        LFundo += "</a>";
    EXPECT_FALSE(Tentar([&] { return TOvraSerializacaoXmlReader(LAberto).BuscarValorTag("a"); }));
    EXPECT_EQ("", Tentar([&] { return TOvraSerializacaoXmlReader(LFundo).BuscarValorTag(LCaminho); }));
}

TEST(TTesteTextosGerados, ScriptsSql)
{
    const std::string LBase = "CREATE TABLE A (X INT); -- c;\n/* ; */ INSERT INTO A VALUES (';''');\nSET TERM ^ "
                              ";\nCREATE PROCEDURE P AS BEGIN X = 1; END^\nSET TERM ; ^\nSELECT \"a;b\" FROM A;";
    ASSERT_EQ(4U, SepararScriptSql(LBase).size());
    Gerar("Scripts", 20'000, [&](TGerador& A) {
        const auto LScript =
            A.Estragado(LBase, {";", "'", "\"", "--", "/*", "*/", "SET TERM", "SET TERM ^ ;", "^", "\n", " ", ""});
        SCOPED_TRACE(LScript);
        if (const auto LComandos = Tentar([&] { return SepararScriptSql(LScript); })) {
            for (const auto& LComando : *LComandos)
                EXPECT_NE(std::string::npos, LScript.find(LComando)) << "a statement that isn't in the script";
        }
    });
}

/// The text of a shape with its literals put back.
std::string Remontar(std::string_view ASql, const TFormaSql& AForma)
{
    std::string LTexto;
    std::size_t LLiteral = 0;
    std::size_t LPosicao = 0;
    for (const char LChar : AForma.Chave) {
        if (LLiteral < AForma.Literais.size() && AForma.Literais[LLiteral].Posicao == LPosicao) {
            EXPECT_EQ(AForma.Literais[LLiteral].EhTexto ? '\x02' : '\x01', LChar);
            LTexto.append(ASql, LPosicao, AForma.Literais[LLiteral].Tamanho);
            LPosicao += AForma.Literais[LLiteral++].Tamanho;
        } else {
            LTexto += LChar;
            ++LPosicao;
        }
    }
    EXPECT_EQ(AForma.Literais.size(), LLiteral);
    return LTexto;
}

void ProvarForma(const std::string& ASql)
{
    const auto LForma = LerFormaSql(ASql);
    EXPECT_EQ(ASql, Remontar(ASql, LForma));
    const auto LLevantar = LiteraisLevantaveis(ASql, LForma);
    ASSERT_EQ(LForma.Literais.size(), LLevantar.size());
    EXPECT_EQ(ASql, MontarSqlComParametros(ASql, LForma, std::vector<bool>(LLevantar.size(), false)));
    std::string LOutro;
    std::size_t LPosicao = 0;
    std::size_t LTirados = 0;
    for (std::size_t i = 0; i < LForma.Literais.size(); ++i) {
        const auto& LLiteral = LForma.Literais[i];
        EXPECT_EQ(LLiteral.EhTexto, LerLiteralSql(ASql, LLiteral).EhTexto);
        LOutro += ASql.substr(LPosicao, LLiteral.Posicao - LPosicao) + (LLiteral.EhTexto ? "'outro, ''?'''" : "77");
        LPosicao = LLiteral.Posicao + LLiteral.Tamanho;
        if (LLevantar[i])
            LTirados += LLiteral.Tamanho - 1;
    }
    LOutro += ASql.substr(LPosicao);
    EXPECT_EQ(ASql.size() - LTirados, MontarSqlComParametros(ASql, LForma, LLevantar).size());
    // Other values make no other shape, nor another judgement.
    const auto LOutraForma = LerFormaSql(LOutro);
    EXPECT_EQ(LForma.Chave, LOutraForma.Chave);
    EXPECT_EQ(LLevantar, LiteraisLevantaveis(LOutro, LOutraForma));
}

class TTesteFormasGeradas : public TTesteComExemplo {};

TEST_F(TTesteFormasGeradas, OsComandosDasCargasEstragados)
{
    std::vector<std::string> LComandos;
    Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) { LComandos.emplace_back(AExecucao.Sql); });
    for (const auto& LEvento : EventosDoCatalogo())
        for (const auto& LCaso : CasosDoEvento(LEvento, false))
            CarregarCaso(LCaso);
    ASSERT_FALSE(LComandos.empty());
    for (const auto& LComando : LComandos) {
        SCOPED_TRACE(LComando);
        ProvarForma(LComando);
    }
    const std::vector<std::string> LPecas{"(",
                                          ")",
                                          "'",
                                          "''",
                                          "\"",
                                          "--",
                                          "/*",
                                          "*/",
                                          "\n",
                                          "?",
                                          "\x01",
                                          "\x02",
                                          "1",
                                          "1.5",
                                          "1e3",
                                          "1E+",
                                          "12345678901234567890",
                                          "'a'",
                                          "x'41'",
                                          "_UTF8'a'",
                                          "q'{a}'",
                                          " AND ",
                                          " CASE ",
                                          " END ",
                                          " IN ",
                                          " BETWEEN ",
                                          "=",
                                          "<>",
                                          ",",
                                          "FROM",
                                          "SELECT",
                                          "ç",
                                          "\xFF",
                                          ";"};
    Gerar("Formas", 30'000, [&](TGerador& A) {
        const auto LSql =
            A.Ate(9) == 0 ? A.Texto(LPecas, 40) : A.Estragado(LComandos[A.Ate(LComandos.size() - 1)], LPecas);
        SCOPED_TRACE(LSql);
        ProvarForma(LSql);
    });
    for (const char* LPeca : {"(", ")", "'", "CASE ", "1,", "/*", "IN(1", "SELECT(", "A="}) {
        SCOPED_TRACE(LPeca);
        std::string LLongo = "SELECT 1 FROM A WHERE B IN (";
        for (int i = 0; i < 100'000; ++i)
            LLongo += LPeca;
        const auto LInicio = TTempo::now();
        const auto LForma = LerFormaSql(LLongo);
        EXPECT_EQ(LForma.Literais.size(), LiteraisLevantaveis(LLongo, LForma).size());
        EXPECT_LT(TTempo::now() - LInicio, std::chrono::seconds(5)) << "the time grows faster than the text";
    }
}

} // namespace
} // namespace tarvo::testes
