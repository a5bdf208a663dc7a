#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::regras {

/// The place that an event describes: an establishment (SC00_FILIAL) or a department (SC00_DEPTO).
struct TLugar {
    bool EhDepto;
    std::int64_t Id;

    /// The configuration table of the place's own level.
    TTabelaDeConfiguracao Cfg() const { return EhDepto ? SC00_DEPARTAMENTOCFG : SC00_FILIALCFG; }
};

/// S-1005 and the suspended entities of S-1020: the establishment, and the department only where it is 0.
constexpr TLugar EstabelecimentoPrimeiro(std::int64_t AIDEstab, std::int64_t AIDDepto)
{
    return AIDEstab != 0 ? TLugar{false, AIDEstab} : TLugar{true, AIDDepto};
}
/// S-1020 otherwise: the department, and the establishment only where it is 0.
constexpr TLugar DepartamentoPrimeiro(std::int64_t AIDEstab, std::int64_t AIDDepto)
{
    return AIDDepto != 0 ? TLugar{true, AIDDepto} : TLugar{false, AIDEstab};
}

// Configuration rows in force at a date, the newest start first. Rows of one setting mustn't overlap where it stands as
// a single value in a larger statement: the engine refuses two. A row doesn't count on the day of its DATAFIM. AColunas
// is the select list as it stands.

/// Of an owner: `SELECT columns FROM TABLE WHERE ...`.
std::string SqlCfgDoDono(std::string_view AColunas, TTabelaDeConfiguracao ATabela, std::int64_t AIdDono,
                         TChaveDeConfiguracao AChave, TDateTime AData);
/// SC00_FILIALCFG of an establishment, or of the one that a department belongs to.
std::string SqlCfgDoEstab(std::string_view AColunas, TLugar ALugar, TChaveDeConfiguracao AChave, TDateTime AData);
/// SC00_EMPRESACFG of the company that the place belongs to.
std::string SqlCfgDaEmpresa(std::string_view AColunas, TLugar ALugar, TChaveDeConfiguracao AChave, TDateTime AData);

} // namespace tarvo::regras
