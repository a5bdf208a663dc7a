#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo::regras {

/// The digits of a legal process's number, as column NUMERO of a statement on ES02_SPPROC.
inline constexpr std::string_view NUMERO_DO_PROCESSO =
    "(SELECT SP_BUSCARSOMENTENUMEROS.RESULT FROM SP_BUSCARSOMENTENUMEROS(ES02_SPPROC.NUMERO)) AS NUMERO";

/// NUMERO of a process and IDSPPROCDET of its newest detail, null where it has none.
std::string SqlProcessoComDetalhe(std::int64_t AIdProcesso);

} // namespace tarvo::regras
