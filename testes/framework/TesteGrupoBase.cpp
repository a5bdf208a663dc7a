#include "apoio/UnBancoDeTeste.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/UnOvraExcecoes.h"

namespace tarvo::testes {
namespace {

class TConversorDoTeste : public TTarvoESocialCamposConversorAbstrato {
public:
    static constexpr const char* NOME = "TConversorDoTeste";
    std::string BuscarValor(const std::string& AValor) override { return "<" + AValor + ">"; }
};

enum class TEnumeracao : std::uint8_t { Primeiro, Segundo };

class TFilho : public TTarvoESocialCamposGrupoBase {
public:
    explicit TFilho(std::string ATexto = {}) : TTarvoESocialCamposGrupoBase("{FILHO}"), Texto(std::move(ATexto)) {}
    std::string Texto;

protected:
    const TPropriedades& Propriedades() const override
    {
        static const TPropriedades tabela{{"Texto", &TFilho::Texto, TFieldRelacionado("TEXTO")}};
        return tabela;
    }
    std::string BuscarSQLDados() override { return "SELECT 'do filho' AS TEXTO FROM RDB$DATABASE"; }
};

/// A group with a property of every kind; each test gives it the statement that it needs.
class TGrupo : public TTarvoESocialCamposGrupoBase {
public:
    TGrupo() : TTarvoESocialCamposGrupoBase("{GRUPO}") {}

    std::string Sql;
    std::string Texto = "antes";
    std::string ComPadrao;
    std::string Convertido;
    std::int32_t I32 = 7;
    std::int64_t I64 = 7;
    std::int8_t I8 = 7;
    double Dobro = 7;
    double DobroComPadrao = 7;
    Currency Valor = 7;
    TDate Dia;
    bool Marca = false;
    TEnumeracao Opcao = TEnumeracao::Segundo;
    TFilho Filho;
    std::unique_ptr<TFilho> Talvez;
    TListaDeGrupos<TFilho> Lista;
    std::vector<std::int64_t> Ids;
    std::string Calculado() const { return Texto + "!"; }

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        Filho.CarregarDados(AListaCamposModificados);
    }
    using TTarvoESocialCamposGrupoBase::CdsDados;

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TGrupo;
        static const TPropriedades tabela{
            {"Texto", &Eu::Texto, TFieldRelacionado("TEXTO")},
            {"ComPadrao", &Eu::ComPadrao, TFieldRelacionado("PADRAO", "0")},
            {"Convertido", &Eu::Convertido, TFieldRelacionado("CONVERTIDO", "", ClasseConversor<TConversorDoTeste>())},
            {"I32", &Eu::I32, TFieldRelacionado("I32")},
            {"I64", &Eu::I64, TFieldRelacionado("I64")},
            {"I8", &Eu::I8, TFieldRelacionado("I8")},
            {"Dobro", &Eu::Dobro, TFieldRelacionado("DOBRO")},
            {"DobroComPadrao", &Eu::DobroComPadrao, TFieldRelacionado("DOBROCOMPADRAO", "-1")},
            {"Valor", &Eu::Valor, TFieldRelacionado("VALOR")},
            {"Dia", &Eu::Dia, TFieldRelacionado("DIA")},
            {"Marca", &Eu::Marca},
            {"Opcao", &Eu::Opcao},
            {"Filho", &Eu::Filho},
            {"Talvez", &Eu::Talvez},
            {"Lista", &Eu::Lista},
            {"Ids", &Eu::Ids},
            {"Calculado", &Eu::Calculado},
        };
        return tabela;
    }
    std::string BuscarSQLDados() override { return Sql; }
};

class TGrupoSemBase : public TTarvoESocialCamposGrupoBase {
public:
    TGrupoSemBase() : TTarvoESocialCamposGrupoBase(TSemConstrucaoDaBase{}) {}

protected:
    std::string BuscarSQLDados() override { return "SELECT 1 AS X FROM RDB$DATABASE"; }
};

class TTesteGrupoBase : public TTesteComBanco {
protected:
    TGrupo Grupo;

    void Carregar(const std::string& AColunas)
    {
        Grupo.Sql = "SELECT " + AColunas + " FROM RDB$DATABASE";
        Grupo.CarregarDados();
    }
};

