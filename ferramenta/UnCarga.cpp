#include "ferramenta/UnCarga.h"

#include <iostream>

#include "ferramenta/UnLinhaDeComando.h"
#include "framework/UnTarvoESocialCamposCaminhos.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo::ferramenta {

void AdicionarOpcoesDaCarga(TComando& AComando, TOpcoesDaCarga& AOpcoes)
{
    AComando.Opcoes.insert(
        AComando.Opcoes.end(),
        {{"--grupos", &AOpcoes.Grupos, "carrega só os grupos com estes GUIDs; vazio carrega todos", "GUID[,GUID...]",
          TTextoAceito::Texto},
         {"--sem-grupo", &AOpcoes.SemGrupo,
          "não carrega o grupo deste caminho (ex.: InfoEmpregador.infoCadastro); pode repetir", "CAMINHO"}});
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
