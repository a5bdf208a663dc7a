#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo::desligamento {

/// The transfers of a worker to a company of the database (1) and to one outside it (3), those of the lowest key first:
/// MOTIVOESOCIAL, INSCRICAO and, where AComTipo, TPINSCRICAO.
std::string SqlTransferencia(std::int64_t AIdEmpregado, bool AComTipo, std::string_view ACondicaoDoMotivo);

} // namespace tarvo::desligamento
