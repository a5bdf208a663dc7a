#include "imports/valores/UnOvraUtilsStrings.h"

#include <algorithm>
#include <array>

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

/// First and last code of the letters beyond ASCII. Latin script only, in which every name is registered here; the
/// combining accents count, since a decomposed letter is written with them.
struct TFaixa {
    char32_t Primeiro;
    char32_t Ultimo;
};
constexpr std::array<TFaixa, 8> LETRAS_ALEM_DO_ASCII{{{0xAA, 0xAA},
                                                      {0xB5, 0xB5},
                                                      {0xBA, 0xBA},
                                                      {0xC0, 0xD6},
                                                      {0xD8, 0xF6},
                                                      {0xF8, 0x2AF},
                                                      {0x300, 0x36F},
                                                      {0x1E00, 0x1EFF}}};

char32_t Codigo(std::string_view ACaractere)
{
    const auto LPrimeiro = static_cast<unsigned char>(ACaractere.front());
    if (ACaractere.size() == 1)
        return LPrimeiro;
    char32_t LCodigo = LPrimeiro & (0x7FU >> ACaractere.size());
    for (const char LByte : ACaractere.substr(1))
        LCodigo = (LCodigo << 6) | (static_cast<unsigned char>(LByte) & 0x3FU);
    return LCodigo;
}

bool EhLetra(char32_t ACodigo)
{
    if (ACodigo < 0x80)
        return (ACodigo >= 'A' && ACodigo <= 'Z') || (ACodigo >= 'a' && ACodigo <= 'z');
    return std::any_of(LETRAS_ALEM_DO_ASCII.begin(), LETRAS_ALEM_DO_ASCII.end(),
                       [&](const TFaixa& AFaixa) { return ACodigo >= AFaixa.Primeiro && ACodigo <= AFaixa.Ultimo; });
}

bool EhBranco(char32_t ACodigo) { return ACodigo == ' ' || (ACodigo >= '\t' && ACodigo <= '\r') || ACodigo == 0xA0; }

/// Calls AFazer with each character of the text in turn.
template <class T>
void PercorrerCaracteres(std::string_view AValor, T AFazer)
{
    while (!AValor.empty()) {
        const auto LTamanho = TamanhoDoCaractereUtf8(AValor);
        if (LTamanho > 0)
            AFazer(AValor.substr(0, LTamanho));
        AValor.remove_prefix(std::max<std::size_t>(LTamanho, 1));
    }
}

} // namespace

std::string TOvraUtilsStrings::LimparTexto(std::string_view AValor) const
{
    std::string LTexto;
    LTexto.reserve(AValor.size());
    bool LBranco = false;
    PercorrerCaracteres(AValor, [&](std::string_view ACaractere) {
        const auto LCodigo = Codigo(ACaractere);
        if (EhLetra(LCodigo) || EhDigito(LCodigo)) {
            if (LBranco && !LTexto.empty())
                LTexto += ' ';
            LBranco = false;
            LTexto += ACaractere;
        } else if (EhBranco(LCodigo)) {
            LBranco = true;
        }
    });
    return LTexto;
}

std::string TOvraUtilsStrings::RemoverCaracteres(std::string_view ACaracteres, std::string_view AValor) const
{
    std::string LTexto;
    LTexto.reserve(AValor.size());
    PercorrerCaracteres(AValor, [&](std::string_view ACaractere) {
        // A character's bytes are never the middle of another one's, so that a plain search finds whole characters.
        if (ACaracteres.find(ACaractere) == std::string_view::npos)
            LTexto += ACaractere;
    });
    return LTexto;
}

std::string TOvraUtilsStrings::SomenteNumeros(std::string_view AValor) const
{
    std::string LTexto(AValor);
    std::erase_if(LTexto, [](char AChar) { return AChar < '0' || AChar > '9'; });
    return LTexto;
}

} // namespace tarvo
