#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// One argument of Format: an integer or a text.
class TVarRec {
public:
    template <std::integral T>
    constexpr TVarRec(T AValor) : FInteiro(static_cast<std::int64_t>(AValor)), FEhTexto(false)
    {}
    constexpr TVarRec(std::string_view AValor) : FTexto(AValor), FEhTexto(true) {}
    TVarRec(const std::string& AValor) : FTexto(AValor), FEhTexto(true) {}
    constexpr TVarRec(const char* AValor) : FTexto(AValor), FEhTexto(true) {}

    bool EhTexto() const { return FEhTexto; }
    std::int64_t Inteiro() const { return FInteiro; }
    std::string_view Texto() const { return FTexto; }

private:
    std::int64_t FInteiro = 0;
    std::string_view FTexto;
    bool FEhTexto;
};

/// Fills a template: `%0:d` an integer, `%1:s` a text, `%%` a percent sign. Letters in either case; an argument may
/// be used many times or not at all; without an index (`%d`) the next one is taken. `%.7d` pads with zeros.
/// EConvertError when the template is malformed, an argument is missing or of the other kind.
std::string FormatarModelo(std::string_view AModelo, std::span<const TVarRec> AArgumentos);

template <class... T>
std::string Format(std::string_view AModelo, const T&... AArgumentos)
{
    const std::array<TVarRec, sizeof...(T)> LArgumentos{TVarRec(AArgumentos)...};
    return FormatarModelo(AModelo, LArgumentos);
}

/// A number in a mask: each `0` of the integer part is a digit filled with zeros, a longer number keeps all its
/// digits; `#` is a digit only where the number has it; a `.` in the mask sets the decimal comma, and the number is
/// rounded half away from zero to the digits after it.
std::string FormatFloat(std::string_view AMascara, double AValor);
/// The same for a whole number, exact to the last digit.
std::string FormatFloat(std::string_view AMascara, std::int64_t AValor);

/// A date in a mask: dd, mm, yyyy, yy, hh, nn, ss padded, d, m, h, n, s bare, letters in either case; any other
/// character stands for itself.
std::string FormatDateTime(std::string_view AMascara, TDateTime AData);

} // namespace tarvo
