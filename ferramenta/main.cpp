#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "ferramenta/UnComandos.h"
#include "ferramenta/UnErros.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposVersao.h"
#include "imports/UnOvraUtilsDbFirebird.h"

namespace {

using namespace tarvo;
using namespace tarvo::ferramenta;

const char* const USO_GERAL = "esocial-campos COMANDO [OPÇÕES]; veja 'esocial-campos --ajuda'";

const char* const EXEMPLOS =
    "Exemplos:\n"
    "  esocial-campos criar-banco --banco folha.fdb --exemplo\n"
    "  esocial-campos eventos S-1000\n"
    "  esocial-campos carregar S-1000 --banco folha.fdb --AIDEmpresa 1 --AData 2021-03-01\n"
    "\n"
    "A ajuda de um comando: esocial-campos carregar --ajuda. O resultado vai para a saída padrão, as mensagens para a\n"
    "saída de erros. Saída 0: feito; 1: a carga ou o banco falhou; 2: uso errado.";

/// The help in the user's language, with the usage line that each command gives of itself.
class TFormatoDaAjuda : public CLI::Formatter {
public:
    explicit TFormatoDaAjuda(const TComandos& AComandos) : FComandos(AComandos)
    {
        column_width(34);
        label("Positionals", "Argumentos");
    }
    std::string make_group(std::string AGrupo, bool AEhPosicional,
                           std::vector<const CLI::Option*> AOpcoes) const override
    {
        return Formatter::make_group(AGrupo == "Options" ? "Opções" : AGrupo, AEhPosicional, std::move(AOpcoes));
    }
    std::string make_usage(const CLI::App* AApp, std::string) const override
    {
        for (const auto& LComando : FComandos)
            if (LComando.App == AApp || LComando.App == AApp->get_parent())
                return "Uso: " + LComando.Uso + "\n";
        return std::string("Uso: ") + USO_GERAL + "\n";
    }

private:
    const TComandos& FComandos;
};

/// The wrong use that the reader of the command line met, in the user's language.
std::string Traduzir(const CLI::ParseError& AErro)
{
    const std::string LTexto = AErro.what();
    const auto LOpcao = LTexto.substr(0, LTexto.find_first_of(": "));
    if (LTexto.find("flag override") != std::string::npos)
        return "A opção --" + LOpcao.substr(std::min(LOpcao.find_first_not_of('-'), LOpcao.size())) + " não leva valor";
    if (LOpcao.starts_with("-"))
        return "A opção " + LOpcao + " precisa de exatamente um valor";
    return "Linha de comando inválida (" + LTexto + ")";
}

int UsoErrado(const std::string& ATexto, const std::string& AUso)
{
    std::cerr << ATexto << "\nUso: " << AUso << "\n";
    return SAIDA_USO_ERRADO;
}

int Executar(CLI::App& AApp, const TComandos& AComandos)
{
    const TComando* LEscolhido = nullptr;
    std::vector<std::string> LDados;
    for (const auto& LComando : AComandos) {
        LDados.insert(LDados.end(), LComando.App->count(), LComando.App->get_name());
        if (LComando.App->parsed())
            LEscolhido = &LComando;
    }
    const std::string LUso = LEscolhido != nullptr && LDados.size() == 1 ? LEscolhido->Uso : USO_GERAL;
    if (LDados.size() > 1)
        return UsoErrado("Informe um só comando: " + LDados[0] + " ou " + LDados[1], LUso);
    if (LEscolhido != nullptr)
        // Before what the second event didn't know of the first one's arguments.
        if (const auto LEventos = LEscolhido->App->get_subcommands(); LEventos.size() > 1)
            return UsoErrado("Informe um só evento: " + LEventos[0]->get_name() + " ou " + LEventos[1]->get_name(),
                             LUso);
    if (const auto LSobras = AApp.remaining(true); !LSobras.empty()) {
        const bool LOpcao = LSobras.front().starts_with("-");
        const char* LQue = LEscolhido == nullptr ? "Comando desconhecido"
                           : LOpcao              ? "Argumento desconhecido"
                                                 : "Evento ou valor desconhecido";
        return UsoErrado(std::string(LQue) + ": '" + LSobras.front() + "'", LUso);
    }
    if (LEscolhido == nullptr)
        return UsoErrado("Falta informar o comando", LUso);
    try {
        return LEscolhido->Executar();
    } catch (const EUsoErrado& LErro) {
        return UsoErrado(LErro.what(), LUso);
    } catch (const EArgumentoInvalido& LErro) {
        return UsoErrado(LErro.what(), LUso);
    } catch (const ECaminhoInvalido& LErro) {
        return UsoErrado(LErro.what(), LUso);
    }
}

} // namespace

int main(int argc, char** argv)
{
    PrepararPastaDeTravas();
    CLI::App LApp{"Carrega os dados dos eventos do eSocial do banco da folha de pagamento.", "esocial-campos"};
    TComandos LComandos;
    LApp.formatter(std::make_shared<TFormatoDaAjuda>(LComandos));
    LApp.set_help_flag("-h,--ajuda,--help", "mostra esta ajuda")->ignore_case();
    LApp.set_version_flag("--versao,--version", VersaoDaBiblioteca(), "mostra a versão")->ignore_case();
    LApp.allow_extras();
    RegistrarCriarBanco(LApp, LComandos);
    RegistrarEventos(LApp, LComandos);
    RegistrarCarregar(LApp, LComandos);
    RegistrarReverter(LApp, LComandos);
    RegistrarLote(LApp, LComandos);
    RegistrarIncidencias(LApp, LComandos);
    // After the commands, which would inherit it.
    LApp.footer(EXEMPLOS);
    try {
        LApp.parse(argc, argv);
        return Executar(LApp, LComandos);
    } catch (const CLI::Success& LPedido) {
        return LApp.exit(LPedido);
    } catch (const CLI::ParseError& LErro) {
        std::string LUso = USO_GERAL;
        for (const auto& LComando : LComandos)
            if (argc > 1 && LComando.App->get_name() == argv[1])
                LUso = LComando.Uso;
        return UsoErrado(Traduzir(LErro), LUso);
    } catch (const std::exception& LErro) {
        std::cerr << LErro.what() << "\n";
        return SAIDA_FALHA;
    }
}
