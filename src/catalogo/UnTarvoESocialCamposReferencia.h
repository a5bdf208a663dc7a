#pragma once

#include <string>

namespace tarvo {

struct TEventoDoCatalogo;

// What a payroll developer looks up, told by the binding tables themselves: it can't differ from what a load does.
// Nothing here constructs an event or reads a database. All texts are UTF-8.

/// The tree of an event for a terminal: a line a property, children below their group.
std::string ArvoreDoEvento(const TEventoDoCatalogo& AEvento);
/// The page of an event: its arguments and its groups, a table each.
std::string PaginaDoEvento(const TEventoDoCatalogo& AEvento);
/// The page that leads to those of the events, and says how they are read.
std::string IndiceDasPaginas();
/// JSON Schema (draft 4) of the event's JSON, indented.
std::string EsquemaDoEvento(const TEventoDoCatalogo& AEvento);

} // namespace tarvo
