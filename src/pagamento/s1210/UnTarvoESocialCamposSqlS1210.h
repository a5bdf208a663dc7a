#pragma once

#include <string>
#include <string_view>

#include "pagamento/s1210/UnTarvoESocialCamposS1210IOP.h"

namespace tarvo::pagamento {

/// From a complementary calculation to the calculated rows of its workers, by the day of payment alone: the
/// remuneration compares the periods too, a payment doesn't.
inline constexpr std::string_view CALCULO_DO_COMPLEMENTAR = R"(FROM CALCCOMPL
JOIN FP_CALCCOMPLEMPREG ON (CALCCOMPL.IDCALCCOMPL=FP_CALCCOMPLEMPREG.IDCALCCOMPL)
JOIN CALCULO ON (CALCULO.IDEMPREGADO=FP_CALCCOMPLEMPREG.IDEMPREGADO)
JOIN CALCCOMPLPER ON (CALCCOMPLPER.IDCALCCOMPL=CALCCOMPL.IDCALCCOMPL AND CALCCOMPLPER.COMPET_PGTO=CALCULO.DATA_PAGTO))";

/// A complementary calculation that is a payment of an earlier period: any but those by agreement, and of those the
/// ones of a competence before the date of change of layout (%0:s).
inline constexpr std::string_view COMPLEMENTAR_ANTERIOR =
    "((CALCCOMPL.TIPOCALCULO <> 1) OR (CALCCOMPL.TIPOCALCULO = 1 AND CALCULO.DATA_INICIO < %0:s))";

/// The calculated rows of one demonstrative: its workers, kind, subkind, competence and day of payment, opened by the
/// connective.
std::string FiltroDoDemonstrativo(const TTarvoESocialCamposS1210IOP& AInfoBind, std::string_view AOperador = "AND");

/// The values of one receipt (RPA, SC00_FILIAL) that fulfil a condition, as a WHERE clause.
std::string FiltroDoRecibo(const TTarvoESocialCamposS1210IOP& AInfoBind, std::string_view ACondicao);

/// `ORDER BY key + 0`: the rows by their key. By the bare column the engine would walk the index of the whole table
/// instead of sorting the few rows that a statement takes.
std::string OrdemDaChave(std::string_view AChave);

/// Sum of VALOR over the rows of a statement; 0 without a row. The rows are added in the order of their key: where a
/// database holds amounts as binary floating numbers, the last place of a sum hangs on it.
long double BuscarSomaDoSql(std::string_view ASql, std::string_view AChave);

} // namespace tarvo::pagamento
