#pragma once

#include <cstdint>
#include <string>

#include "imports/UnOvraDataHora.h"

namespace tarvo::trabalhador {

/// Condition of the rows of FP_CONTRAINTERM by which a worker was called on a day.
std::string CondicaoDaConvocacao(std::int64_t AIdEmpregado, TDateTime ADataConvocacao);

} // namespace tarvo::trabalhador
