#include "ferramenta/UnContexto.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <filesystem>
#include <iostream>

#include "ferramenta/UnErros.h"
#include "ferramenta/UnLinhaDeComando.h"
#include "imports/UnOvraEsocialReinfControleAmbientes.h"
#include "imports/UnOvraUtilsDialogs.h"
#include "imports/banco/UnTarvoConexaoBrenco.h"

namespace tarvo::ferramenta {

namespace {

/// Every line of a trace begins so.
constexpr std::string_view INICIO_DO_RASTRO = "{\"sql\":";

namespace fs = std::filesystem;

bool MesmoArquivo(const fs::path& A, const fs::path& B)
{
    std::error_code LErro;
    if (fs::equivalent(A, B, LErro))
        return true;
    const auto LA = fs::weakly_canonical(fs::absolute(A, LErro), LErro);
    return !LErro && LA == fs::weakly_canonical(fs::absolute(B, LErro), LErro) && !LErro;
}

bool EhRastro(const fs::path& AArquivo)
{
    std::string LInicio(INICIO_DO_RASTRO.size(), '\0');
    std::ifstream LArquivo(AArquivo, std::ios::binary);
    LArquivo.read(LInicio.data(), static_cast<std::streamsize>(LInicio.size()));
    return LArquivo && LInicio == INICIO_DO_RASTRO;
}

/// The trace is written from the start of its file: EUsoErrado where that would wipe out anything but a former trace.
void ConferirArquivoDoRastro(const TOpcoesDoContexto& AOpcoes)
{
    const fs::path LArquivo(AOpcoes.Rastrear);
    for (const auto& [LOpcao, LBanco] : {std::pair{"--banco", &AOpcoes.Banco}, {"--brenco", &AOpcoes.Brenco}})
        if (!LBanco->empty() && MesmoArquivo(LArquivo, *LBanco))
            throw EUsoErrado("O rastro apagaria o banco de " + std::string(LOpcao) + ": '" + AOpcoes.Rastrear + "'");
    std::error_code LErro;
    if (fs::is_regular_file(LArquivo, LErro) && fs::file_size(LArquivo, LErro) > 0 && !EhRastro(LArquivo))
        throw EUsoErrado("O rastro apagaria o arquivo '" + AOpcoes.Rastrear +
                         "', que não é um rastro; informe outro nome");
}

} // namespace

void AdicionarOpcoesDeLigacao(TComando& AComando, TOpcoesDoContexto& AOpcoes)
{
    AComando.Opcoes.insert(
        AComando.Opcoes.end(),
        {{"--banco", &AOpcoes.Banco,
          "banco da folha: um arquivo (motor embutido), host[/porta]:caminho ou inet://... (servidor)", "LIGACAO",
          TTextoAceito::Texto},
         {"--usuario", &AOpcoes.Usuario, "usuário do banco; senão o de ISC_USER, senão SYSDBA", "NOME",
          TTextoAceito::Texto},
         // Whatever it begins with: it may be anybody's password.
         {"--senha", &AOpcoes.Senha, "senha do usuário; senão a de ISC_PASSWORD", "SENHA"}});
}

void AdicionarOpcoesDoContexto(TComando& AComando, TOpcoesDoContexto& AOpcoes)
{
    AdicionarOpcoesDeLigacao(AComando, AOpcoes);
    AComando.Opcoes.insert(
        AComando.Opcoes.end(),
        {{"--rastrear", &AOpcoes.Rastrear,
          "grava cada comando SQL em uma linha JSON neste arquivo; '-' é a saída de erros", "ARQUIVO",
          TTextoAceito::NaoVazio},
         {"--ambiente", &AOpcoes.Ambiente, "ambiente do eSocial: 1 produção (padrão), 2 produção restrita", "1|2"},
         {"--brenco", &AOpcoes.Brenco, "banco do sistema irmão, lido por S-1250", "LIGACAO", TTextoAceito::NaoVazio}});
}

TParametrosConexao ParametrosDaLigacao(const TOpcoesDoContexto& AOpcoes)
{
    if (AOpcoes.Banco.empty())
        throw EUsoErrado("Falta informar --banco");
    return ParametrosDaConexao(AOpcoes.Banco, AOpcoes.Usuario, AOpcoes.Senha);
}

TContexto::TContexto(const TOpcoesDoContexto& AOpcoes)
{
    const auto LParametros = ParametrosDaLigacao(AOpcoes);
    if (AOpcoes.Ambiente != "1" && AOpcoes.Ambiente != "2")
        throw EUsoErrado("--ambiente é 1 (produção) ou 2 (produção restrita), e não '" + AOpcoes.Ambiente + "'");
    if (AOpcoes.Rastrear == "-") {
        FRastro = &std::cerr;
    } else if (!AOpcoes.Rastrear.empty()) {
        ConferirArquivoDoRastro(AOpcoes);
        FArquivoDoRastro.open(AOpcoes.Rastrear, std::ios::trunc);
        if (!FArquivoDoRastro)
            throw EUsoErrado("Não foi possível criar o arquivo de rastro '" + AOpcoes.Rastrear + "'");
        FRastro = &FArquivoDoRastro;
    }
    FConexao = std::make_unique<TOvraConnection>(LParametros);
    if (!AOpcoes.Brenco.empty()) {
        auto LParametrosDoBrenco = LParametros;
        LParametrosDoBrenco.BancoDeDados = AOpcoes.Brenco;
        FBrenco = std::make_unique<TOvraConnection>(LParametrosDoBrenco);
        BuscarInstanciaTarvoConexaoBrenco().DefinirConexao(FBrenco.get());
        BuscarInstanciaTarvoConexaoBrencoUsuario().DefinirUsuarioTemPermissao(true);
    }
    BuscarInstanciaOvraEsocialReinfControleAmbientes().DefinirTpAmb(AOpcoes.Ambiente == "2" ? 2 : 1);
    DefinirOvraConnection(FConexao.get());
    GOvraUtilsDialogs.DefinirReacao([](const std::string& AMensagem) { std::cerr << AMensagem << "\n"; });
    if (FRastro != nullptr) {
        for (auto* LConexao : {FConexao.get(), FBrenco.get()})
            if (LConexao != nullptr)
                LConexao->DefinirObservador([this](const TExecucaoSql& AExecucao) { Rastrear(AExecucao); });
    }
}

TContexto::~TContexto()
{
    GOvraUtilsDialogs.DefinirReacao(nullptr);
    DefinirOvraConnection(nullptr);
    BuscarInstanciaTarvoConexaoBrenco().DefinirConexao(nullptr);
    BuscarInstanciaTarvoConexaoBrencoUsuario().DefinirUsuarioTemPermissao(false);
}

void TContexto::IniciarInstantaneo()
{
    for (auto* LConexao : {FConexao.get(), FBrenco.get()}) {
        if (LConexao == nullptr)
            continue;
        LConexao->Desfazer();
        LConexao->IniciarTransacao(TOvraConnection::TIsolamento::Instantaneo);
    }
}

void TContexto::Rastrear(const TExecucaoSql& AExecucao)
{
    rapidjson::StringBuffer LBuffer;
    rapidjson::Writer<rapidjson::StringBuffer> LEscritor(LBuffer);
    LEscritor.StartObject();
    LEscritor.Key("sql");
    LEscritor.String(AExecucao.Sql.data(), static_cast<rapidjson::SizeType>(AExecucao.Sql.size()));
    LEscritor.Key("linhas");
    LEscritor.Int64(AExecucao.Linhas);
    LEscritor.Key("us");
    LEscritor.Int64(AExecucao.Microssegundos);
    LEscritor.EndObject();
    *FRastro << LBuffer.GetString() << '\n';
}

void TContexto::ConferirRastro()
{
    if (FRastro != nullptr && !FRastro->flush())
        throw Exception("Não foi possível gravar o rastro");
}

} // namespace tarvo::ferramenta
