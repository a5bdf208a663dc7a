#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

class TOvraConnection;

/// The statements of a script: ended by a semicolon, or by what the last `SET TERM` said; comments between
/// statements and empty statements are dropped. EConvertError for a text or a comment that has no end.
std::vector<std::string> SepararScriptSql(std::string_view AScript);

/// Runs a script statement by statement in the connection's transaction and confirms it at the end (a script of
/// tables is confirmed before the next one uses them). EDatabaseError with the engine's text and the statement's
/// first line.
void ExecutarScriptSql(TOvraConnection& AConexao, std::string_view AScript);

} // namespace tarvo
