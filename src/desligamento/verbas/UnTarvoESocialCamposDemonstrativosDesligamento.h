#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "desligamento/verbas/UnTdmDevDesligamentoIOP.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/banco/UnOvraClientDataSet.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::desligamento {

// How the demonstratives of a termination are found and named, for S-2299 and S-2399 alike.

/// One kind of calculation in the statement that lists the demonstratives.
struct TRamoDeDemonstrativo {
    TTipoCalculoDesligamento Tipo;
    /// What follows DATA_PAGTO and TIPO in the select list.
    std::string Colunas;
    /// From the join on, FROM CALCULO and the worker's condition left out.
    std::string_view Juncoes;
    std::string Condicoes;
};

/// The rubrics of a calculated row.
inline constexpr std::string_view JUNCAO_VERBAS = "\nJOIN TAB_VERBAS ON (TAB_VERBAS.CODIGO = CALCULO.COD_VERBA)";
/// What every dismissal has, and the base of the family allowance always: it alone is no calculation.
inline constexpr std::string_view SEM_BASE_DO_SALARIO_FAMILIA = "\n  AND TAB_VERBAS.FORMULA <> '900A'";

/// The complementary terminations without an agreement, or paid in the month of the termination.
TRamoDeDemonstrativo RamoRescisaoComplementar(const TdmDevDesligamentoIOP& ADmDev, std::string AColunas);
/// Advances paid in the month of the termination.
TRamoDeDemonstrativo RamoOutrosTiposNaCompetencia(const TdmDevDesligamentoIOP& ADmDev, std::string AColunas);
/// The demonstratives of the branches, each once, without an order: the key of its first row can be had by
/// MIN(IDCALCULO). AColunaDoTipo names the kind, `TIPO_CALC_S2299`; AOutras follows DATA_PAGTO and TIPO, the names of
/// the columns that the branches give.
std::string SqlDosRamos(std::initializer_list<TRamoDeDemonstrativo> ARamos, std::string_view AColunaDoTipo,
                        std::string_view AOutras, std::int64_t AIdEmpregado);
/// The parameters that every branch gives.
void AlimentarDmDev(TdmDevDesligamentoIOP& ADmDev, const TOvraClientDataSet& ACds, std::string_view AColunaDoTipo);

/// The identifier of a demonstrative, as S-1210 forms it for the same run. ATipoCalcComplem and AIdDetConvocacao stand
/// only where the kind has them. EConvertError for a kind of payroll that is no number.
std::string FormarIdeDmDevDesligamento(const TdmDevDesligamentoIOP& ADmDev, std::int32_t ATipoCalcComplem,
                                       std::int64_t AIdDetConvocacao);

/// Whether the amounts are reported: not before periodic events began, nor for a worker who left by definitive
/// transfer.
bool ValidouEnvioDasVerbas(std::int64_t AIdEmpregado, TDateTime ADataDesligamento,
                           TDateTime ADataInicioEventosPeriodicos);

} // namespace tarvo::desligamento
