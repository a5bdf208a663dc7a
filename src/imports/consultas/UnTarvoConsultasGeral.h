#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "imports/UnTarvoTypesCalculos.h"
#include "imports/banco/UnOvraClientDataSet.h"

namespace tarvo {

/// Queries on the suite's connection. Each raises EDatabaseError with the engine's text, and Exception when the host
/// has set no connection.
class TTarvoConsultasGeral {
public:
    /// Runs a SELECT; the dataset stands on the first row.
    static TDataset BuscarRegistros(std::string_view ASql);
    /// The same for heavy statements that are read once from the first row to the last.
    static TDataset BuscarRegistrosSomenteLeitura(std::string_view ASql);
    /// Runs a SELECT into a dataset, which is created when it is null.
    static void BuscarRegistrosBD(TDataset& ACds, std::string_view ASql);
    /// True when the statement returns a row.
    static bool EncontrouRegistros(std::string_view ASql);

    /// First row of `SELECT ACampo FROM ATabela AWhere` as text, empty when there is none. AWhere brings its keyword.
    static std::string BuscarValor(std::string_view ATabela, std::string_view ACampo, std::string_view AWhere);
    /// First column of the first row of a statement; empty, 0 or unset when there is no row or it is null.
    static std::string BuscarTexto(std::string_view ASql);
    static std::int64_t BuscarInteiro(std::string_view ASql);
    static TDateTime BuscarData(std::string_view ASql);
    /// First column of every row of a statement, as ids; a null is 0.
    static std::vector<std::int64_t> BuscarListaDeIds(std::string_view ASql);

    /// Runs the text that fits the company's way of splitting its guides: the first for a company that splits
    /// nothing, otherwise the second, which goes through the break table.
    static TDataset BuscarCalculoEventoESocial(TTipoQuebraGpsGfip ATipoQuebra, std::string_view ASqlSemQuebra,
                                               std::string_view ASqlComQuebra);
    /// The amount that a rubric takes for the eSocial at a date: its base or its value, by VerbaUsaBase.
    static Currency BuscarValorVerbaParaESocial(std::int64_t AIDVerba, std::string_view AFormula, Currency ABase,
                                                Currency AValor, TDateTime AData);
    /// True for the natures 9905, 9930, 9931 and 9932, of which the event shows the base, unless the formula is one of
    /// the bases that are shown by their value all the same.
    static bool VerbaUsaBase(std::int32_t ANatRubr, std::string_view AFormula);

    /// The service provider (the doctor) of a medical certificate; 0 when there is none.
    static std::int64_t BuscarIdPrestadorPeloIDSituacaoAtestado(std::int64_t AIdSituacao);
};

} // namespace tarvo
