#include "imports/banco/UnOvraFormaSql.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

/// Longer IN lists would give a shape of their own for each length; they stay as they are.
constexpr std::size_t MAXIMO_DE_ITENS_NO_IN = 8;

enum class TTipoToken { Palavra, Numero, Texto, Operador, Abre, Fecha, Virgula, Outro, Fim };

struct TToken {
    TTipoToken Tipo = TTipoToken::Fim;
    std::size_t Posicao = 0;
    std::size_t Tamanho = 0;
};

/// Every byte of every statement passes here: a table, not comparisons.
constexpr auto LETRAS = [] {
    std::array<bool, 256> LTabela{};
    for (unsigned i = 0; i < LTabela.size(); ++i)
        LTabela[i] = (i >= 'A' && i <= 'Z') || (i >= 'a' && i <= 'z') || i == '_' || i == '$' || i >= 0x80;
    return LTabela;
}();
constexpr auto LETRAS_E_DIGITOS = [] {
    auto LTabela = LETRAS;
    for (unsigned i = '0'; i <= '9'; ++i)
        LTabela[i] = true;
    return LTabela;
}();
bool EhLetra(char AChar) { return LETRAS[static_cast<unsigned char>(AChar)]; }
/// Where a literal, a quoted name or a comment may begin.
constexpr auto PARADAS = [] {
    std::array<bool, 256> LTabela{};
    for (const unsigned char LChar : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '\'', '"', '-', '/'})
        LTabela[LChar] = true;
    return LTabela;
}();

class TAnalisadorLexico {
public:
    explicit TAnalisadorLexico(std::string_view ASql) : FSql(ASql) {}

    TToken Proximo()
    {
        PularBrancosEComentarios();
        TToken LToken{TTipoToken::Fim, FPosicao, 0};
        if (FPosicao >= FSql.size())
            return LToken;
        const char LChar = FSql[FPosicao];
        if (EhLetra(LChar))
            LToken.Tipo = Palavra();
        else if (EhDigito(LChar))
            LToken.Tipo = Numero();
        else if (LChar == '\'')
            LToken.Tipo = Entre('\'') ? TTipoToken::Texto : TTipoToken::Outro;
        else if (LChar == '"')
            LToken.Tipo = Entre('"') ? TTipoToken::Palavra : TTipoToken::Outro;
        else
            LToken.Tipo = Simbolo(LChar);
        LToken.Tamanho = FPosicao - LToken.Posicao;
        return LToken;
    }

    /// The next Numero or Texto, or Fim: the same tokens as by Proximo, without telling apart what lies between.
    TToken ProximoLiteral()
    {
        auto LFimDoNumero = FPosicao;
        for (;;) {
            while (FPosicao < FSql.size() && !PARADAS[static_cast<unsigned char>(FSql[FPosicao])])
                ++FPosicao;
            TToken LToken{TTipoToken::Fim, FPosicao, 0};
            if (FPosicao >= FSql.size())
                return LToken;
            const bool LEmPalavra =
                FPosicao != LFimDoNumero && LETRAS_E_DIGITOS[static_cast<unsigned char>(FSql[FPosicao - 1])];
            if (EhDigito(FSql[FPosicao])) {
                if (LEmPalavra) {
                    ++FPosicao;
                    continue;
                }
                LToken.Tipo = Numero();
                LFimDoNumero = FPosicao;
            } else if (FSql[FPosicao] == '\'') {
                LToken.Tipo = Entre('\'') && !LEmPalavra ? TTipoToken::Texto : TTipoToken::Outro;
            } else if (FSql[FPosicao] == '"') {
                Entre('"');
            } else if (!PularComentario()) {
                ++FPosicao;
            }
            LToken.Tamanho = FPosicao - LToken.Posicao;
            if (LToken.Tipo == TTipoToken::Numero || LToken.Tipo == TTipoToken::Texto)
                return LToken;
        }
    }

private:
    void PularBrancosEComentarios()
    {
        do
            while (FPosicao < FSql.size() && static_cast<unsigned char>(FSql[FPosicao]) <= ' ')
                ++FPosicao;
        while (PularComentario());
    }

