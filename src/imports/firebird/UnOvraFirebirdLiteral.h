#pragma once

#include <vector>

#include "imports/banco/UnOvraFormaSql.h"
#include "imports/firebird/UnOvraFirebirdMensagem.h"

namespace tarvo::firebird {

/// Whether a literal means the same as a parameter that the engine describes so, whatever its value.
bool TipoCombina(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro);

/// Puts a literal into the message; false when this value doesn't fit the parameter, and has to run as it stands.
bool EscreverParametro(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro,
                       std::vector<unsigned char>& AMensagem);

} // namespace tarvo::firebird
