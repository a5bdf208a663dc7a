#pragma once

#include <string>
#include <string_view>

namespace tarvo {

/// Cleaning of texts, character by character of UTF-8; bytes that are no UTF-8 are dropped.
class TOvraUtilsStrings {
public:
    /// Leaves letters (accented too), digits and single blanks between them, trimmed: what the layouts accept.
    std::string LimparTexto(std::string_view AValor) const;
    /// The text without the characters that stand in ACaracteres.
    std::string RemoverCaracteres(std::string_view ACaracteres, std::string_view AValor) const;
    /// The decimal digits of a text: the form in which documents are compared.
    std::string SomenteNumeros(std::string_view AValor) const;
};

inline constexpr TOvraUtilsStrings GOvraUtilsStrings{};

} // namespace tarvo
