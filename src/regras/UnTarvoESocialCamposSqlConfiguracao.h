#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::regras {

/// Address of a configuration row.
struct TChaveDeConfiguracao {
    int Origem;
    int Especie;
    int Tp;
};

/// A configuration table, the column that says whose row it is, and its primary key.
struct TTabelaDeConfiguracao {
    std::string_view Nome;
    std::string_view ColunaDoDono;
    std::string_view ColunaDaChave = {};
};

inline constexpr TTabelaDeConfiguracao SC00_EMPRESACFG{"SC00_EMPRESACFG", "IDEMPRESA", "IDEMPRESACFG"};
inline constexpr TTabelaDeConfiguracao SC00_FILIALCFG{"SC00_FILIALCFG", "IDFILIAL", "IDFILIALCFG"};
inline constexpr TTabelaDeConfiguracao SC00_DEPARTAMENTOCFG{"SC00_DEPARTAMENTOCFG", "IDDEPARTAMENTO",
                                                            "IDDEPARTAMENTOCFG"};
inline constexpr TTabelaDeConfiguracao SC00_EMPREGADOCFG{"SC00_EMPREGADOCFG", "IDEMPREGADO", "IDEMPREGADOCFG"};

/// How a row's end is compared with the date. The tables differ, and the difference is meant.
enum class TFimDaValidade {
    /// DATAFIM >= date: the last day still counts.
    Inclusive,
    /// DATAFIM > date: the last day counts no more.
    Exclusive,
};

/// `TABLE.OWNER = id AND TABLE.ORIGEM = o AND TABLE.ESPECIE = e AND TABLE.TP = t`.
std::string CondicaoDaChave(TTabelaDeConfiguracao ATabela, std::int64_t AIdDono, TChaveDeConfiguracao AChave);
/// The same without the owner, for a join that brings its own keys.
std::string CondicaoDaChave(TTabelaDeConfiguracao ATabela, TChaveDeConfiguracao AChave);
/// `TABLE.DATAINICIO <= date AND (TABLE.DATAFIM >= date OR TABLE.DATAFIM IS NULL)`.
std::string CondicaoDaValidade(TTabelaDeConfiguracao ATabela, TDateTime AData,
                               TFimDaValidade AFim = TFimDaValidade::Inclusive);
/// CondicaoDaChave without the owner AND CondicaoDaValidade: the conditions of a join to the rows in force.
std::string CondicaoVigente(TTabelaDeConfiguracao ATabela, TChaveDeConfiguracao AChave, TDateTime AData,
                            TFimDaValidade AFim = TFimDaValidade::Inclusive);
/// `IIF(validity, 0, 1), TABLE.DATAINICIO DESC`: for a statement that doesn't ask for the validity, the rows in force at
/// the date before the others, the newest start first. The primary key follows it.
std::string OrdemDaValidade(TTabelaDeConfiguracao ATabela, TDateTime AData);
/// The row in force at a date, the newest start first: `SELECT FIRST 1 columns FROM TABLE WHERE ... ORDER BY
/// TABLE.DATAINICIO DESC, TABLE.KEY`. AColunas is the select list as it stands.
std::string SqlConfiguracaoVigente(std::string_view AColunas, TTabelaDeConfiguracao ATabela, std::int64_t AIdDono,
                                   TChaveDeConfiguracao AChave, TDateTime AData,
                                   TFimDaValidade AFim = TFimDaValidade::Inclusive);

} // namespace tarvo::regras
