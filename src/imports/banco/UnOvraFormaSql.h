#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

/// Where a whole number or a text stands in a statement, quotes included.
struct TLiteralSql {
    std::size_t Posicao = 0;
    std::size_t Tamanho = 0;
    bool EhTexto = false;
};

/// A statement apart from its literals: two statements of one shape differ in nothing but the literals' values.
struct TFormaSql {
    /// The text with a marker for each literal, which tells a number from a text.
    std::string Chave;
    std::vector<TLiteralSql> Literais;
};

/// The value of a literal.
struct TValorLiteralSql {
    bool EhTexto = false;
    std::int64_t Inteiro = 0;
    /// Without its quotes, doubled quotes undone.
    std::string Texto;
};

/// Whether a `?` stands in it outside of texts, quoted names and comments.
bool TemParametro(std::string_view ASql);

TFormaSql LerFormaSql(std::string_view ASql);
TValorLiteralSql LerLiteralSql(std::string_view ASql, const TLiteralSql& ALiteral);

/// For each literal of a shape whether the engine would take it as a parameter without another meaning. True for what
/// stands alone on the right of a comparison, in a BETWEEN, in a short IN list or as arguments of a selected procedure;
/// never in a select list, a function's arguments, a CASE, a LIKE, GROUP BY or ORDER BY, nor in what is no plain SELECT
/// (an EXECUTE BLOCK, an UPDATE). It depends on the shape alone.
std::vector<bool> LiteraisLevantaveis(std::string_view ASql, const TFormaSql& AForma);

/// The text with `?` for the literals whose place in ALevantar is true.
std::string MontarSqlComParametros(std::string_view ASql, const TFormaSql& AForma, const std::vector<bool>& ALevantar);

} // namespace tarvo
