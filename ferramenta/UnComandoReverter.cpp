#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

#include "ferramenta/UnCarga.h"
#include "ferramenta/UnComandos.h"
#include "ferramenta/UnContexto.h"
#include "ferramenta/UnErros.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "framework/UnTarvoESocialCamposListaSqlReversao.h"

namespace tarvo::ferramenta {

namespace {

struct TOpcoes {
    TEventoDaLinha Evento;
    TOpcoesDoContexto Contexto;
    TOpcoesDaCarga Carga;
    std::vector<std::string> Definir;
    bool Executar = false;
};

void Definir(TTarvoESocialCamposGrupoBase& AEvento, const std::string& ADefinicao)
{
    const auto LIgual = ADefinicao.find('=');
    if (LIgual == std::string::npos)
        throw EUsoErrado("--definir precisa de CAMINHO=VALOR, e não '" + ADefinicao + "'");
    try {
        DefinirPropriedadePeloCaminho(AEvento, ADefinicao.substr(0, LIgual), ADefinicao.substr(LIgual + 1));
    } catch (const EConvertError& LErro) {
        throw EUsoErrado("--definir " + ADefinicao + ": " + LErro.what());
    }
}

int ExecutarComandos(TOvraConnection& AConexao, const std::vector<std::string>& AComandos)
{
    const auto LRecusados = ExecutarReversao(AConexao, AComandos);
    for (const auto& [LSql, LMotivo] : LRecusados)
        std::cerr << "Comando recusado: " << LSql << "\n" << LMotivo << "\n";
    if (!LRecusados.empty()) {
        std::cerr << "Nada foi gravado: " << LRecusados.size() << " de " << AComandos.size() << " comandos recusados\n";
        return SAIDA_FALHA;
    }
    std::cerr << AComandos.size() << " comandos executados\n";
    return SAIDA_FEITO;
}

int Reverter(const TOpcoes& AOpcoes)
{
    const auto LCodigo = AOpcoes.Evento.Codigo();
    const auto LArgumentos = AOpcoes.Evento.Argumentos();
    TArgumentosDeEvento(BuscarEventoDoCatalogo(LCodigo).Argumentos, LArgumentos);
    TContexto LContexto(AOpcoes.Contexto);
    LContexto.IniciarInstantaneo();
    const auto LEvento = Carregar(LCodigo, LArgumentos, AOpcoes.Carga);
    for (const auto& LDefinicao : AOpcoes.Definir)
        Definir(*LEvento.Evento, LDefinicao);
    auto& LLista = BuscarInstanciaListaSql();
    LLista.LimparLista();
    LEvento.Evento->ReverterDados();
    std::string LTexto;
    for (const auto& LSql : LLista.Lista)
        LTexto += LSql + "\n";
    EscreverResultado(LTexto);
    const int LSaida = AOpcoes.Executar ? ExecutarComandos(LContexto.Conexao(), LLista.Lista) : SAIDA_FEITO;
    LContexto.ConferirRastro();
    return LSaida;
}

} // namespace

void RegistrarReverter(CLI::App& AApp, TComandos& AComandos)
{
    auto LOpcoes = std::make_shared<TOpcoes>();
    auto& LApp = AdicionarComando(AApp, AComandos, "reverter",
                                  "mostra os comandos que gravam no banco os valores corrigidos de um evento",
                                  "esocial-campos reverter S-1000|S-1030 --banco LIGACAO --ARGUMENTO VALOR ... "
                                  "[--definir CAMINHO=VALOR]... [--executar]");
    AdicionarOpcoesDoContexto(LApp, LOpcoes->Contexto);
    AdicionarOpcoesDaCarga(LApp, LOpcoes->Carga);
    LApp.add_option("--definir", LOpcoes->Definir, "corrige uma propriedade depois da carga; pode repetir")
        ->ignore_case()
        ->type_name("CAMINHO=VALOR")
        ->allow_extra_args(false);
    AdicionarChave(LApp, "--executar", LOpcoes->Executar, "executa os comandos, todos ou nenhum");
    AdicionarEventos(LApp, LOpcoes->Evento,
                     [](const TEventoDoCatalogo& AEvento) { return AEvento.Construir.TemReversao(); });
    AComandos.back().Executar = [LOpcoes] { return Reverter(*LOpcoes); };
}

} // namespace tarvo::ferramenta
