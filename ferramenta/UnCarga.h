#pragma once

#include <string>
#include <vector>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"

namespace tarvo::ferramenta {

struct TComando;

/// The options that say what of an event is loaded.
struct TOpcoesDaCarga {
    /// Comma list of GUIDs; empty loads everything.
    std::string Grupos;
    /// Paths of the groups that are switched off.
    std::vector<std::string> SemGrupo;
};

void AdicionarOpcoesDaCarga(TComando& AComando, TOpcoesDaCarga& AOpcoes);

/// Constructs an event, switches its groups off and loads it. EArgumentoInvalido and ECaminhoInvalido for what the
/// caller gave wrongly; every other failure is the load's.
TEventoConstruido Carregar(const std::string& AEvento, const std::map<std::string, std::string>& AArgumentos,
                           const TOpcoesDaCarga& AOpcoes);

/// Writes a text to the standard output; Exception when it can't be written.
void EscreverResultado(const std::string& ATexto);

} // namespace tarvo::ferramenta