    bool PularComentario()
    {
        const auto LResto = FSql.substr(FPosicao);
        if (LResto.starts_with("--")) {
            FPosicao = std::min(FSql.find('\n', FPosicao), FSql.size());
            return true;
        }
        if (LResto.starts_with("/*")) {
            const auto LFim = FSql.find("*/", FPosicao + 2);
            FPosicao = LFim == std::string_view::npos ? FSql.size() : LFim + 2;
            return true;
        }
        return false;
    }

    TTipoToken Palavra()
    {
        while (FPosicao < FSql.size() && LETRAS_E_DIGITOS[static_cast<unsigned char>(FSql[FPosicao])])
            ++FPosicao;
        // A letter right before a quote introduces another kind of literal (X'..', _UTF8'..'): it is no plain text.
        if (FPosicao < FSql.size() && FSql[FPosicao] == '\'') {
            Entre('\'');
            return TTipoToken::Outro;
        }
        return TTipoToken::Palavra;
    }

    TTipoToken Numero()
    {
        const auto LInicio = FPosicao;
        while (FPosicao < FSql.size() && EhDigito(FSql[FPosicao]))
            ++FPosicao;
        // A fraction or an exponent is no integer. A word may follow without a blank: the engine reads
        // `FIRST 1FP_X` as the number and the name.
        bool LInteiro = FPosicao - LInicio <= 18;
        if (FPosicao < FSql.size() && FSql[FPosicao] == '.') {
            LInteiro = false;
            ++FPosicao;
            while (FPosicao < FSql.size() && EhDigito(FSql[FPosicao]))
                ++FPosicao;
        }
        const auto LExpoente = FPosicao;
        if (FPosicao < FSql.size() && (FSql[FPosicao] == 'e' || FSql[FPosicao] == 'E')) {
            auto LDepois = FPosicao + 1;
            if (LDepois < FSql.size() && (FSql[LDepois] == '+' || FSql[LDepois] == '-'))
                ++LDepois;
            while (LDepois < FSql.size() && EhDigito(FSql[LDepois]))
                FPosicao = ++LDepois;
            LInteiro = LInteiro && FPosicao == LExpoente;
        }
        if (FPosicao < FSql.size() && EhLetra(FSql[FPosicao]))
            LInteiro = false;
        return LInteiro ? TTipoToken::Numero : TTipoToken::Outro;
    }

    /// Passes a quoted run; doubled quotes belong to it. False when it has no end.
    bool Entre(char AAspa)
    {
        for (++FPosicao; FPosicao < FSql.size(); ++FPosicao) {
            if (FSql[FPosicao] != AAspa)
                continue;
            ++FPosicao;
            if (FPosicao >= FSql.size() || FSql[FPosicao] != AAspa)
                return true;
        }
        return false;
    }

    TTipoToken Simbolo(char AChar)
    {
        ++FPosicao;
        switch (AChar) {
        case '(':
            return TTipoToken::Abre;
        case ')':
            return TTipoToken::Fecha;
        case ',':
            return TTipoToken::Virgula;
        case '=':
            return TTipoToken::Operador;
        case '<':
        case '>':
        case '!':
        case '^':
        case '~':
            if (FPosicao < FSql.size() && (FSql[FPosicao] == '=' || FSql[FPosicao] == '>' || FSql[FPosicao] == '<'))
                ++FPosicao;
            return TTipoToken::Operador;
        default:
            return TTipoToken::Outro;
        }
    }

    std::string_view FSql;
    std::size_t FPosicao = 0;
};

/// What a stretch of a statement is, as far as its literals go.
enum class TClausula {
    /// Select list, GROUP BY, ORDER BY, a function's arguments: literals stay.
    Fixa,
    /// FROM: joined tables; a parenthesis after a name is a procedure's.
    De,
    /// WHERE, ON, HAVING: comparisons.
    Predicado,
    /// The arguments of a selected procedure.
    Procedimento,
};

struct TNivel {
    TClausula Clausula = TClausula::Fixa;
    /// Open CASEs; what stands inside stays.
    int Casos = 0;
};

