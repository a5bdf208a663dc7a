#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::regras {

/// The three shapes of a demonstrative's identifier.
enum class TFormaIdeDmDev : std::uint8_t {
    /// A provider's receipt: 97_0000001234_05_03_2021.
    Recibo,
    /// A dismissal, its day written out: 05_002_15_01_2019.
    Rescisao,
    /// Any other run, by its month: 01_000_0_03_2021.
    Folha,
};

/// What the identifier of a demonstrative is made of. Whoever forms one decides which date and which convocation it
/// takes; how they are written is said once, in FormarIdeDmDev.
struct TDadosIdeDmDev {
    TFormaIdeDmDev Forma = TFormaIdeDmDev::Folha;
    /// CALCULO.TIPO as a number, 97 for a receipt.
    std::int64_t TipoFolha = 0;
    /// Not part of a receipt's.
    std::int64_t SubTipoFolha = 0;
    /// Kind of complementary calculation; only part of a Folha.
    std::int64_t TipoFolhaCompl = 0;
    /// Only part of a Recibo.
    std::int64_t NrRecibo = 0;
    /// Convocation of intermittent work; not part of a Recibo.
    std::optional<std::int64_t> IdDetConvocacao = std::nullopt;
    TDateTime Data;
    /// Category, where the CPF has active contracts of several; 0 for none.
    std::int32_t CodCateg = 0;
};

/// The text of `ideDmDev`, which ties what was paid (S-1210) to what was due (S-1200, S-2299, S-2399): the same run
/// must give the same text in each of them. Numbers are padded and never cut.
std::string FormarIdeDmDev(const TDadosIdeDmDev& ADados);

} // namespace tarvo::regras
