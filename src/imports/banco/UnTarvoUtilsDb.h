#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "imports/banco/UnOvraClientDataSet.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// An unopened dataset on the suite's connection, the one that is current when it opens.
std::unique_ptr<TOvraClientDataSetWithConnection> CriarOvraClientDataset();
/// The same on another connection, which must outlive the dataset.
std::unique_ptr<TOvraClientDataSetWithConnection> CriarOvraClientDataset(TOvraConnection& AConexao);

/// A date as the database's literal, dd.mm.yyyy, with ` hh:nn:ss` when it has a time of day; day 0 is 30.12.1899.
std::string FormatarDataDB(TDateTime AData, bool AComAspas);

/// A condition on a column from a comma text of ids, opened by the connective with one blank on each side of it:
/// ` AND TABLE.COLUMN IN (1,2)`. An empty list gives an empty text. Past the engine's limit the condition is split.
std::string FormatarListaParaClausulaIN(std::string_view ATabela, std::string_view ACampo, std::string_view ALista,
                                        std::string_view AOperador, bool ANegar = false);

/// The values of a column over all rows, joined by commas; nulls and empty texts are left out. The dataset then
/// stands on its first row again. EDatabaseError when the column isn't there.
std::string CriarListaDoClientDataset(TOvraClientDataSet& ACds, std::string_view ACampo);

} // namespace tarvo
