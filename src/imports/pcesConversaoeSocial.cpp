#include "imports/pcesConversaoeSocial.h"

#include <array>
#include <string>

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

constexpr std::array<std::string_view, 43> EVENTOS{
    "S-1000", "S-1005", "S-1010", "S-1020", "S-1030", "S-1035", "S-1040", "S-1050", "S-1060", "S-1070", "S-1080",
    "S-1200", "S-1202", "S-1207", "S-1210", "S-1250", "S-1260", "S-1270", "S-1280", "S-1295", "S-1298", "S-1299",
    "S-1300", "S-2190", "S-2200", "S-2205", "S-2206", "S-2210", "S-2220", "S-2221", "S-2230", "S-2240", "S-2241",
    "S-2245", "S-2250", "S-2260", "S-2298", "S-2299", "S-2300", "S-2306", "S-2399", "S-2400", "S-3000"};
static_assert(EVENTOS.size() == static_cast<std::size_t>(TTipoEvento::teS3000) + 1);
static_assert(EVENTOS[static_cast<std::size_t>(TTipoEvento::teS2206)] == "S-2206");
static_assert(EVENTOS[static_cast<std::size_t>(TTipoEvento::teS2399)] == "S-2399");

constexpr bool SoDeServidorPublico(std::string_view AEvento)
{
    return AEvento == "S-1202" || AEvento == "S-1207" || AEvento == "S-2400";
}

constexpr auto EVENTOS_DA_FOLHA = [] {
    std::array<std::string_view, EVENTOS.size() - 3> LEventos;
    std::size_t LPosicao = 0;
    for (const auto LEvento : EVENTOS)
        if (!SoDeServidorPublico(LEvento))
            LEventos[LPosicao++] = LEvento;
    return LEventos;
}();
static_assert(EVENTOS_DA_FOLHA.size() == static_cast<std::size_t>(TTipoEventoFolha::tefS3000) + 1);
static_assert(EVENTOS_DA_FOLHA[static_cast<std::size_t>(TTipoEventoFolha::tefS2299)] == "S-2299");
static_assert(EVENTOS_DA_FOLHA[static_cast<std::size_t>(TTipoEventoFolha::tefS2399)] == "S-2399");

} // namespace

std::optional<TTipoEvento> BuscarTTipoEvento(std::string_view ANome)
{
    for (std::size_t i = 0; i < EVENTOS.size(); ++i)
        if (MesmoTexto(ANome, "teS" + std::string(EVENTOS[i].substr(2))))
            return static_cast<TTipoEvento>(i);
    return std::nullopt;
}

std::string_view BuscarTpEvento(TTipoEvento ATipo)
{
    const auto LOrdinal = static_cast<std::size_t>(ATipo);
    return LOrdinal < EVENTOS.size() ? EVENTOS[LOrdinal] : std::string_view();
}

std::string_view BuscarTpEvento(TTipoEventoFolha ATipo)
{
    const auto LOrdinal = static_cast<std::size_t>(ATipo);
    return LOrdinal < EVENTOS_DA_FOLHA.size() ? EVENTOS_DA_FOLHA[LOrdinal] : std::string_view();
}

} // namespace tarvo
