#pragma once

#include <cstdint>
#include <string>

namespace tarvo::regras {

/// The registration that a lotação is reported with: TPINSCRICAO, INSCRICAO, CODIGOESOCIAL. Without a department that
/// of the establishment; with one its own where the kind of department has one, else the establishment's under the
/// department's code. Asks the database for the kind.
std::string SqlInscricaoDaLotacao(std::int64_t AIdFilial, std::int64_t AIdDepto);

} // namespace tarvo::regras
