#include "ferramenta/UnLinhaDeComando.h"

// Nobody else includes it: it takes seconds to compile.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <deque>
#include <iostream>
#include <memory>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "ferramenta/UnErros.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"

namespace tarvo::ferramenta {

namespace {

/// A command as the reader of the line knows it.
struct TComandoLido {
    const TComando* Comando;
    CLI::App* App;
};
using TComandosLidos = std::vector<TComandoLido>;

/// The help in the user's language, with the usage line that each command gives of itself.
class TFormatoDaAjuda : public CLI::Formatter {
public:
    TFormatoDaAjuda(const std::string& AUso, const TComandosLidos& AComandos) : FUso(AUso), FComandos(AComandos)
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
        for (const auto& LLido : FComandos)
            if (LLido.App == AApp || LLido.App == AApp->get_parent())
                return "Uso: " + LLido.Comando->Uso + "\n";
        return "Uso: " + FUso + "\n";
    }

private:
    const std::string& FUso;
    const TComandosLidos& FComandos;
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

/// What is wrong with an option's text; empty when nothing is.
std::string Conferir(TTextoAceito AAceita, const std::string& AValor)
{
    if (AAceita == TTextoAceito::NaoVazio && AValor.empty())
        return "vazio";
    return AValor.starts_with("--") ? "opção" : "";
}

class TLeitor {
public:
    explicit TLeitor(const TPrograma& APrograma);
    int Executar(int AQuantidade, const char* const* AArgumentos);

private:
    void Adicionar(const TComando& AComando);
    void AdicionarOpcao(CLI::App& AApp, const TOpcao& AOpcao);
    CLI::Option* AdicionarValor(CLI::App& AApp, const TOpcao& AOpcao);
    void AdicionarEvento(CLI::App& AComando, const TComando::TEvento& AEvento, TEventoDaLinha& AInformado);
    int ExecutarComando();

