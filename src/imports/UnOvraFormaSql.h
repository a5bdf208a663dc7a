#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvo {

/// A literal of a statement that may travel as a parameter.
struct TLiteralSql {
    /// Where it stands in the text, quotes included.
    std::size_t Posicao = 0;
    std::size_t Tamanho = 0;
    bool EhTexto = false;
    std::int64_t Inteiro = 0;
    /// A text without its quotes, doubled quotes undone.
    std::string Texto;
};

/// A statement apart from the literals that may change from one use to the next: two statements of one shape differ
/// in nothing but those literals' values.
struct TFormaSql {
    /// The text with a marker for each literal, which tells an integer from a text.
    std::string Chave;
    std::vector<TLiteralSql> Literais;
};

/// Finds the literals of a SELECT that the engine itself would take as parameters without another meaning: whole
/// numbers and texts that stand alone on the right of a comparison, in a BETWEEN, in a short IN list or as arguments
/// of a selected procedure. Never in a select list, a function's arguments, a CASE, a LIKE, GROUP BY or ORDER BY.
/// What is no plain SELECT (an EXECUTE BLOCK, an UPDATE) has no literals to lift, and its key is its text.
TFormaSql AnalisarFormaSql(std::string_view ASql);

/// AnalisarFormaSql with a memory: which literals of a statement may be lifted depends on its text without them, and
/// is found out once.
class TFormasSql {
public:
    TFormaSql Analisar(std::string_view ASql);
    void Esquecer() { FLevantaveis.clear(); }

private:
    /// By the text without any literal, for each literal whether it may be lifted.
    std::unordered_map<std::string, std::vector<bool>> FLevantaveis;
};

/// The text with `?` for the literals whose place in ALevantar is true.
std::string MontarSqlComParametros(std::string_view ASql, const TFormaSql& AForma, const std::vector<bool>& ALevantar);

} // namespace tarvo
