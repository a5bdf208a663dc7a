#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/pointer.h>
#include <rapidjson/schema.h>
#include <rapidjson/stringbuffer.h>

#include <filesystem>
#include <functional>
#include <set>

#include "apoio/UnBancoDeTeste.h"
#include "apoio/UnCasosDosGoldens.h"
#include "apoio/UnPrograma.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "catalogo/UnTarvoESocialCamposReferencia.h"
#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::testes {
namespace {

namespace fs = std::filesystem;
using rapidjson::Document;
using rapidjson::Pointer;

// ------------------------------------------------------------------------------------------------------- pages

/// The pages are what the program prints, with no database to be reached, and there is none besides.
TEST(TestePaginas, SaoOQueOProgramaEscreve)
{
    const std::string LPasta = PASTA_DAS_PAGINAS;
    std::set<std::string> LArquivos{"README.md"};
    const auto LIndice = Rodar({"eventos", "--markdown"});
    ASSERT_EQ(0, LIndice.Codigo) << LIndice.Erros;
    ConferirArquivo(LPasta + "/README.md", LIndice.Padrao);
    for (const auto& LEvento : CatalogoDeEventos()) {
        const auto LPagina = Rodar({"eventos", LEvento.Codigo, "--markdown"});
        ASSERT_EQ(0, LPagina.Codigo) << LPagina.Erros;
        const auto LNome = std::string(LEvento.Codigo) + ".md";
        ConferirArquivo(LPasta + "/" + LNome, LPagina.Padrao);
        LArquivos.insert(LNome);
    }
    for (const auto& LItem : fs::directory_iterator(LPasta))
        EXPECT_TRUE(LArquivos.contains(LItem.path().filename())) << "Página sem evento: " << LItem.path();
}

/// Lines of a text with their blanks squeezed, so that a test doesn't fix the widths of the columns.
std::string Comprimido(const std::string& ATexto)
{
    std::string LTexto;
    for (const char LChar : ATexto)
        if (LChar != ' ' || !LTexto.ends_with(' '))
            LTexto += LChar;
    return LTexto;
}

TEST(TesteReferencia, ArgumentosPrimeiroDepoisAArvore)
{
    const auto LSaida = Rodar({"eventos", "s-1005"});
    ASSERT_EQ(0, LSaida.Codigo) << LSaida.Erros;
    const auto LTexto = Comprimido(LSaida.Padrao);
    std::size_t LAnterior = 0;
    for (const char* LTrecho : {"S-1005 Estabelecimentos", "--AIDEstab: código interno", "CAMPO TIPO COLUNA REGRA",
                                "IndSubstPatrObra texto INFORMACAO1 padrão \"0\"\n"}) {
        const auto LLugar = LTexto.find(LTrecho, LAnterior);
        ASSERT_NE(std::string::npos, LLugar) << LTrecho << "\n" << LSaida.Padrao;
        LAnterior = LLugar;
    }
}

// ---------------------------------------------------------------------------- a tree with every kind of property

enum class TCor { Azul, Verde };

class TConversorDeTeste : public TTarvoESocialCamposConversorAbstrato {
public:
    static constexpr const char* NOME = "TConversorDeTeste";
    static constexpr const char* REGRA = "sai do avesso";
};

class TQuadroDeTeste : public TTarvoESocialCamposQuadro<TQuadroDeTeste> {
public:
    TQuadroDeTeste() : TTarvoESocialCamposQuadro("{Q}") {}
    std::string tag;
    static TPropriedades Tags() { return {{"tag", &Eu::tag}}; }
};

/// Holds itself in a list, as a tree that a schema must be able to tell without an end.
class TRamo : public TTarvoESocialCamposGrupoBase {
public:
    explicit TRamo(int& AConstruidos) : TTarvoESocialCamposGrupoBase("{R}") { ++AConstruidos; }
    Currency valor;
    TListaDeGrupos<TRamo> ramos;
    static const TPropriedades& Tabela()
    {
        static const TPropriedades tabela{{"valor", &TRamo::valor}, {"ramos", &TRamo::ramos}};
        return tabela;
    }

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

class TEventoDeTeste : public TTarvoESocialCamposGrupoBase {
public:
    /// No test may need one.
    TEventoDeTeste() : TTarvoESocialCamposGrupoBase("{E}") { throw Exception("construído"); }
    std::int8_t curto = 0;
    double peso = 0;
    TDateTime dia;
    TCor cor{};
    bool sim = false;
    std::string texto;
    std::vector<std::string> textos;
    std::vector<std::int64_t> ids;
    std::unique_ptr<TRamo> ramo;
    TQuadroDeTeste quadro;
    std::int32_t Dobro() const { return 2 * curto; }

