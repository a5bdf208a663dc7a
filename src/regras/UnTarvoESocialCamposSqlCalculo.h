#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "imports/banco/UnOvraClientDataSet.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"

namespace tarvo::regras {

// Rules on calculated rows (CALCULO, CALC_QUEBRA, CALCCOMPL...) that hold alike for remuneration and for termination.

/// Sum of two amounts that are held as floating numbers, not rounded: 508.41 where a binary sum would show
/// 508.40999999999997, and the whole sum where an amount has more than four decimals.
double SomarQuantias(double A, double B);

/// The rows of CALCULO that the break table doesn't split.
inline constexpr std::string_view CALCULO_SEM_QUEBRA =
    "NOT EXISTS (SELECT CALC_QUEBRA.IDCALCQUEBRA FROM CALC_QUEBRA WHERE CALCULO.IDCALCULO = CALC_QUEBRA.IDCALCULO)";

/// The rows of the break table and those of CALCULO that it doesn't split, alike ones once and without an order. AColunas
/// is what is shown of both; a key that isn't among it can be had by MIN(...) in an order. ADoCalculo ends in a condition.
std::string UnirQuebraECalculo(std::string_view AColunas, std::string_view ADaQuebra, std::string_view ADoCalculo);

/// From a row of CALCULO to the complementary calculation that it belongs to.
inline constexpr std::string_view JUNCAO_CALCULO_COMPLEMENTAR =
    R"(INNER JOIN FP_CALCCOMPLEMPREG ON (FP_CALCCOMPLEMPREG.IDEMPREGADO = CALCULO.IDEMPREGADO)
INNER JOIN CALCCOMPL ON (CALCCOMPL.IDCALCCOMPL = FP_CALCCOMPLEMPREG.IDCALCCOMPL)
INNER JOIN CALCCOMPLPER ON (CALCCOMPLPER.IDCALCCOMPL = CALCCOMPL.IDCALCCOMPL
                        AND CALCULO.DATA_INICIO >= CALCCOMPLPER.DATA_INICIO
                        AND CALCULO.DATA_FIM <= CALCCOMPLPER.DATA_FIM
                        AND CALCULO.DATA_PAGTO = CALCCOMPLPER.COMPET_PGTO))";

/// From a complementary calculation to the agreement behind it.
inline constexpr std::string_view JUNCAO_ACORDO =
    "INNER JOIN FP_INFOGFIP650660 ON (FP_INFOGFIP650660.IDINFOGFIP650660 = CALCCOMPL.IDINFOGFIP650660)";

/// The complementary dismissal of a calculated row; the JOIN or LEFT JOIN stands before it.
inline constexpr std::string_view RESC_COMPL_DO_CALCULO =
    R"(RESC_COMPL ON (RESC_COMPL.COD_EMPRESA = CALCULO.COD_EMPRESA
  AND RESC_COMPL.COD_EMPREGADO = CALCULO.COD_EMPREGADO
  AND RESC_COMPL.DATA_PGTO = CALCULO.DATA_PAGTO))";

/// The complementary vacation amounts of a contract in a run: IDVERBA, BASE, REFERENCIA, VALOR. ATipoFolha is the text
/// of CALCULO.TIPO.
std::string SqlFeriasComplementares(std::int64_t AIdEmpregado, std::string_view ATipoFolha, TDateTime ADataInicio,
                                    TDateTime ADataFim);

/// Adds the complementary vacation amounts, unrounded as far as the list's type holds them, to the first entry of a
/// list that has their rubric. The reference stays, and an amount whose rubric isn't in the list is left out.
template <class TDado, class TValor>
requires std::same_as<TValor, double> || std::same_as<TValor, Currency>
void SomarFeriasComplementares(std::vector<TDado>& ALista, std::int64_t TDado::*AIdVerba, TValor TDado::*ABase,
                               TValor TDado::*AValor, const std::string& ASql)
{
    const auto Somar = [](TValor& AQuantia, const TField& AField) {
        if constexpr (std::same_as<TValor, double>)
            AQuantia = SomarQuantias(AQuantia, AField.AsFloat());
        else
            AQuantia += AField.AsCurrency();
    };
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(ASql);
    for (; !LCds->Eof(); LCds->Next()) {
        const auto LIdVerba = LCds->FieldByName("IDVERBA").AsLargeInt();
        for (auto& LDado : ALista) {
            if (LDado.*AIdVerba != LIdVerba)
                continue;
            Somar(LDado.*ABase, LCds->FieldByName("BASE"));
            Somar(LDado.*AValor, LCds->FieldByName("VALOR"));
            break;
        }
    }
}

} // namespace tarvo::regras
