#pragma once

#include "ferramenta/UnLinhaDeComando.h"

namespace tarvo::ferramenta {

// One unit a command: its place on the command line and what it does.

TComando ComandoCriarBanco();
TComando ComandoEventos();
TComando ComandoCarregar();
TComando ComandoReverter();
TComando ComandoLote();
TComando ComandoIncidencias();

} // namespace tarvo::ferramenta
