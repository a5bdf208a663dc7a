#include "ferramenta/UnLinhaDeComando.h"

#include <CLI/CLI.hpp>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "ferramenta/UnErros.h"

namespace tarvo::ferramenta {

CLI::App& AdicionarComando(CLI::App& AApp, TComandos& AComandos, const std::string& ANome,
                           const std::string& ADescricao, const std::string& AUso)
{
    auto& LApp = *AApp.add_subcommand(ANome, ADescricao);
    // What nobody knows is gathered, and told in Portuguese after the line was read.
    LApp.allow_extras();
    LApp.group("Comandos");
    LApp.get_help_ptr()->ignore_case();
    AComandos.push_back({&LApp, AUso, {}});
    return LApp;
}

void AdicionarChave(CLI::App& AComando, const std::string& ANome, bool& AValor, const std::string& ADescricao)
{
    AComando.add_flag(ANome, AValor, ADescricao)->ignore_case()->disable_flag_override();
}

std::string ConferirTexto(const std::string& AValor) { return AValor.starts_with("--") ? "opção" : ""; }

std::string ConferirValor(const std::string& AValor) { return AValor.empty() ? "vazio" : ConferirTexto(AValor); }

void AdicionarEventos(
    CLI::App& AComando, TEventoDaLinha& AEvento, const std::function<bool(const TEventoDoCatalogo&)>& AAceita,
    const std::function<const std::vector<TArgumentoDeEvento>&(const TEventoDoCatalogo&)>& AArgumentos)
{
    for (const auto& LEvento : CatalogoDeEventos()) {
        if (AAceita && !AAceita(LEvento))
            continue;
        auto& LApp = *AComando.add_subcommand(LEvento.Codigo, LEvento.Titulo);
        LApp.ignore_case()->fallthrough()->allow_extras()->group("Eventos");
        LApp.get_help_ptr()->ignore_case();
        LApp.footer("Mais as opções de 'esocial-campos " + AComando.get_name() + " --ajuda'.");
        auto& LValores = AEvento.Valores[LEvento.Codigo];
        for (const auto& LArgumento : AArgumentos ? AArgumentos(LEvento) : LEvento.Argumentos) {
            std::string LNomes = std::string("--") + LArgumento.Nome;
            if (LArgumento.OutroNome != nullptr)
                LNomes += std::string(",--") + LArgumento.OutroNome;
            LApp.add_option(LNomes, LValores[LArgumento.Nome], LArgumento.Descricao)
                ->ignore_case()
                ->type_name(ExemploDoTipo(LArgumento.Tipo));
        }
        AEvento.Eventos[LEvento.Codigo] = &LApp;
    }
}

std::string TEventoDaLinha::Codigo() const
{
    for (const auto& [LNome, LApp] : Eventos)
        if (LApp->parsed())
            return LNome;
    throw EUsoErrado("Falta informar o evento (S-1000, ...); veja 'esocial-campos eventos'");
}

std::map<std::string, std::string> TEventoDaLinha::Argumentos() const
{
    const auto LCodigo = Codigo();
    std::map<std::string, std::string> LArgumentos;
    for (const auto& [LNome, LValor] : Valores.at(LCodigo))
        if (Eventos.at(LCodigo)->count("--" + LNome) > 0)
            LArgumentos.emplace(LNome, LValor);
    return LArgumentos;
}

} // namespace tarvo::ferramenta
