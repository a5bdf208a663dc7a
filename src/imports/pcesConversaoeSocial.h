#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarvo {

// Enumerations of the eSocial layouts. The JSON of a tree carries the ordinals, so the order is a wire format.

enum class tpIndApuracao : std::uint8_t { Mensal = 0, Anual = 1 };

enum class tpTpInsc : std::uint8_t { CNPJ = 0, CPF = 1, CAEPF = 2, CNO = 3 };

enum class tpSimNao : std::uint8_t { Sim = 0, Nao = 1 };

/// Kind of class council of a professional.
enum class tpIdeOC : std::uint8_t { Nenhum = 0, CRM = 1, CRO = 2, RMS = 3 };

/// Whether an international organisation has an agreement that exempts it from fines.
enum class tpIndAcordoIsencaoMulta : std::uint8_t { SemAcordo = 0, ComAcordo = 1 };

/// The two sides of a leave that S-2230 reports.
enum class TTipoEventoS2230 : std::uint8_t { Inicio = 1, Termino = 2 };

/// The events in the order of the layouts.
enum class TTipoEvento : std::uint8_t {
    teS1000 = 0,
    teS1005,
    teS1010,
    teS1020,
    teS1030,
    teS1035,
    teS1040,
    teS1050,
    teS1060,
    teS1070,
    teS1080,
    teS1200 = 11,
    teS1202,
    teS1207,
    teS1210 = 14,
    teS1250,
    teS1260,
    teS1270,
    teS1280,
    teS1295,
    teS1298,
    teS1299,
    teS1300,
    teS2190,
    teS2200 = 24,
    teS2205,
    teS2206 = 26,
    teS2210,
    teS2220,
    teS2221,
    teS2230,
    teS2240,
    teS2241,
    teS2245,
    teS2250,
    teS2260,
    teS2298,
    teS2299,
    teS2300,
    teS2306,
    teS2399,
    teS2400,
    teS3000,
};

/// The events that the payroll sends: those of TTipoEvento without S-1202, S-1207 and S-2400, the pay and benefits
/// of public servants. The ordinals are the suite's.
enum class TTipoEventoFolha : std::uint8_t {
    tefS1000 = 0,
    tefS1005,
    tefS1010,
    tefS1020,
    tefS1030,
    tefS1035,
    tefS1040,
    tefS1050,
    tefS1060,
    tefS1070,
    tefS1080,
    tefS1200,
    tefS1210,
    tefS1250,
    tefS1260,
    tefS1270,
    tefS1280,
    tefS1295,
    tefS1298,
    tefS1299,
    tefS1300,
    tefS2190,
    tefS2200,
    tefS2205,
    tefS2206,
    tefS2210,
    tefS2220,
    tefS2221,
    tefS2230,
    tefS2240,
    tefS2241,
    tefS2245,
    tefS2250,
    tefS2260,
    tefS2298,
    tefS2299 = 35,
    tefS2300,
    tefS2306,
    tefS2399 = 38,
    tefS3000,
};

/// The event whose name is the text ("teS2200"), without regard to case; nothing for an unknown name.
std::optional<TTipoEvento> BuscarTTipoEvento(std::string_view ANome);

/// The event as the database writes it: "S-2299". Empty for a value outside the enumeration.
std::string_view BuscarTpEvento(TTipoEvento ATipo);
std::string_view BuscarTpEvento(TTipoEventoFolha ATipo);

} // namespace tarvo
