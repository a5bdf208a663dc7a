#include <CLI/CLI.hpp>

#include <memory>

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
        const auto LOpcao =
            std::string("--") + LArgumento.Nome + " " + ExemploDoTipo(static_cast<int>(LArgumento.Tipo));
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
    return LTexto;
}

} // namespace

void RegistrarEventos(CLI::App& AApp, TComandos& AComandos)
{
    auto LEvento = std::make_shared<std::string>();
    auto& LApp = AdicionarComando(AApp, AComandos, "eventos", "mostra os eventos e os seus argumentos",
                                  "esocial-campos eventos [EVENTO]");
    LApp.add_option("EVENTO", *LEvento, "um evento só, com a explicação de cada argumento")->type_name("");
    AComandos.back().Executar = [LEvento] {
        std::string LTexto;
        if (!LEvento->empty())
            LTexto = Detalhe(BuscarEventoDoCatalogo(*LEvento));
        else
            for (const auto& LItem : CatalogoDeEventos())
                LTexto += Resumo(LItem);
        EscreverResultado(LTexto);
        return SAIDA_FEITO;
    };
}

} // namespace tarvo::ferramenta
