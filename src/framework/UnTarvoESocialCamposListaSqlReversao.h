#pragma once

#include <string>
#include <vector>

namespace tarvo {

/// The statements that ReverterDados gathers, in order, duplicates included. One list for each context, that of the
/// process until it ends; it is emptied by the caller only.
class TListaSql {
public:
    std::vector<std::string> Lista;

    static TListaSql& BuscarSingleton();
    void LimparLista() { Lista.clear(); }
};

inline TListaSql& BuscarInstanciaListaSql() { return TListaSql::BuscarSingleton(); }

class TOvraConnection;

/// A statement that the engine refused, and the engine's text.
struct TComandoRecusado {
    std::string Sql;
    std::string Motivo;
};

/// Runs statements in order, all or nothing. Every one is tried, so that each that the engine refuses is told; with one
/// refused the whole transaction is undone, else it is confirmed. EDatabaseError when that fails.
[[nodiscard]] std::vector<TComandoRecusado> ExecutarReversao(TOvraConnection& AConexao,
                                                             const std::vector<std::string>& AComandos);

} // namespace tarvo
