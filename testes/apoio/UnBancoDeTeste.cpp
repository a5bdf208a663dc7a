#include "apoio/UnBancoDeTeste.h"

#include <ibase.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "banco/UnBancoEmbutido.h"
#include "imports/banco/UnOvraScriptSql.h"
#include "imports/banco/UnTarvoConexaoBrenco.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::testes {

namespace {

namespace fs = std::filesystem;

std::string DoAmbiente(const char* ANome, const char* APadrao)
{
    const char* LValor = std::getenv(ANome);
    return LValor == nullptr ? APadrao : LValor;
}

/// The folder of this run; removed with the process.
class TPastaDaRodada {
public:
    TPastaDaRodada()
    {
        // A new one, whatever a run that was killed has left.
        auto LNome = (fs::temp_directory_path() / "tarvo-testes-XXXXXX").string();
        if (mkdtemp(LNome.data()) == nullptr)
            throw fs::filesystem_error("mkdtemp", LNome, std::error_code(errno, std::generic_category()));
        FPasta = LNome;
        // The server, which may run as another user, creates the files.
        fs::permissions(FPasta, fs::perms::all);
    }
    ~TPastaDaRodada()
    {
        std::error_code LErro;
        fs::remove_all(FPasta, LErro);
    }
    const fs::path& Pasta() const { return FPasta; }

private:
    fs::path FPasta;
};

const fs::path& PastaDaRodada()
{
    static const TPastaDaRodada LPasta;
    return LPasta.Pasta();
}

std::map<bool, std::unique_ptr<TOvraConnection>>& Conexoes()
{
    // The folder must outlive the connections that hold its files open.
    PastaDaRodada();
    static std::map<bool, std::unique_ptr<TOvraConnection>> LConexoes;
    return LConexoes;
}

} // namespace

TParametrosConexao ParametrosDoBanco(const std::string& ANomeDoArquivo)
{
    const std::string LServidor = DoAmbiente("TESTES_LIGACAO", "");
    return ParametrosDaConexao(LServidor + (PastaDaRodada() / ANomeDoArquivo).string());
}

TParametrosConexao CriarBancoDeTeste(const std::string& ANomeDoArquivo, bool AComExemplo,
                                     const std::function<std::string(std::string_view)>& ANoEsquema)
{
    const auto LParametros = ParametrosDoBanco(ANomeDoArquivo);
    TOvraConnection::CriarBanco(LParametros);
    TOvraConnection LConexao(LParametros);
    for (const auto& LScript : ScriptsDoEsquema())
        ExecutarScriptSql(LConexao, ANoEsquema ? ANoEsquema(LScript.Texto) : std::string(LScript.Texto));
    if (AComExemplo)
        for (const auto& LScript : ScriptsDoExemplo())
            ExecutarScriptSql(LConexao, LScript.Texto);
    return LParametros;
}

TValorSql::TValorSql(double AValor) : FTexto(FloatToStr(AValor))
{
    if (const auto LVirgula = FTexto.find(','); LVirgula != std::string::npos)
        FTexto[LVirgula] = '.';
}

TValorSql::TValorSql(TDateTime AData) : FTexto(FormatarDataDB(AData, true)) {}

TValorSql::TValorSql(const char* ATexto) : FTexto(QuotedStr(ATexto)) {}

void Inserir(const char* ATabela, TCamposSql ACampos)
{
    std::string LNomes;
    std::string LValores;
    for (const auto& [LNome, LValor] : ACampos) {
        LNomes += (LNomes.empty() ? "" : ", ") + std::string(LNome);
        LValores += (LValores.empty() ? "" : ", ") + LValor.Texto();
    }
    Executar("INSERT INTO " + std::string(ATabela) + " (" + LNomes + ") VALUES (" + LValores + ")");
}

void Executar(const std::string& ASql) { OvraConnection().Executar(ASql); }

std::string Consultar(const std::string& ASql)
{
    const auto LLinhas = OvraConnection().Consultar(ASql);
    return LLinhas.QuantidadeDeLinhas() == 0 ? std::string() : LLinhas.Texto(0, 0);
}

Currency R(const std::string& ATexto) { return Currency(StrToFloat(ATexto)); }

void TTesteComBanco::SetUp()
{
    auto& LConexao = Conexoes()[ComExemplo()];
    if (!LConexao)
        LConexao = std::make_unique<TOvraConnection>(
            CriarBancoDeTeste(ComExemplo() ? "exemplo.fdb" : "esquema.fdb", ComExemplo()));
    DefinirOvraConnection(LConexao.get());
    LConexao->IniciarTransacao();
}

void TTesteComBanco::TearDown()
{
    Conexao().DefinirObservador({});
    Conexao().Desfazer();
    DefinirOvraConnection(nullptr);
}

void FecharConexoes()
{
    Conexoes().clear();
    // The engine's own threads end here, and not while the process, or the search for leaks at its end, is under way.
    constexpr unsigned MILISSEGUNDOS = 10'000;
    fb_shutdown(MILISSEGUNDOS, fb_shutrsn_app_stopped);
}

TOvraConnection& TTesteComBanco::Conexao() { return *Conexoes()[ComExemplo()]; }

TBrencoLigado::TBrencoLigado(TOvraConnection& AConexao)
{
    BuscarInstanciaTarvoConexaoBrenco().DefinirConexao(&AConexao);
    BuscarInstanciaTarvoConexaoBrencoUsuario().DefinirUsuarioTemPermissao(true);
}

TBrencoLigado::~TBrencoLigado()
{
    BuscarInstanciaTarvoConexaoBrenco().DefinirConexao(nullptr);
    BuscarInstanciaTarvoConexaoBrencoUsuario().DefinirUsuarioTemPermissao(false);
}

void ConferirArquivo(const std::string& AArquivo, const std::string& ATexto)
{
    const fs::path LArquivo(AArquivo);
    if (!DoAmbiente("ATUALIZAR_GOLDENS", "").empty()) {
        fs::create_directories(LArquivo.parent_path());
        std::ofstream(LArquivo) << ATexto;
        return;
    }
    std::ifstream LEntrada(LArquivo);
    ASSERT_TRUE(LEntrada) << "Falta o arquivo " << LArquivo;
    std::stringstream LEsperado;
    LEsperado << LEntrada.rdbuf();
    EXPECT_EQ(LEsperado.str(), ATexto) << LArquivo;
}

void ConferirGolden(const std::string& ANome, const std::string& AJson)
{
    ConferirArquivo(std::string(PASTA_DOS_GOLDENS) + "/" + ANome + ".json", AJson + '\n');
}

} // namespace tarvo::testes
