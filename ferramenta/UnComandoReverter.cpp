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
    const auto& LCodigo = AOpcoes.Evento.Codigo();
    const auto& LArgumentos = AOpcoes.Evento.Argumentos;
    // A wrong argument is told before the database is asked for.
    static_cast<void>(TArgumentosDeEvento(BuscarEventoDoCatalogo(LCodigo).Argumentos, LArgumentos));
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

TComando ComandoReverter()
{
    const auto LOpcoes = std::make_shared<TOpcoes>();
    TComando LComando{"reverter", "mostra os comandos que gravam no banco os valores corrigidos de um evento",
                      "esocial-campos reverter S-1000|S-1030 --banco LIGACAO --ARGUMENTO VALOR ... "
                      "[--definir CAMINHO=VALOR]... [--executar]"};
    AdicionarOpcoesDoContexto(LComando, LOpcoes->Contexto);
    AdicionarOpcoesDaCarga(LComando, LOpcoes->Carga);
    LComando.Opcoes.push_back(
        {"--definir", &LOpcoes->Definir, "corrige uma propriedade depois da carga; pode repetir", "CAMINHO=VALOR"});
    LComando.Opcoes.push_back({"--executar", &LOpcoes->Executar, "executa os comandos, todos ou nenhum"});
    AdicionarEventos(LComando, LOpcoes->Evento,
                     [](const TEventoDoCatalogo& AEvento) { return AEvento.Construir.TemReversao(); });
    LComando.Executar = [LOpcoes] { return Reverter(*LOpcoes); };
    return LComando;
}

} // namespace tarvo::ferramenta
