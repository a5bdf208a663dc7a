#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::remuneracao {

/// Calculations of contracts by the establishment (and department) that they were made in, whole and split rows
/// together: `SELECT DISTINCT AColunas ... UNION ... ORDER BY AOrdem`. A calculation counts when its start or its end
/// lies in the period. ACondicao is the last condition, over SC00_EMPRESA, SC00_FILIAL and, with AComDepto, SC00_DEPTO.
/// AOrdem names the columns that settle the order by their places.
std::string SqlCalculosPorLotacao(std::string_view AColunas, const std::vector<std::int64_t>& AIdsEmpregado,
                                  TDateTime ADataInicio, TDateTime ADataFim, bool AComDepto, std::string_view ACondicao,
                                  std::string_view AOrdem);

/// Those of the contracts that were calculated in a department, or without one in an establishment, in the period.
std::vector<std::int64_t> BuscarEmpregadosDaLotacao(const std::vector<std::int64_t>& AIdsEmpregado,
                                                    TDateTime ADataInicio, TDateTime ADataFim, std::int64_t AIdFilial,
                                                    std::int64_t AIdDepto);

/// Appends an id that the list doesn't have yet.
void AdicionarSemRepetir(std::vector<std::int64_t>& ALista, std::int64_t AId);

} // namespace tarvo::remuneracao
