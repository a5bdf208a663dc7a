#pragma once

#include <cstdint>
#include <string>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::trabalhador {

/// Condition of the rows of FP_CONTRAINTERM by which a worker was called on a day, and their order: the call entered
/// first gives the event its values.
std::string CondicaoEOrdemDaConvocacao(std::int64_t AIdEmpregado, TDateTime ADataConvocacao);

} // namespace tarvo::trabalhador
