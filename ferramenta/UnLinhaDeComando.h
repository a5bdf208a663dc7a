#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarvo {
struct TArgumentoDeEvento;
struct TEventoDoCatalogo;
} // namespace tarvo

namespace tarvo::ferramenta {

// What the commands say of themselves. Who reads the command line by it is the source's own affair.

enum class TTextoAceito {
    Qualquer,
    /// Not what looks like another option, which stands there because the value was forgotten.
    Texto,
    /// Nor an empty text: for an option that means something else when it is left out.
    NaoVazio
};

/// An option of a command. Names match without regard to case.
struct TOpcao {
    /// "--banco"; a name without hyphens is a value that stands by itself.
    std::string Nome;
    /// Where the value goes; it has to live as long as the command. A bool is an option without a value, a list one
    /// that may repeat, and an optional tells whether it was given.
    std::variant<std::string*, std::optional<std::string>*, std::vector<std::string>*, bool*> Valor;
    std::string Descricao;
    /// What the help shows for the value.
    std::string Tipo = {};
    TTextoAceito Aceita = TTextoAceito::Qualquer;
};

/// The event that a command was given, and its arguments by name.
struct TEventoDaLinha {
    /// Empty when none was given.
    std::string CodigoInformado;
    /// Only those that were given.
    std::map<std::string, std::string> Argumentos;

    /// Code of the event that was given; EUsoErrado when none was.
    const std::string& Codigo() const;
};

/// A command of the program: its place on the command line, and what it does.
struct TComando {
    std::string Nome;
    std::string Descricao;
    /// Shown when the command is used wrongly.
    std::string Uso;
    /// In the order of the help.
    std::vector<TOpcao> Opcoes = {};
    struct TEvento {
        const TEventoDoCatalogo* Evento;
        /// Its options.
        const std::vector<TArgumentoDeEvento>* Argumentos;
    };
    /// The events that the command takes, and where the one that it was given goes.
    std::vector<TEvento> Eventos = {};
    TEventoDaLinha* EventoInformado = nullptr;
    /// The exit code.
    std::function<int()> Executar = {};
};

/// Lets a command take an event and its arguments as options: the event's own, or those that AArgumentos gives.
void AdicionarEventos(
    TComando& AComando, TEventoDaLinha& AEvento, const std::function<bool(const TEventoDoCatalogo&)>& AAceita = {},
    const std::function<const std::vector<TArgumentoDeEvento>&(const TEventoDoCatalogo&)>& AArgumentos = {});

struct TPrograma {
    std::string Nome;
    std::string Descricao;
    std::string Versao;
    /// Shown when the program is used wrongly before any command is known.
    std::string Uso;
    /// The end of the help.
    std::string Exemplos;
    /// In the order of the help.
    std::vector<TComando> Comandos;
};

/// Reads the command line and executes its command. Answers with the exit code; every failure is told on standard
/// error, a wrong use with the usage line.
int ExecutarPrograma(const TPrograma& APrograma, int AQuantidade, const char* const* AArgumentos);

} // namespace tarvo::ferramenta