    static const TPropriedades& Tabela()
    {
        using Eu = TEventoDeTeste;
        static const TPropriedades tabela{
            {"curto", &Eu::curto, TFieldRelacionado("A|B")},
            {"peso", &Eu::peso, TFieldRelacionado("PESO", "-1")},
            {"dia", &Eu::dia},
            {"cor", &Eu::cor},
            {"sim", &Eu::sim},
            {"texto", &Eu::texto, TFieldRelacionado("TEXTO", "x", ClasseConversor<TConversorDeTeste>())},
            {"textos", &Eu::textos},
            {"ids", &Eu::ids},
            {"ramo", &Eu::ramo},
            {"quadro", &Eu::quadro},
            {"dobro", &Eu::Dobro},
        };
        return tabela;
    }

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

const TEventoDoCatalogo& EventoDeTeste()
{
    static const TEventoDoCatalogo LEvento{
        "S-0000", "Teste", {}, [](const TArgumentosDeEvento&) {
            return TEventoConstruidoDe<TEventoDeTeste>{nullptr, std::make_unique<TEventoDeTeste>()};
        }};
    return LEvento;
}

TEST(TesteReferencia, CadaTipoESuaRegraNaArvore)
{
    EXPECT_EQ("CAMPO TIPO COLUNA REGRA\n"
              "curto inteiro de 8 bits A|B\n"
              "peso número PESO padrão \"-1\", sem efeito neste tipo\n"
              "dia data por código\n"
              "cor ordinal de TCor por código\n"
              "sim lógico por código\n"
              "texto texto TEXTO padrão \"x\"; sai do avesso\n"
              "textos lista de textos por código\n"
              "ids lista de inteiros por código\n"
              "ramo grupo pode ser nulo; preenchido todo por código, sem coluna\n"
              " valor moeda por código\n"
              " ramos lista de grupos o mesmo que o grupo acima desta classe\n"
              "quadro grupo só declara campos, não lê o banco\n"
              " tag texto do grupo acima ou de quem chama\n"
              "dobro inteiro de 32 bits por código, só leitura\n",
              Comprimido(ArvoreDoEvento(EventoDeTeste())));
}

TEST(TesteReferencia, PaginaTemUmaSecaoPorGrupoEEscapaABarra)
{
    const auto LPagina = PaginaDoEvento(EventoDeTeste());
    EXPECT_NE(std::string::npos, LPagina.find("| `curto` | inteiro de 8 bits | `A\\|B` | |\n")) << LPagina;
    EXPECT_NE(std::string::npos, LPagina.find("\n## `ramo`\n")) << LPagina;
    EXPECT_EQ(std::string::npos, LPagina.find("\n## `ramo.ramos[]`\n")) << LPagina;
    EXPECT_NE(std::string::npos, LPagina.find("## Argumentos\n\nNenhum.\n")) << LPagina;
}

// ------------------------------------------------------------------------------------------------------ schemas

/// A schema ready to validate with.
class TEsquema {
public:
    explicit TEsquema(const TEventoDoCatalogo& AEvento)
    {
        Document LTexto;
        LTexto.Parse(EsquemaDoEvento(AEvento).c_str());
        EXPECT_FALSE(LTexto.HasParseError()) << AEvento.Codigo;
        FEsquema = std::make_unique<rapidjson::SchemaDocument>(LTexto);
    }

