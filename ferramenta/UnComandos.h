#pragma once

#include "ferramenta/UnLinhaDeComando.h"

namespace tarvo::ferramenta {

// One unit a command. Each adds its place on the command line and what it does.

void RegistrarCriarBanco(CLI::App& AApp, TComandos& AComandos);
void RegistrarEventos(CLI::App& AApp, TComandos& AComandos);
void RegistrarCarregar(CLI::App& AApp, TComandos& AComandos);
void RegistrarReverter(CLI::App& AApp, TComandos& AComandos);
void RegistrarLote(CLI::App& AApp, TComandos& AComandos);
void RegistrarIncidencias(CLI::App& AApp, TComandos& AComandos);

} // namespace tarvo::ferramenta
