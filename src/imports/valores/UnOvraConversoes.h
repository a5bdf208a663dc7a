#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "imports/valores/UnOvraCurrency.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

// One fixed locale, Brazil's, whatever the host's: decimal comma, no thousands separator, dates day first.

/// A decimal digit of ASCII.
constexpr bool EhDigito(char32_t ACodigo) { return ACodigo >= '0' && ACodigo <= '9'; }
std::string_view Trim(std::string_view AValor);
std::string_view TrimRight(std::string_view AValor);
/// Case folding of ASCII letters only: names of columns, properties and options.
bool MesmoTexto(std::string_view A, std::string_view B);
std::string Maiusculas(std::string_view AValor);
std::string Minusculas(std::string_view AValor);
/// The text as a literal of a statement, between single quotes, those inside it doubled.
std::string QuotedStr(std::string_view AValor);

/// Surrounding blanks, one sign, decimal digits, in the range of int64; anything else is the default.
std::int64_t StrToInt64Def(std::string_view AValor, std::int64_t APadrao);
/// The same; nothing instead of a default.
std::optional<std::int64_t> TryStrToInt64(std::string_view AValor);
/// The same; EConvertError with the text instead of a default.
std::int64_t StrToInt64(std::string_view AValor);
/// As an integer, with one optional decimal comma and exponent; "10.5" is therefore the default.
long double StrToFloatDef(std::string_view AValor, long double APadrao);
/// The same; EConvertError with the text instead of a default.
long double StrToFloat(std::string_view AValor);
/// These two for what ends as a double: by way of the wider number a text may round to a neighbour of its own.
double StrToDoubleDef(std::string_view AValor, double APadrao);
double StrToDouble(std::string_view AValor);
/// dd/mm/yyyy or dd.mm.yy (00-49 is 2000-2049, 50-99 is 1950-1999) with an optional hh:nn[:ss].
/// EConvertError with the text when it is no real date, or blank.
TDateTime StrToDateTime(std::string_view AValor);
/// dd.mm.yyyy, with hh:nn:ss or without, as the library writes dates into statements; nothing for any other text, and
/// for what is no real moment.
std::optional<std::pair<TPartesDaData, TPartesDaHora>> LerDataDB(std::string_view AValor);
/// yyyy-mm-dd; nothing for any other text, and for what is no real day.
std::optional<TDateTime> LerDataIso(std::string_view AValor);
/// The same with a default.
TDateTime StrToDateTimeDef(std::string_view AValor, TDateTime APadrao);

std::string IntToStr(std::int64_t AValor);
/// dd/mm/yyyy; a time other than midnight adds hh:nn:ss.
std::string DateTimeToStr(TDateTime AData);
/// Shortest exact form with a decimal comma.
std::string FloatToStr(double AValor);
std::string FloatToStr(float AValor);
std::string CurrToStr(Currency AValor);
/// Text of AValor times ten to the power of AEscala (zero or negative), without trailing zeros.
std::string DecimalToStr(std::int64_t AValor, int AEscala, char ASeparador = ',');

/// Bytes of the well-formed UTF-8 character that starts the text; 0 when there is none.
std::size_t TamanhoDoCaractereUtf8(std::string_view AValor);
/// Characters of a well-formed UTF-8 text.
std::size_t QuantidadeDeCaracteresUtf8(std::string_view AValor);
/// True when the bytes are well-formed UTF-8.
bool Utf8Valido(std::string_view AValor);
/// The text itself when it is UTF-8; otherwise its bytes read as Windows-1252, as old databases without a
/// character set hold them.
std::string ParaUtf8(std::string_view AValor);

} // namespace tarvo