class TAnalisadorDeForma {
public:
    explicit TAnalisadorDeForma(std::string_view ASql) : FSql(ASql)
    {
        TAnalisadorLexico LLexico(ASql);
        do
            FTokens.push_back(LLexico.Proximo());
        while (FTokens.back().Tipo != TTipoToken::Fim);
    }

    /// Where the literals stand that may be lifted, in their order.
    std::vector<std::size_t> Analisar()
    {
        if (!EhPalavra(0, "SELECT") && !EhPalavra(0, "WITH"))
            return {};
        FNiveis.push_back({});
        for (FIndice = 0; FTokens[FIndice].Tipo != TTipoToken::Fim && !FNiveis.empty(); ++FIndice) {
            switch (FTokens[FIndice].Tipo) {
            case TTipoToken::Palavra:
                Palavra();
                break;
            case TTipoToken::Abre:
                Abrir();
                break;
            case TTipoToken::Fecha:
                FNiveis.pop_back();
                break;
            case TTipoToken::Numero:
            case TTipoToken::Texto:
                if (PodeLevantar(FIndice))
                    Levantar(FIndice);
                break;
            default:
                break;
            }
        }
        // A parenthesis without a partner: the engine has to say so about the text as it stands.
        if (FNiveis.size() != 1)
            return {};
        return std::move(FLevantados);
    }

private:
    std::string_view Texto(std::size_t AIndice) const
    {
        return FSql.substr(FTokens[AIndice].Posicao, FTokens[AIndice].Tamanho);
    }
    bool EhPalavra(std::size_t AIndice, std::string_view APalavra) const
    {
        return AIndice < FTokens.size() && FTokens[AIndice].Tipo == TTipoToken::Palavra &&
               MesmoTexto(Texto(AIndice), APalavra);
    }
    bool EhTipo(std::size_t AIndice, TTipoToken ATipo) const { return FTokens[AIndice].Tipo == ATipo; }
    TNivel& Nivel() { return FNiveis.back(); }

    void Palavra()
    {
        const auto LPalavra = Maiusculas(Texto(FIndice));
        if (FIndice > 0 && FTokens[FIndice - 1].Tipo == TTipoToken::Outro && Texto(FIndice - 1) == ".")
            return; // a column of that name
        if (LPalavra == "CASE")
            ++Nivel().Casos;
        else if (LPalavra == "END" && Nivel().Casos > 0)
            --Nivel().Casos;
        else if (LPalavra == "SELECT" || LPalavra == "GROUP" || LPalavra == "ORDER" || LPalavra == "UNION" ||
                 LPalavra == "ROWS" || LPalavra == "PLAN" || LPalavra == "WITH" || LPalavra == "OFFSET" ||
                 LPalavra == "FETCH")
            Nivel().Clausula = TClausula::Fixa;
        else if (LPalavra == "FROM" || LPalavra == "JOIN")
            EntrarEmFrom();
        else if (LPalavra == "WHERE" || LPalavra == "ON" || LPalavra == "HAVING")
            Nivel().Clausula = TClausula::Predicado;
    }

    void EntrarEmFrom()
    {
        // EXTRACT(... FROM ...), TRIM(... FROM ...), SUBSTRING(... FROM ...) never get here as a clause: a function's
        // arguments are a level of their own, which stays as it is.
        if (!FFuncao.empty() && FFuncao.back() == FNiveis.size())
            return;
        Nivel().Clausula = TClausula::De;
    }