TEST_F(TTesteGrupoBase, ConverteCadaTipoPeloTextoDaColuna)
{
    Carregar("CAST('  a b  ' AS CHAR(12)) AS TEXTO, CAST(-12.50 AS NUMERIC(15,4)) AS DOBRO, 12.3456 AS VALOR, "
             "'não é número' AS I32, CAST(9007199254740993 AS BIGINT) AS I64, -128 AS I8, CAST('28.02.2021' AS DATE) "
             "AS DIA");
    EXPECT_EQ("a b", Grupo.Texto);
    EXPECT_EQ(-12.5, Grupo.Dobro);
    EXPECT_EQ(R("12,3456"), Grupo.Valor);
    EXPECT_EQ(0, Grupo.I32);
    EXPECT_EQ(9007199254740993, Grupo.I64);
    EXPECT_EQ(-128, Grupo.I8);
    EXPECT_EQ(D(2021, 2, 28), Grupo.Dia);

    // A number with a decimal comma is a number for a floating property and no integer for an integer one.
    Carregar("'10,5' AS DOBRO, '10.5' AS VALOR, '10,5' AS I32, '31/12/1999 23:59:59' AS DIA");
    EXPECT_EQ(10.5, Grupo.Dobro);
    EXPECT_EQ(Currency(), Grupo.Valor);
    EXPECT_EQ(0, Grupo.I32);
    EXPECT_EQ(JuntarDataHora(D(1999, 12, 31), EncodeTime(23, 59, 59)), Grupo.Dia);

    // Cutting it off would report another number.
    EXPECT_THROW(Carregar("3000000000 AS I32"), EConvertError);
    EXPECT_THROW(Carregar("128 AS I8"), EConvertError);
}

TEST_F(TTesteGrupoBase, ColunaAusenteOuNulaDeixaOValorOuPoeOPadraoDeTexto)
{
    Carregar("'x' AS TEXTO, '5' AS PADRAO, 3 AS DOBROCOMPADRAO");
    for (const char* LColunas : {"CAST(NULL AS VARCHAR(5)) AS TEXTO, CAST(NULL AS DATE) AS DIA", "1 AS OUTRA", ""}) {
        Grupo.ComPadrao = "5";
        Grupo.Sql = *LColunas == '\0' ? "" : "SELECT " + std::string(LColunas) + " FROM RDB$DATABASE";
        Grupo.CarregarDados();
        EXPECT_EQ("x", Grupo.Texto) << LColunas;
        EXPECT_EQ("0", Grupo.ComPadrao) << LColunas;
        EXPECT_EQ(3, Grupo.DobroComPadrao) << LColunas;
        EXPECT_TRUE(Grupo.Dia.Vazia()) << LColunas;
    }
    Grupo.Sql = "SELECT 'y' AS TEXTO FROM RDB$DATABASE WHERE 1 = 0";
    Grupo.CarregarDados();
    EXPECT_EQ("x", Grupo.Texto);
}

TEST_F(TTesteGrupoBase, DataInvalidaFalhaComOTextoEGuardaOQueJaFoiAtribuido)
{
    for (const char* LData : {"31/02/2021", "2021-03-01", "amanhã", ""}) {
        Grupo.Texto = "antes";
        try {
            Carregar("'depois' AS TEXTO, '" + std::string(LData) + "' AS DIA");
            ADD_FAILURE() << LData;
        } catch (const EConvertError& LErro) {
            EXPECT_NE(std::string(LErro.what()).find("'" + std::string(LData) + "'"), std::string::npos)
                << LErro.what();
        }
        EXPECT_EQ("depois", Grupo.Texto);
    }
}

