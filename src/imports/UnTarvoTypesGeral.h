#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tarvo {

enum class TTipoTrabalhador : std::uint8_t { Empregado = 0, Prestador = 1 };

/// Kind of payroll. The ordinals are the suite's; those left out here belong to kinds that no event reports.
enum class TTiposFolha : std::uint8_t {
    Mensal = 0,
    Adiantamento = 1,
    DecimoTerceiro = 2,
    Ferias = 3,
    Rescisao = 4,
    AdiantamentoDecimoTerceiro = 5,
    ParticipacaoNosLucros = 8,
    Nenhuma = 10,
    Rpa = 18,
};

/// CALCULO.TIPO of each kind, indexed by the ordinal of TTiposFolha; empty where the kind has none.
inline constexpr std::array<std::string_view, 19> CTipoFolha{"01", "02", "03", "04", "05", "06", "", "", "09", "",
                                                             "",   "",   "",   "",   "",   "",   "", "", "97"};

constexpr std::string_view CodigoDaFolha(TTiposFolha ATipo) { return CTipoFolha[static_cast<std::size_t>(ATipo)]; }

/// Kind of payroll by CALCULO.TIPO, surrounding blanks left aside; Nenhuma for an unknown text.
TTiposFolha BuscarTTipoFolha(std::string_view ATexto);

/// Which day of the month TransformarData gives.
enum class TDiasTransformarData : std::uint8_t { PrimeiroDiaDoMes = 0, UltimoDiaDoMes = 1 };

/// Unit of the count that TransformarData adds first.
enum class TSomaTransformarData : std::uint8_t { Dias = 0 };

/// Where FormatarTexto puts the filling.
enum class TFormatacaoTexto : std::uint8_t { CompletarAEsquerda = 0, CompletarADireita = 1 };

/// Where the purchases of rural production are kept. Any other value that the suite has is the sibling system in a
/// database of its own.
enum class TTipoConexao : std::int32_t { Folha = 1, Brenco = 2 };

enum class TDiaSemana : std::uint8_t { Domingo = 0, Segunda, Terca, Quarta, Quinta, Sexta, Sabado };

} // namespace tarvo
