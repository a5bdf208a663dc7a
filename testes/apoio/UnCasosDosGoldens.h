#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace tarvo::testes {

/// A line of a file goldens/S-XXXX.casos: a name, then the event's arguments as NAME=VALUE. The expected JSON is
/// goldens/S-XXXX/name.json.
struct TCasoDoGolden {
    std::string Evento;
    std::string Nome;
    std::map<std::string, std::string> Argumentos;
};

void PrintTo(const TCasoDoGolden& ACaso, std::ostream* ASaida);

/// The cases of every event.
std::vector<TCasoDoGolden> LerCasosDosGoldens();
/// The JSON that a case has to give, indented.
std::string JsonDoGolden(const TCasoDoGolden& ACaso);
/// Loads a case on the current connection, which is the sibling system's too: its JSON.
std::string CarregarCaso(const TCasoDoGolden& ACaso, bool AIndentado = false);

} // namespace tarvo::testes