TEST_F(TTesteGrupoBase, ConversorProprioPrecisaDeRegistro)
{
    // A null needs no converter; a value does, even before it is read.
    EXPECT_NO_THROW(Carregar("CAST(NULL AS VARCHAR(5)) AS CONVERTIDO"));
    try {
        Carregar("'a' AS CONVERTIDO");
        ADD_FAILURE();
    } catch (const Exception& LErro) {
        EXPECT_STREQ("Conversor não registrado: TConversorDoTeste", LErro.what());
    }
    Grupo.RegistrarConversor(ClasseConversor<TConversorDoTeste>());
    Carregar("CAST(' a ' AS CHAR(8)) AS CONVERTIDO");
    EXPECT_EQ("<a>", Grupo.Convertido);
    try {
        Grupo.RegistrarConversor(ClasseConversor<TConversorDoTeste>());
        ADD_FAILURE();
    } catch (const EListError& LErro) {
        EXPECT_STREQ("Chave duplicada: conversor TConversorDoTeste", LErro.what());
    }
    EXPECT_THROW(TTarvoESocialCamposConversorAbstrato().BuscarValor("a"), EAbstractError);
}

TEST_F(TTesteGrupoBase, ListaEChaveDecidemSoSobreOProprioGrupo)
{
    struct TCaso {
        TListaCamposModificados Lista;
        bool Ligado;
        bool LePai;
        bool LeFilho;
    };
    const TCaso LCasos[] = {
        {{}, true, true, true},
        {{"{GRUPO}"}, true, true, false},
        {{"{FILHO}"}, true, false, true},
        {{"{OUTRO}"}, true, false, false},
        {{"{filho}"}, true, false, false},
        {{}, false, false, true},
    };
    for (const auto& LCaso : LCasos) {
        TGrupo LGrupo;
        LGrupo.Sql = "SELECT 'do pai' AS TEXTO FROM RDB$DATABASE";
        LGrupo.SetCarregarDadosDoGrupo(LCaso.Ligado);
        LGrupo.CarregarDados(&LCaso.Lista);
        EXPECT_EQ(LCaso.LePai ? "do pai" : "antes", LGrupo.Texto);
        EXPECT_EQ(LCaso.LePai, LGrupo.CdsDados().Active());
        EXPECT_EQ(LCaso.LeFilho ? "do filho" : "", LGrupo.Filho.Texto);
    }
}

TEST_F(TTesteGrupoBase, ErroDoMotorChegaInalteradoEOGrupoSegue)
{
    try {
        Carregar("COLUNA_QUE_NAO_EXISTE");
        ADD_FAILURE();
    } catch (const EDatabaseError& LErro) {
        EXPECT_EQ("42S22", LErro.SqlState());
        EXPECT_NE(std::string(LErro.what()).find("COLUNA_QUE_NAO_EXISTE"), std::string::npos) << LErro.what();
    }
    EXPECT_FALSE(Grupo.CdsDados().Active());
    Carregar("'ok' AS TEXTO");
    EXPECT_EQ("ok", Grupo.Texto);
}

TEST_F(TTesteGrupoBase, GrupoSemAConstrucaoDaBaseNaoCarrega)
{
    TGrupoSemBase LGrupo;
    EXPECT_NO_THROW(LGrupo.CarregarDados());
    EXPECT_EQ("", LGrupo.GuidClasse());
    EXPECT_FALSE(LGrupo.CarregarDadosDoGrupo());
    LGrupo.SetCarregarDadosDoGrupo(true);
    EXPECT_THROW(LGrupo.CarregarDados(), EAccessViolation);
}

TEST_F(TTesteGrupoBase, JsonTemCadaTipoNaFormaCombinada)
{
    Grupo.Texto = "á\"\\/\n\x01";
    Grupo.Dobro = 0.1;
    Grupo.Valor = Currency::DeDecimosMilesimos(9223372036854775807);
    Grupo.Dia = JuntarDataHora(D(2021, 3, 1), EncodeTime(8, 30, 0));
    Grupo.Lista.push_back(std::make_unique<TFilho>("um"));
    Grupo.Lista.push_back(std::make_unique<TFilho>("dois"));
    Grupo.Ids = {3, 1};
    EXPECT_EQ(
        "{\"Texto\":\"á\\\"\\\\/\\n\\u0001\",\"ComPadrao\":\"\",\"Convertido\":\"\",\"I32\":7,\"I64\":7,\"I8\":7,"
        "\"Dobro\":0.1,\"DobroComPadrao\":7,\"Valor\":922337203685477.5807,\"Dia\":\"2021-03-01T08:30:00\","
        "\"Marca\":false,\"Opcao\":1,\"Filho\":{\"Texto\":\"\"},\"Talvez\":null,"
        "\"Lista\":[{\"Texto\":\"um\"},{\"Texto\":\"dois\"}],\"Ids\":[3,1],\"Calculado\":\"á\\\"\\\\/\\n\\u0001!\"}",
        Grupo.ToJson().AsJSON());
    EXPECT_NE(Grupo.ToJson().AsJSON(true).find("\"Valor\": 922337203685477.5807,\n"), std::string::npos);
    Grupo.Dia = TDate();
    EXPECT_NE(Grupo.ToJson().AsJSON().find("\"Dia\":null"), std::string::npos);
    Grupo.Texto = "\xE1";
    EXPECT_THROW(Grupo.ToJson(), EConvertError);
}

