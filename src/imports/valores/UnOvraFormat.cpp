#include "imports/valores/UnOvraFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

std::string ComZeros(std::uint64_t AValor, std::size_t ALargura)
{
    auto LTexto = std::to_string(AValor);
    if (LTexto.size() < ALargura)
        LTexto.insert(0, ALargura - LTexto.size(), '0');
    return LTexto;
}

std::uint64_t Modulo(std::int64_t AValor)
{
    const auto LValor = static_cast<std::uint64_t>(AValor);
    return AValor < 0 ? 0 - LValor : LValor;
}

struct TMascaraNumerica {
    std::size_t Inteiros = 0;
    std::size_t DecimaisObrigatorias = 0;
    std::size_t Decimais = 0;
};

TMascaraNumerica LerMascara(std::string_view AMascara)
{
    TMascaraNumerica LMascara;
    bool LDepoisDoPonto = false;
    for (const char LChar : AMascara) {
        switch (LChar) {
        case '0':
            if (LDepoisDoPonto)
                LMascara.DecimaisObrigatorias = ++LMascara.Decimais;
            else
                ++LMascara.Inteiros;
            break;
        case '#':
            if (LDepoisDoPonto)
                ++LMascara.Decimais;
            break;
        case '.':
            LDepoisDoPonto = true;
            break;
        default:
            throw EConvertError("Máscara numérica inválida: '" + std::string(AMascara) + "'");
        }
    }
    return LMascara;
}

} // namespace

std::string FormatarModelo(std::string_view AModelo, std::span<const TVarRec> AArgumentos)
{
    const auto Falhar = [&](const char* AMotivo) -> void {
        throw EConvertError("Formato '" + std::string(AModelo) + "' inválido: " + AMotivo);
    };
    std::string LResultado;
    LResultado.reserve(AModelo.size() + AArgumentos.size() * 12);
    std::size_t LProximo = 0;
    std::size_t i = 0;
    const auto LerNumero = [&](std::size_t& ANumero) {
        const auto [LFim, LErro] = std::from_chars(AModelo.data() + i, AModelo.data() + AModelo.size(), ANumero);
        if (LErro == std::errc::result_out_of_range)
            Falhar("número grande demais");
        const auto LLidos = static_cast<std::size_t>(LFim - (AModelo.data() + i));
        i += LLidos;
        return LLidos > 0;
    };
    while (i < AModelo.size()) {
        const auto LPercentual = AModelo.find('%', i);
        LResultado.append(AModelo.substr(i, LPercentual - i));
        if (LPercentual == std::string_view::npos)
            break;
        i = LPercentual + 1;
        if (i < AModelo.size() && AModelo[i] == '%') {
            LResultado += '%';
            ++i;
            continue;
        }
        bool LAEsquerda = false;
        std::size_t LLargura = 0;
        std::size_t LPrecisao = std::string_view::npos;
        std::size_t LNumero = 0;
        if (LerNumero(LNumero)) {
            if (i < AModelo.size() && AModelo[i] == ':') {
                LProximo = LNumero;
                ++i;
            } else {
                LLargura = LNumero;
            }
        }
        if (i < AModelo.size() && AModelo[i] == '-') {
            LAEsquerda = true;
            ++i;
        }
        if (i < AModelo.size() && EhDigito(AModelo[i]))
            LerNumero(LLargura);
        if (i < AModelo.size() && AModelo[i] == '.') {
            ++i;
            LPrecisao = 0;
            LerNumero(LPrecisao);
        }
        if (LLargura > 4096 || (LPrecisao != std::string_view::npos && LPrecisao > 4096))
            Falhar("largura grande demais");
        if (i >= AModelo.size())
            Falhar("termina no meio de um argumento");
        const char LTipo = AModelo[i++];
        if (LProximo >= AArgumentos.size())
            Falhar("argumento ausente");
        const TVarRec& LArgumento = AArgumentos[LProximo++];
        std::string LTexto;
        switch (LTipo) {
        case 'd':
        case 'D':
            if (LArgumento.EhTexto())
                Falhar("texto onde se espera um inteiro");
            LTexto = ComZeros(Modulo(LArgumento.Inteiro()), LPrecisao == std::string_view::npos ? 0 : LPrecisao);
            if (LArgumento.Inteiro() < 0)
                LTexto.insert(LTexto.begin(), '-');
            break;
        case 's':
        case 'S':
            if (!LArgumento.EhTexto())
                Falhar("inteiro onde se espera um texto");
            LTexto = LArgumento.Texto().substr(0, LPrecisao);
            break;
        default:
            Falhar("letra desconhecida");
        }
        if (LTexto.size() < LLargura)
            LTexto.insert(LAEsquerda ? LTexto.size() : 0, LLargura - LTexto.size(), ' ');
        LResultado += LTexto;
    }
    return LResultado;
}

