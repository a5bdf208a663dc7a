#include <memory>

#include "catalogo/UnTarvoESocialCamposReferencia.h"
#include "ferramenta/UnCarga.h"
#include "ferramenta/UnComandos.h"
#include "ferramenta/UnErros.h"

namespace tarvo::ferramenta {

namespace {

std::string Resumo(const TEventoDoCatalogo& AEvento)
{
    std::string LTexto = std::string(AEvento.Codigo) + "  " + AEvento.Titulo + "\n       ";
    if (AEvento.Argumentos.empty())
        LTexto += " (sem argumentos)";
    for (const auto& LArgumento : AEvento.Argumentos) {
        const auto LOpcao = std::string("--") + LArgumento.Nome + " " + ExemploDoTipo(LArgumento.Tipo);
        LTexto += LArgumento.Obrigatorio ? " " + LOpcao : " [" + LOpcao + "]";
    }
    return LTexto + "\n";
}

std::string Detalhe(const TEventoDoCatalogo& AEvento)
{
    std::string LTexto = Resumo(AEvento);
    for (const auto& LArgumento : AEvento.Argumentos)
        LTexto += std::string("        --") + LArgumento.Nome + ": " + LArgumento.Descricao +
                  (LArgumento.Obrigatorio ? "\n" : " (opcional)\n");
    return LTexto + "\n" + ArvoreDoEvento(AEvento);
}

struct TOpcoes {
    std::string Evento;
    bool Markdown = false;
    bool Esquema = false;
};

std::string Mostrar(const TOpcoes& AOpcoes)
{
    if (AOpcoes.Markdown && AOpcoes.Esquema)
        throw EUsoErrado("Informe só uma das opções: --markdown ou --esquema");
    if (!AOpcoes.Evento.empty()) {
        const auto& LEvento = BuscarEventoDoCatalogo(AOpcoes.Evento);
        if (AOpcoes.Esquema)
            return EsquemaDoEvento(LEvento) + "\n";
        return AOpcoes.Markdown ? PaginaDoEvento(LEvento) : Detalhe(LEvento);
    }
    if (AOpcoes.Esquema)
        throw EUsoErrado("Falta informar o evento (S-1000, ...) do esquema");
    if (AOpcoes.Markdown)
        return IndiceDasPaginas();
    std::string LTexto;
    for (const auto& LItem : CatalogoDeEventos())
        LTexto += Resumo(LItem);
    return LTexto;
}

} // namespace

TComando ComandoEventos()
{
    const auto LOpcoes = std::make_shared<TOpcoes>();
    TComando LComando{"eventos",
                      "mostra os eventos, os seus argumentos e os seus campos",
                      "esocial-campos eventos [EVENTO] [--markdown|--esquema]",
                      {{"EVENTO", &LOpcoes->Evento, "um evento só, com cada argumento e cada campo"},
                       {"--markdown", &LOpcoes->Markdown, "mostra a página do evento, ou o índice das páginas"},
                       {"--esquema", &LOpcoes->Esquema, "mostra o esquema JSON (draft 4) do evento"}}};
    LComando.Executar = [LOpcoes] {
        EscreverResultado(Mostrar(*LOpcoes));
        return SAIDA_FEITO;
    };
    return LComando;
}

} // namespace tarvo::ferramenta
