#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tarvo {
struct TArgumentoDeEvento;
struct TEventoDoCatalogo;
} // namespace tarvo

namespace tarvo::ferramenta {

/// A command of the program: its place on the command line, and what it does.
struct TComando {
    CLI::App* App = nullptr;
    /// Shown when the command is used wrongly.
    std::string Uso;
    /// The exit code.
    std::function<int()> Executar;
};

/// The commands register themselves here, in the order of the help.
using TComandos = std::deque<TComando>;

/// Adds a command; its options are to be added to the result.
CLI::App& AdicionarComando(CLI::App& AApp, TComandos& AComandos, const std::string& ANome,
                           const std::string& ADescricao, const std::string& AUso);

/// Adds an option that is given or not, and takes no value.
void AdicionarChave(CLI::App& AComando, const std::string& ANome, bool& AValor, const std::string& ADescricao);

/// For an option of any text: what looks like another option stands there because the value was forgotten.
std::string ConferirTexto(const std::string& AValor);

/// For an option that means something else when it is left out: an empty value is refused too.
std::string ConferirValor(const std::string& AValor);

/// The event that a command was given, and its arguments by name.
struct TEventoDaLinha {
    /// By event code, the texts of its arguments; only the given ones count.
    std::map<std::string, std::map<std::string, std::string>> Valores;
    std::map<std::string, CLI::App*> Eventos;

    /// Code of the event that was given; EUsoErrado when none was.
    std::string Codigo() const;
    /// The arguments that were given.
    std::map<std::string, std::string> Argumentos() const;
};

/// Lets a command take an event and its arguments as options: the event's own, or those that AArgumentos gives.
void AdicionarEventos(
    CLI::App& AComando, TEventoDaLinha& AEvento, const std::function<bool(const TEventoDoCatalogo&)>& AAceita = {},
    const std::function<const std::vector<TArgumentoDeEvento>&(const TEventoDoCatalogo&)>& AArgumentos = {});

} // namespace tarvo::ferramenta
