#pragma once

#include <cstdint>

#include "imports/banco/UnOvraConnection.h"

namespace tarvo::bancada {

/// Grows the sample company 1 by workers made after some of its own: registers, twelve months of 2021 with the
/// rubrics of the model's March, values that vary with worker, rubric and month. The same seed gives the same company.
/// The transaction is confirmed, and the statistics of the indexes are made anew.
void GerarTrabalhadores(TOvraConnection& AConexao, int AQuantidade, std::uint32_t ASemente);

} // namespace tarvo::bancada
