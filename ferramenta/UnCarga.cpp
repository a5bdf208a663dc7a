#include "ferramenta/UnCarga.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "ferramenta/UnLinhaDeComando.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnTarvoUtilsStrings.h"

namespace tarvo::ferramenta {

void AdicionarOpcoesDaCarga(CLI::App& AComando, TOpcoesDaCarga& AOpcoes)
{
    AComando.add_option("--grupos", AOpcoes.Grupos, "carrega só os grupos com estes GUIDs; vazio carrega todos")
        ->ignore_case()
        ->check(&ConferirTexto)
        ->type_name("GUID[,GUID...]");
    AComando
        .add_option("--sem-grupo", AOpcoes.SemGrupo,
                    "não carrega o grupo deste caminho (ex.: InfoEmpregador.infoCadastro); pode repetir")
        ->ignore_case()
        ->type_name("CAMINHO")
        ->allow_extra_args(false);
}

TEventoConstruido Carregar(const std::string& AEvento, const std::map<std::string, std::string>& AArgumentos,
                           const TOpcoesDaCarga& AOpcoes)
{
    auto LEvento = ConstruirEvento(AEvento, AArgumentos);
    for (const auto& LCaminho : AOpcoes.SemGrupo)
        BuscarGrupoPeloCaminho(*LEvento.Evento, LCaminho).SetCarregarDadosDoGrupo(false);
    const auto LGrupos = TTarvoUtilsStrings::TransfereStringParaLista(AOpcoes.Grupos);
    LEvento.Evento->CarregarDados(&LGrupos);
    return LEvento;
}

void EscreverResultado(const std::string& ATexto)
{
    if (!(std::cout << ATexto).flush())
        throw Exception("Não foi possível escrever na saída padrão");
}

} // namespace tarvo::ferramenta
