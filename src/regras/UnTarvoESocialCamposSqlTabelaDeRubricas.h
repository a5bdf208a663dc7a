#pragma once

#include <cstdint>
#include <string>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::regras {

// ideTabRubr, the table of rubrics of a company: IDETABRUBR of the row of SC00_EMPRESACFG 90/38/13, whatever its
// validity, which only orders them: the row in force at the date first, the newest start first.

/// By the company.
std::string SqlTabelaDeRubricas(std::int64_t AIdEmpresa, TDateTime AData);
/// By a worker of the company.
std::string SqlTabelaDeRubricasDoEmpregado(std::int64_t AIdEmpregado, TDateTime AData);

} // namespace tarvo::regras
