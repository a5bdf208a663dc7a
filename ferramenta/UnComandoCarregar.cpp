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
    const auto& LCodigo = AOpcoes.Evento.Codigo();
    const auto& LArgumentos = AOpcoes.Evento.Argumentos;
    // A wrong argument is told before the database is asked for.
    static_cast<void>(TArgumentosDeEvento(BuscarEventoDoCatalogo(LCodigo).Argumentos, LArgumentos));
    TContexto LContexto(AOpcoes.Contexto);
    LContexto.IniciarInstantaneo();
    const auto LEvento = Carregar(LCodigo, LArgumentos, AOpcoes.Carga);
    const auto LJson = LEvento.Evento->ToJson().AsJSON(!AOpcoes.Compacto);
    LContexto.ConferirRastro();
    EscreverResultado(LJson + "\n");
    return SAIDA_FEITO;
}

} // namespace

TComando ComandoCarregar()
{
    const auto LOpcoes = std::make_shared<TOpcoes>();
    TComando LComando{"carregar", "carrega um evento e mostra o seu JSON",
                      "esocial-campos carregar EVENTO --banco LIGACAO --ARGUMENTO VALOR ..."};
    AdicionarOpcoesDoContexto(LComando, LOpcoes->Contexto);
    AdicionarOpcoesDaCarga(LComando, LOpcoes->Carga);
    LComando.Opcoes.push_back({"--compacto", &LOpcoes->Compacto, "mostra o JSON em uma linha"});
    AdicionarEventos(LComando, LOpcoes->Evento);
    LComando.Executar = [LOpcoes] { return CarregarEMostrar(*LOpcoes); };
    return LComando;
}

} // namespace tarvo::ferramenta