    void Abrir()
    {
        const TNivel LDeFora = Nivel();
        TNivel LNovo;
        const bool LSubconsulta = EhPalavra(FIndice + 1, "SELECT") || EhPalavra(FIndice + 1, "WITH");
        const bool LDepoisDeNome = FIndice > 0 && EhTipo(FIndice - 1, TTipoToken::Palavra) && !EhConectivo(FIndice - 1);
        if (LSubconsulta || LDeFora.Casos > 0) {
            LNovo.Clausula = TClausula::Fixa;
            LNovo.Casos = LSubconsulta ? 0 : LDeFora.Casos;
        } else if (FIndice > 0 && EhPalavra(FIndice - 1, "IN")) {
            LNovo.Clausula = TClausula::Fixa;
            if (LDeFora.Clausula == TClausula::Predicado)
                LevantarListaDoIn();
        } else if (LDepoisDeNome) {
            LNovo.Clausula = LDeFora.Clausula == TClausula::De ? TClausula::Procedimento : TClausula::Fixa;
            if (LNovo.Clausula == TClausula::Fixa) {
                FNiveis.push_back(LNovo);
                while (!FFuncao.empty() && FFuncao.back() >= FNiveis.size())
                    FFuncao.pop_back();
                FFuncao.push_back(FNiveis.size());
                return;
            }
        } else {
            LNovo.Clausula = LDeFora.Clausula; // grouping
        }
        FNiveis.push_back(LNovo);
        while (!FFuncao.empty() && FFuncao.back() >= FNiveis.size())
            FFuncao.pop_back();
    }

    /// Words after which a parenthesis groups, and is no call.
    bool EhConectivo(std::size_t AIndice) const
    {
        static constexpr std::string_view CONECTIVOS[] = {
            "AND",  "OR", "NOT",     "ON",     "WHERE", "HAVING", "FROM", "JOIN", "EXISTS", "WHEN", "THEN",
            "ELSE", "AS", "BETWEEN", "SELECT", "BY",    "ANY",    "ALL",  "SOME", "IS",     "UNION"};
        return std::any_of(std::begin(CONECTIVOS), std::end(CONECTIVOS),
                           [&](std::string_view APalavra) { return EhPalavra(AIndice, APalavra); });
    }

    /// The literal is the whole right side: nothing that would join it into an expression follows.
    bool TerminaOperando(std::size_t ADepois) const
    {
        switch (FTokens[ADepois].Tipo) {
        case TTipoToken::Fim:
        case TTipoToken::Fecha:
            return true;
        case TTipoToken::Palavra: {
            static constexpr std::string_view SEGUINTES[] = {"AND",    "OR",   "ORDER", "GROUP",  "UNION", "LEFT",
                                                             "INNER",  "JOIN", "RIGHT", "FULL",   "CROSS", "WHERE",
                                                             "HAVING", "ROWS", "PLAN",  "OFFSET", "FETCH", "FOR"};
            return std::any_of(std::begin(SEGUINTES), std::end(SEGUINTES),
                               [&](std::string_view APalavra) { return EhPalavra(ADepois, APalavra); });
        }
        default:
            return Texto(ADepois) == ";";
        }
    }

    bool PodeLevantar(std::size_t AIndice)
    {
        if (Nivel().Casos > 0 || AIndice == 0)
            return false;
        const auto LAntes = AIndice - 1;
        if (Nivel().Clausula == TClausula::Procedimento)
            return (EhTipo(LAntes, TTipoToken::Abre) || EhTipo(LAntes, TTipoToken::Virgula)) &&
                   (EhTipo(AIndice + 1, TTipoToken::Fecha) || EhTipo(AIndice + 1, TTipoToken::Virgula));
        if (Nivel().Clausula != TClausula::Predicado)
            return false;
        if (EhPalavra(LAntes, "BETWEEN"))
            return EhPalavra(AIndice + 1, "AND");
        if (EhPalavra(LAntes, "AND") && LAntes >= 2 && EhPalavra(LAntes - 2, "BETWEEN"))
            return TerminaOperando(AIndice + 1);
        // On the left of the operator there must be something with a type of its own: a column or a call. Two
        // literals (1=1) have none.
        return EhTipo(LAntes, TTipoToken::Operador) && LAntes > 0 &&
               (EhTipo(LAntes - 1, TTipoToken::Palavra) || EhTipo(LAntes - 1, TTipoToken::Fecha)) &&
               TerminaOperando(AIndice + 1);
    }

    void LevantarListaDoIn()
    {
        std::vector<std::size_t> LItens;
        auto i = FIndice + 1;
        for (;; i += 2) {
            if (!EhTipo(i, TTipoToken::Numero) && !EhTipo(i, TTipoToken::Texto))
                return;
            LItens.push_back(i);
            if (EhTipo(i + 1, TTipoToken::Fecha))
                break;
            if (!EhTipo(i + 1, TTipoToken::Virgula))
                return;
        }
        if (LItens.size() <= MAXIMO_DE_ITENS_NO_IN)
            for (const auto LItem : LItens)
                Levantar(LItem);
    }

