#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::rural {

/// The purchases of an establishment in a period, its first and last day included.
struct TComprasRurais {
    std::int64_t IdFilial;
    TDateTime DataInicio;
    TDateTime DataFim;
};

/// The list that the filter of the notes' model compares with.
enum class TFiltroDoModelo { Modelos, Cfops };

/// Kind and number of inscription of the establishment: CAEPF, else CEI, else CNPJ.
std::string SqlEstabelecimentoAdquirente(std::int64_t AIdFilial);

/// FROM and WHERE of the purchases in the own payroll, ready for a further condition.
std::string ComprasDaFolha(const TComprasRurais& ACompras);
/// The same of one exemption; no value counts as 2.
std::string ComprasDaFolha(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta);

// The statements over the sibling system's entry notes, the same whichever database they are in.

/// PRODUCAOISENTA and VALOR of each kind of acquisition.
std::string SqlTpAquisBrenco(const TComprasRurais& ACompras);
/// VALOR of a kind of acquisition.
std::string SqlTotalBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta);
/// CNPJ of each producer.
std::string SqlProdutoresBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta);
/// CNPJ, INDOPCCP and VLRBRUTO of a producer.
std::string SqlProdutorBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta,
                              std::string_view AInscricao);
/// VLRRETENCAO and ALIQUOTA (percent, the average) booked for a producer; always one row.
std::string SqlRetencaoBrenco(const TComprasRurais& ACompras, std::int32_t AProducaoIsenta, std::string_view AInscricao,
                              TFiltroDoModelo AFiltro = TFiltroDoModelo::Modelos);

} // namespace tarvo::rural