std::string FormatFloat(std::string_view AMascara, std::int64_t AValor)
{
    const auto LMascara = LerMascara(AMascara);
    auto LTexto = ComZeros(Modulo(AValor), LMascara.Inteiros);
    if (LMascara.DecimaisObrigatorias > 0)
        LTexto += "," + std::string(LMascara.DecimaisObrigatorias, '0');
    return AValor < 0 ? "-" + LTexto : LTexto;
}

std::string FormatFloat(std::string_view AMascara, double AValor)
{
    if (!std::isfinite(AValor))
        throw EConvertError("Número sem valor definido na máscara '" + std::string(AMascara) + "'");
    const auto LMascara = LerMascara(AMascara);
    // The shortest decimal text of the value decides the rounding, so that 1.005 is met as it is written.
    std::array<char, 400> LBuffer{};
    const auto LFim =
        std::to_chars(LBuffer.data(), LBuffer.data() + LBuffer.size(), std::fabs(AValor), std::chars_format::fixed);
    std::string LInteiro(LBuffer.data(), LFim.ptr);
    std::string LDecimal;
    if (const auto LPonto = LInteiro.find('.'); LPonto != std::string::npos) {
        LDecimal = LInteiro.substr(LPonto + 1);
        LInteiro.resize(LPonto);
    }
    if (LDecimal.size() > LMascara.Decimais) {
        bool LSobe = LDecimal[LMascara.Decimais] >= '5';
        LDecimal.resize(LMascara.Decimais);
        for (std::string* LParte : {&LDecimal, &LInteiro}) {
            for (auto LDigito = LParte->rbegin(); LSobe && LDigito != LParte->rend(); ++LDigito) {
                LSobe = *LDigito == '9';
                *LDigito = LSobe ? '0' : static_cast<char>(*LDigito + 1);
            }
        }
        if (LSobe)
            LInteiro.insert(LInteiro.begin(), '1');
    }
    LDecimal.resize(std::max(LDecimal.size(), LMascara.DecimaisObrigatorias), '0');
    while (LDecimal.size() > LMascara.DecimaisObrigatorias && LDecimal.back() == '0')
        LDecimal.pop_back();
    if (LInteiro == "0" && LMascara.Inteiros == 0)
        LInteiro.clear();
    if (LInteiro.size() < LMascara.Inteiros)
        LInteiro.insert(0, LMascara.Inteiros - LInteiro.size(), '0');
    const bool LNegativo = AValor < 0 && (LInteiro + LDecimal).find_first_not_of('0') != std::string::npos;
    std::string LTexto = (LNegativo ? "-" : "") + LInteiro;
    return LDecimal.empty() ? LTexto : LTexto + "," + LDecimal;
}

std::string FormatDateTime(std::string_view AMascara, TDateTime AData)
{
    const auto LData = DecodeDate(AData);
    const auto LHora = DecodeTime(AData);
    std::string LResultado;
    for (std::size_t i = 0; i < AMascara.size();) {
        const char LLetra = AMascara[i];
        const auto LLetraComum = static_cast<char>(LLetra | 0x20);
        std::size_t LQuantos = 0;
        while (i + LQuantos < AMascara.size() && (AMascara[i + LQuantos] | 0x20) == LLetraComum)
            ++LQuantos;
        int LValor = 0;
        switch (LLetra) {
        case 'd':
        case 'D':
            LValor = LData.Dia;
            break;
        case 'm':
        case 'M':
            LValor = LData.Mes;
            break;
        case 'y':
        case 'Y':
            LValor = LQuantos > 2 ? LData.Ano : LData.Ano % 100;
            LQuantos = LQuantos > 2 ? 4 : 2;
            break;
        case 'h':
        case 'H':
            LValor = LHora.Hora;
            break;
        case 'n':
        case 'N':
            LValor = LHora.Minuto;
            break;
        case 's':
        case 'S':
            LValor = LHora.Segundo;
            break;
        default:
            LResultado += LLetra;
            ++i;
            continue;
        }
        LResultado += ComZeros(static_cast<std::uint64_t>(LValor), LQuantos);
        while (i < AMascara.size() && (AMascara[i] | 0x20) == LLetraComum)
            ++i;
    }
    return LResultado;
}

} // namespace tarvo
