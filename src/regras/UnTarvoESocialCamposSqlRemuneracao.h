#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::regras {

// Statements that remuneration and termination have in common.

/// The position of a contract in force at a date and the category of the contract: OCORRENCIA, CODCATEG.
/// AColunaOcorrencia is the select item, which the events cut differently.
std::string SqlExposicao(std::string_view AColunaOcorrencia, std::int64_t AIdEmpregado, TDateTime AData);

/// The agreement behind a difference: DATAOCORRENCIA, DTEFACCONV, DESCRICAO, CARACTERISTICA.
std::string SqlAcordo(std::int64_t AIdAcordo);

/// The code of the convocation of intermittent work: CODIGOESOCIAL.
std::string SqlConvocacao(std::int64_t AIdDetConvocacao);

} // namespace tarvo::regras