    const TPrograma& FPrograma;
    CLI::App FApp;
    TComandosLidos FComandos;
    /// Texts of which only those that were given are handed on.
    std::deque<std::string> FTextos;
    /// They hand them on.
    std::vector<std::function<void()>> FDepoisDeLer;
};

TLeitor::TLeitor(const TPrograma& APrograma) : FPrograma(APrograma), FApp(APrograma.Descricao, APrograma.Nome)
{
    FApp.formatter(std::make_shared<TFormatoDaAjuda>(FPrograma.Uso, FComandos));
    FApp.set_help_flag("-h,--ajuda,--help", "mostra esta ajuda")->ignore_case();
    FApp.set_version_flag("--versao,--version", FPrograma.Versao, "mostra a versão")->ignore_case();
    // What nobody knows is gathered, and told in Portuguese after the line was read.
    FApp.allow_extras();
    for (const auto& LComando : FPrograma.Comandos)
        Adicionar(LComando);
    // After the commands, which would inherit it.
    FApp.footer(FPrograma.Exemplos);
}

void TLeitor::Adicionar(const TComando& AComando)
{
    auto& LApp = *FApp.add_subcommand(AComando.Nome, AComando.Descricao);
    LApp.allow_extras();
    LApp.group("Comandos");
    LApp.get_help_ptr()->ignore_case();
    FComandos.push_back({&AComando, &LApp});
    for (const auto& LOpcao : AComando.Opcoes)
        AdicionarOpcao(LApp, LOpcao);
    for (const auto& LEvento : AComando.Eventos)
        AdicionarEvento(LApp, LEvento, *AComando.EventoInformado);
}

CLI::Option* TLeitor::AdicionarValor(CLI::App& AApp, const TOpcao& AOpcao)
{
    if (const auto* LTexto = std::get_if<std::string*>(&AOpcao.Valor))
        return AApp.add_option(AOpcao.Nome, **LTexto, AOpcao.Descricao);
    if (const auto* LLista = std::get_if<std::vector<std::string>*>(&AOpcao.Valor))
        return AApp.add_option(AOpcao.Nome, **LLista, AOpcao.Descricao)->allow_extra_args(false);
    auto& LTexto = FTextos.emplace_back();
    auto* LOpcao = AApp.add_option(AOpcao.Nome, LTexto, AOpcao.Descricao);
    FDepoisDeLer.emplace_back([LOpcao, &LTexto, LDestino = std::get<std::optional<std::string>*>(AOpcao.Valor)] {
        if (LOpcao->count() > 0)
            *LDestino = LTexto;
    });
    return LOpcao;
}

void TLeitor::AdicionarOpcao(CLI::App& AApp, const TOpcao& AOpcao)
{
    if (const auto* LChave = std::get_if<bool*>(&AOpcao.Valor)) {
        AApp.add_flag(AOpcao.Nome, **LChave, AOpcao.Descricao)->ignore_case()->disable_flag_override();
        return;
    }
    auto* LOpcao = AdicionarValor(AApp, AOpcao);
    LOpcao->type_name(AOpcao.Tipo);
    if (AOpcao.Nome.starts_with("-"))
        LOpcao->ignore_case();
    if (AOpcao.Aceita != TTextoAceito::Qualquer)
        LOpcao->check([LAceita = AOpcao.Aceita](const std::string& AValor) { return Conferir(LAceita, AValor); });
}

void TLeitor::AdicionarEvento(CLI::App& AComando, const TComando::TEvento& AEvento, TEventoDaLinha& AInformado)
{
    auto& LApp = *AComando.add_subcommand(AEvento.Evento->Codigo, AEvento.Evento->Titulo);
    LApp.ignore_case()->fallthrough()->allow_extras()->group("Eventos");
    LApp.get_help_ptr()->ignore_case();
    LApp.footer("Mais as opções de '" + FPrograma.Nome + " " + AComando.get_name() + " --ajuda'.");
    FDepoisDeLer.emplace_back([&LApp, &AInformado] {
        if (LApp.parsed())
            AInformado.CodigoInformado = LApp.get_name();
    });
    for (const auto& LArgumento : *AEvento.Argumentos) {
        std::string LNomes = std::string("--") + LArgumento.Nome;
        if (LArgumento.OutroNome != nullptr)
            LNomes += std::string(",--") + LArgumento.OutroNome;
        auto& LTexto = FTextos.emplace_back();
        const auto* LOpcao = LApp.add_option(LNomes, LTexto, LArgumento.Descricao)
                                 ->ignore_case()
                                 ->type_name(ExemploDoTipo(LArgumento.Tipo));
        FDepoisDeLer.emplace_back([LOpcao, LNome = LArgumento.Nome, &LTexto, &AInformado] {
            if (LOpcao->count() > 0)
                AInformado.Argumentos.emplace(LNome, LTexto);
        });
    }
}

int TLeitor::ExecutarComando()
{
    const TComandoLido* LEscolhido = nullptr;
    std::vector<std::string> LDados;
    for (const auto& LLido : FComandos) {
        LDados.insert(LDados.end(), LLido.App->count(), LLido.Comando->Nome);
        if (LLido.App->parsed())
            LEscolhido = &LLido;
    }
    const std::string& LUso = LEscolhido != nullptr && LDados.size() == 1 ? LEscolhido->Comando->Uso : FPrograma.Uso;
    if (LDados.size() > 1)
        return UsoErrado("Informe um só comando: " + LDados[0] + " ou " + LDados[1], LUso);
    if (LEscolhido != nullptr)
        // Before what the second event didn't know of the first one's arguments.
        if (const auto LEventos = LEscolhido->App->get_subcommands(); LEventos.size() > 1)
            return UsoErrado("Informe um só evento: " + LEventos[0]->get_name() + " ou " + LEventos[1]->get_name(),
                             LUso);
    if (const auto LSobras = FApp.remaining(true); !LSobras.empty()) {
        const bool LOpcao = LSobras.front().starts_with("-");
        const char* LQue = LEscolhido == nullptr ? "Comando desconhecido"
                           : LOpcao              ? "Argumento desconhecido"
                                                 : "Evento ou valor desconhecido";
        return UsoErrado(std::string(LQue) + ": '" + LSobras.front() + "'", LUso);
    }
    if (LEscolhido == nullptr)
        return UsoErrado("Falta informar o comando", LUso);
    for (const auto& LEntregar : FDepoisDeLer)
        LEntregar();
    try {
        return LEscolhido->Comando->Executar();
    } catch (const EUsoErrado& LErro) {
        return UsoErrado(LErro.what(), LUso);
    } catch (const EArgumentoInvalido& LErro) {
        return UsoErrado(LErro.what(), LUso);
    } catch (const ECaminhoInvalido& LErro) {
        return UsoErrado(LErro.what(), LUso);
    }
}

int TLeitor::Executar(int AQuantidade, const char* const* AArgumentos)
{
    try {
        FApp.parse(AQuantidade, AArgumentos);
        return ExecutarComando();
    } catch (const CLI::Success& LPedido) {
        return FApp.exit(LPedido);
    } catch (const CLI::ParseError& LErro) {
        std::string LUso = FPrograma.Uso;
        for (const auto& LComando : FPrograma.Comandos)
            if (AQuantidade > 1 && LComando.Nome == AArgumentos[1])
                LUso = LComando.Uso;
        return UsoErrado(Traduzir(LErro), LUso);
    } catch (const std::exception& LErro) {
        std::cerr << LErro.what() << "\n";
        return SAIDA_FALHA;
    }
}

} // namespace

void AdicionarEventos(
    TComando& AComando, TEventoDaLinha& AEvento, const std::function<bool(const TEventoDoCatalogo&)>& AAceita,
    const std::function<const std::vector<TArgumentoDeEvento>&(const TEventoDoCatalogo&)>& AArgumentos)
{
    AComando.EventoInformado = &AEvento;
    for (const auto& LEvento : CatalogoDeEventos())
        if (!AAceita || AAceita(LEvento))
            AComando.Eventos.push_back({&LEvento, AArgumentos ? &AArgumentos(LEvento) : &LEvento.Argumentos});
}

const std::string& TEventoDaLinha::Codigo() const
{
    if (CodigoInformado.empty())
        throw EUsoErrado("Falta informar o evento (S-1000, ...); veja 'esocial-campos eventos'");
    return CodigoInformado;
}

int ExecutarPrograma(const TPrograma& APrograma, int AQuantidade, const char* const* AArgumentos)
{
    return TLeitor(APrograma).Executar(AQuantidade, AArgumentos);
}

} // namespace tarvo::ferramenta
