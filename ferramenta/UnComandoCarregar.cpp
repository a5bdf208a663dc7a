#include <CLI/CLI.hpp>

#include <memory>

#include "ferramenta/UnCarga.h"
#include "ferramenta/UnComandos.h"
#include "ferramenta/UnContexto.h"
#include "ferramenta/UnErros.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::ferramenta {

namespace {

struct TOpcoes {
    TEventoDaLinha Evento;
    TOpcoesDoContexto Contexto;
    TOpcoesDaCarga Carga;
    bool Compacto = false;
};

int CarregarEMostrar(const TOpcoes& AOpcoes)
{
    const auto LCodigo = AOpcoes.Evento.Codigo();
    const auto LArgumentos = AOpcoes.Evento.Argumentos();
    // A wrong argument is told before the database is asked for.
    TArgumentosDeEvento(BuscarEventoDoCatalogo(LCodigo).Argumentos, LArgumentos);
    TContexto LContexto(AOpcoes.Contexto);
    LContexto.IniciarInstantaneo();
    const auto LEvento = Carregar(LCodigo, LArgumentos, AOpcoes.Carga);
    const auto LJson = LEvento.Evento->ToJson().AsJSON(!AOpcoes.Compacto);
    LContexto.ConferirRastro();
    EscreverResultado(LJson + "\n");
    return SAIDA_FEITO;
}

} // namespace

void RegistrarCarregar(CLI::App& AApp, TComandos& AComandos)
{
    auto LOpcoes = std::make_shared<TOpcoes>();
    auto& LApp = AdicionarComando(AApp, AComandos, "carregar", "carrega um evento e mostra o seu JSON",
                                  "esocial-campos carregar EVENTO --banco LIGACAO --ARGUMENTO VALOR ...");
    AdicionarOpcoesDoContexto(LApp, LOpcoes->Contexto);
    AdicionarOpcoesDaCarga(LApp, LOpcoes->Carga);
    AdicionarChave(LApp, "--compacto", LOpcoes->Compacto, "mostra o JSON em uma linha");
    AdicionarEventos(LApp, LOpcoes->Evento);
    AComandos.back().Executar = [LOpcoes] { return CarregarEMostrar(*LOpcoes); };
}

} // namespace tarvo::ferramenta