    /// Where a document breaks the schema; empty for one that holds to it.
    std::string Falha(const Document& ADocumento) const
    {
        rapidjson::SchemaValidator LValidador(*FEsquema);
        if (ADocumento.Accept(LValidador))
            return {};
        rapidjson::StringBuffer LLugar;
        LValidador.GetInvalidDocumentPointer().StringifyUriFragment(LLugar);
        return std::string(LLugar.GetString()) + " " + LValidador.GetInvalidSchemaKeyword();
    }

private:
    std::unique_ptr<rapidjson::SchemaDocument> FEsquema;
};

Document LerJson(const std::string& ATexto)
{
    Document LDocumento;
    LDocumento.Parse(ATexto.c_str());
    EXPECT_FALSE(LDocumento.HasParseError()) << ATexto;
    return LDocumento;
}

Document LerGolden(const TCasoDoGolden& ACaso) { return LerJson(JsonDoGolden(ACaso)); }

using TVisita = std::function<void(const Pointer&, const rapidjson::Value&)>;

void VisitarObjetos(const rapidjson::Value& AValor, const Pointer& ACaminho, const TVisita& AVisita)
{
    if (AValor.IsObject()) {
        AVisita(ACaminho, AValor);
        for (const auto& LMembro : AValor.GetObject())
            VisitarObjetos(LMembro.value,
                           ACaminho.Append(LMembro.name.GetString(), LMembro.name.GetStringLength(), nullptr), AVisita);
    } else if (AValor.IsArray()) {
        for (rapidjson::SizeType i = 0; i < AValor.Size(); ++i)
            VisitarObjetos(AValor[i], ACaminho.Append(i), AVisita);
    }
}

/// The place in a copy of the document that a test may spoil.
rapidjson::Value& Lugar(Document& ADocumento, const Pointer& ACaminho) { return *ACaminho.Get(ADocumento); }

/// Every golden holds to the schema of its event; and the schema reaches every object of it: wherever a tag is
/// missing, a tag is unknown or a value is of another kind, it is refused.
TEST(TesteEsquema, AceitaCadaGoldenERecusaOEstragado)
{
    std::map<std::string, TEsquema> LEsquemas;
    std::set<std::string> LExperimentados;
    for (const auto& LCaso : LerCasosDosGoldens()) {
        const auto& LEsquema = LEsquemas.try_emplace(LCaso.Evento, BuscarEventoDoCatalogo(LCaso.Evento)).first->second;
        const auto LGolden = LerGolden(LCaso);
        const auto LNome = LCaso.Evento + "/" + LCaso.Nome;
        ASSERT_EQ("", LEsquema.Falha(LGolden)) << LNome;

        VisitarObjetos(LGolden, Pointer(), [&](const Pointer& ACaminho, const rapidjson::Value& AObjeto) {
            std::string LForma = LCaso.Evento;
            for (std::size_t i = 0; i < ACaminho.GetTokenCount(); ++i)
                if (ACaminho.GetTokens()[i].index == rapidjson::kPointerInvalidIndex)
                    LForma += std::string("/") + ACaminho.GetTokens()[i].name;
            // One of the same shape tells no more than another.
            if (!LExperimentados.insert(LForma).second)
                return;
            const auto Recusa = [&](const char* AEstrago, const std::function<void(Document&, rapidjson::Value&)>& A) {
                Document LCopia;
                LCopia.CopyFrom(LGolden, LCopia.GetAllocator());
                A(LCopia, Lugar(LCopia, ACaminho));
                EXPECT_NE("", LEsquema.Falha(LCopia)) << AEstrago << " em " << LNome << " " << LForma;
            };
            Recusa("campo desconhecido", [](Document& ADocumento, rapidjson::Value& AValor) {
                AValor.AddMember("naoExiste", 1, ADocumento.GetAllocator());
            });
            for (const auto& LMembro : AObjeto.GetObject()) {
                const std::string LCampo = LMembro.name.GetString();
                Recusa("campo faltando",
                       [&](Document&, rapidjson::Value& AValor) { AValor.RemoveMember(LCampo.c_str()); });
                Recusa("valor de outro tipo", [&](Document&, rapidjson::Value& AValor) {
                    auto& LValor = AValor[LCampo.c_str()];
                    if (LValor.IsArray())
                        LValor.SetObject();
                    else
                        LValor.SetArray();
                });
            }
        });
    }
    // The events of which the sample company has nothing to show.
    for (const auto& LEvento : CatalogoDeEventos())
        EXPECT_NE("", TEsquema(LEvento).Falha(LerJson("{}"))) << LEvento.Codigo;
}

constexpr const char* DOCUMENTO =
    R"({"curto":-128,"peso":1.5,"dia":"2021-03-01T08:30:00","cor":1,"sim":true,"texto":"","textos":["a"],"ids":[1],)"
    R"("ramo":{"valor":1.25,"ramos":[{"valor":0,"ramos":[]}]},"quadro":{"tag":""},"dobro":2})";

TEST(TesteEsquema, ConheceOsLimitesDeCadaTipo)
{
    const TEsquema LEsquema(EventoDeTeste());
    EXPECT_EQ("", LEsquema.Falha(LerJson(DOCUMENTO)));
    struct TCaso {
        const char* Lugar;
        const char* Valor;
        bool Vale;
    };
    for (const auto& LCaso : std::initializer_list<TCaso>{
             {"/curto", "-129", false},
             {"/curto", "1.5", false},
             {"/curto", "\"1\"", false},
             {"/peso", "\"1,5\"", false},
             {"/dia", "null", true},
             {"/dia", "\"2021-03-01\"", true},
             {"/dia", "\"01/03/2021\"", false},
             {"/dia", "\"2021-03-01T08:30\"", false},
             {"/cor", "-1", false},
             {"/sim", "0", false},
             {"/texto", "null", false},
             {"/textos", "[1]", false},
             {"/ids", "[\"1\"]", false},
             {"/ramo", "null", true},
             {"/ramo/ramos/0/valor", "\"0\"", false},
             {"/ramo/ramos/0", "null", false},
             {"/quadro", "null", false},
             {"/dobro", "2147483648", false},
         }) {
        auto LDocumento = LerJson(DOCUMENTO);
        const auto LValor = LerJson(LCaso.Valor);
        Pointer(LCaso.Lugar).Set(LDocumento, static_cast<const rapidjson::Value&>(LValor));
        EXPECT_EQ(LCaso.Vale, LEsquema.Falha(LDocumento).empty()) << LCaso.Lugar << " = " << LCaso.Valor;
    }
}

TEST(TesteEsquema, ProgramaEscreveOEsquema)
{
    const auto LSaida = Rodar({"eventos", "S-1200", "--esquema"});
    ASSERT_EQ(0, LSaida.Codigo) << LSaida.Erros;
    EXPECT_EQ(EsquemaDoEvento(BuscarEventoDoCatalogo("S-1200")) + "\n", LSaida.Padrao);
}

} // namespace
} // namespace tarvo::testes
