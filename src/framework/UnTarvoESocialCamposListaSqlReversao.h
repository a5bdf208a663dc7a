#pragma once

#include <string>
#include <vector>

namespace tarvo {

/// The statements that ReverterDados gathers, in order, duplicates included. One list for the whole process, without
/// a lock; it lives until the process ends and is emptied by the caller only.
class TListaSql {
public:
    std::vector<std::string> Lista;

    static TListaSql& BuscarSingleton();
    void LimparLista() { Lista.clear(); }
};

inline TListaSql& BuscarInstanciaListaSql() { return TListaSql::BuscarSingleton(); }

} // namespace tarvo