    void Levantar(std::size_t AIndice) { FLevantados.push_back(FTokens[AIndice].Posicao); }

    std::string_view FSql;
    std::vector<TToken> FTokens;
    std::vector<TNivel> FNiveis;
    /// Depths that are a function's arguments.
    std::vector<std::size_t> FFuncao;
    std::vector<std::size_t> FLevantados;
    std::size_t FIndice = 0;
};

/// The text with something else for each of its literals.
template <class TMarcador>
std::string Substituir(std::string_view ASql, const std::vector<TLiteralSql>& ALiterais, TMarcador AMarcador)
{
    std::string LTexto;
    LTexto.reserve(ASql.size());
    std::size_t LPosicao = 0;
    for (std::size_t i = 0; i < ALiterais.size(); ++i) {
        LTexto.append(ASql, LPosicao, ALiterais[i].Posicao - LPosicao);
        LTexto.append(AMarcador(i));
        LPosicao = ALiterais[i].Posicao + ALiterais[i].Tamanho;
    }
    LTexto.append(ASql, LPosicao);
    return LTexto;
}

} // namespace

bool TemParametro(std::string_view ASql)
{
    TAnalisadorLexico LLexico(ASql);
    for (auto LToken = LLexico.Proximo(); LToken.Tipo != TTipoToken::Fim; LToken = LLexico.Proximo())
        if (ASql[LToken.Posicao] == '?')
            return true;
    return false;
}

TFormaSql LerFormaSql(std::string_view ASql)
{
    TFormaSql LForma;
    LForma.Literais.reserve(64);
    TAnalisadorLexico LLexico(ASql);
    for (auto LToken = LLexico.ProximoLiteral(); LToken.Tipo != TTipoToken::Fim; LToken = LLexico.ProximoLiteral())
        LForma.Literais.push_back({LToken.Posicao, LToken.Tamanho, LToken.Tipo == TTipoToken::Texto});
    // Control characters stand in no statement of ours, so that a key never equals another statement's text.
    LForma.Chave = Substituir(ASql, LForma.Literais, [&](std::size_t AIndice) -> std::string_view {
        return LForma.Literais[AIndice].EhTexto ? "\x02" : "\x01";
    });
    return LForma;
}

TValorLiteralSql LerLiteralSql(std::string_view ASql, const TLiteralSql& ALiteral)
{
    TValorLiteralSql LValor;
    LValor.EhTexto = ALiteral.EhTexto;
    const auto LTexto = ASql.substr(ALiteral.Posicao, ALiteral.Tamanho);
    if (!LValor.EhTexto) {
        std::from_chars(LTexto.data(), LTexto.data() + LTexto.size(), LValor.Inteiro);
        return LValor;
    }
    LValor.Texto.reserve(LTexto.size());
    for (std::size_t i = 1; i + 1 < LTexto.size(); ++i) {
        LValor.Texto += LTexto[i];
        if (LTexto[i] == '\'')
            ++i;
    }
    return LValor;
}

std::vector<bool> LiteraisLevantaveis(std::string_view ASql, const TFormaSql& AForma)
{
    const auto LLevantados = TAnalisadorDeForma(ASql).Analisar();
    std::vector<bool> LLevantaveis(AForma.Literais.size(), false);
    for (std::size_t i = 0; i < LLevantaveis.size(); ++i)
        LLevantaveis[i] = std::binary_search(LLevantados.begin(), LLevantados.end(), AForma.Literais[i].Posicao);
    return LLevantaveis;
}

std::string MontarSqlComParametros(std::string_view ASql, const TFormaSql& AForma, const std::vector<bool>& ALevantar)
{
    return Substituir(ASql, AForma.Literais, [&](std::size_t AIndice) -> std::string_view {
        if (ALevantar[AIndice])
            return "?";
        return ASql.substr(AForma.Literais[AIndice].Posicao, AForma.Literais[AIndice].Tamanho);
    });
}

} // namespace tarvo