TEST_F(TTesteGrupoBase, CaminhosAchamGruposEDefinemPropriedades)
{
    Grupo.Lista.push_back(std::make_unique<TFilho>("um"));
    EXPECT_EQ(&Grupo, &BuscarGrupoPeloCaminho(Grupo, ""));
    EXPECT_EQ(&Grupo.Filho, &BuscarGrupoPeloCaminho(Grupo, "filho"));
    EXPECT_EQ(Grupo.Lista[0].get(), &BuscarGrupoPeloCaminho(Grupo, "Lista[0]"));
    for (const char* LCaminho : {"Nada", "Filho.Nada", "Filho.", ".", "Texto", "Talvez", "Lista", "Lista[1]",
                                 "Lista[-1]", "Lista[0", "Lista[x]", "Filho[0]"})
        EXPECT_THROW(BuscarGrupoPeloCaminho(Grupo, LCaminho), ECaminhoInvalido) << LCaminho;
    for (const char* LCaminho : {"Talvez", "Talvez.Texto", "Lista[1]"})
        EXPECT_THROW(BuscarGrupoPeloCaminho(Grupo, LCaminho), ECaminhoVazio) << LCaminho;

    DefinirPropriedadePeloCaminho(Grupo, "filho.texto", "a=b");
    DefinirPropriedadePeloCaminho(Grupo, "Valor", "1234,56");
    DefinirPropriedadePeloCaminho(Grupo, "Dia", "2021-03-31");
    DefinirPropriedadePeloCaminho(Grupo, "Opcao", "0");
    DefinirPropriedadePeloCaminho(Grupo, "Marca", "TRUE");
    EXPECT_EQ("a=b", Grupo.Filho.Texto);
    EXPECT_EQ(R("1234,56"), Grupo.Valor);
    EXPECT_EQ(D(2021, 3, 31), Grupo.Dia);
    EXPECT_EQ(TEnumeracao::Primeiro, Grupo.Opcao);
    EXPECT_TRUE(Grupo.Marca);
    DefinirPropriedadePeloCaminho(Grupo, "Dia", "");
    EXPECT_TRUE(Grupo.Dia.Vazia());
    for (const char* LCaminho : {"Calculado", "Filho", "Lista", "Nada", ""})
        EXPECT_THROW(DefinirPropriedadePeloCaminho(Grupo, LCaminho, "1"), ECaminhoInvalido) << LCaminho;
    for (const auto& [LCaminho, LTexto] : {std::pair{"I8", "128"},
                                           {"I32", "x"},
                                           {"Dobro", "1.5"},
                                           {"Dia", "31/02/2021"},
                                           {"Marca", "sim"},
                                           {"Opcao", "256"},
                                           {"Opcao", "-1"},
                                           {"Texto", "\xFF"}})
        EXPECT_THROW(DefinirPropriedadePeloCaminho(Grupo, LCaminho, LTexto), EConvertError) << LCaminho;
}

TEST(TTesteListaSql, UmaListaParaOProcessoQueSoOClienteLimpa)
{
    auto& LLista = BuscarInstanciaListaSql();
    LLista.LimparLista();
    EXPECT_EQ(&LLista, &TListaSql::BuscarSingleton());
    LLista.Lista.push_back("a");
    LLista.Lista.push_back("a");
    EXPECT_EQ(2U, BuscarInstanciaListaSql().Lista.size());
    LLista.LimparLista();
    EXPECT_TRUE(LLista.Lista.empty());
}

} // namespace
} // namespace tarvo::testes
