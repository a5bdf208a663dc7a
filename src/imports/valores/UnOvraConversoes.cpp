#include "imports/valores/UnOvraConversoes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>

#include "imports/UnOvraExcecoes.h"

namespace tarvo {

namespace {

constexpr std::string_view BRANCOS = " \t\r\n\v\f";

char MinusculaAscii(char AChar) { return AChar >= 'A' && AChar <= 'Z' ? static_cast<char>(AChar + 32) : AChar; }
char MaiusculaAscii(char AChar) { return AChar >= 'a' && AChar <= 'z' ? static_cast<char>(AChar - 32) : AChar; }

std::optional<std::int64_t> LerInteiro(std::string_view AValor)
{
    auto LTexto = Trim(AValor);
    if (!LTexto.empty() && LTexto.front() == '+') {
        LTexto.remove_prefix(1);
        if (LTexto.empty() || !EhDigito(LTexto.front()))
            return std::nullopt;
    }
    std::int64_t LResultado = 0;
    const auto [LFim, LErro] = std::from_chars(LTexto.data(), LTexto.data() + LTexto.size(), LResultado);
    if (LErro != std::errc() || LFim != LTexto.data() + LTexto.size())
        return std::nullopt;
    return LResultado;
}

/// Rounded once, to the number that was asked for.
template <class T>
std::optional<T> LerNumero(std::string_view AValor)
{
    const auto LTexto = Trim(AValor);
    std::string LNormal;
    LNormal.reserve(LTexto.size());
    std::size_t i = 0;
    if (i < LTexto.size() && (LTexto[i] == '+' || LTexto[i] == '-')) {
        if (LTexto[i] == '-')
            LNormal += '-';
        ++i;
    }
    bool LTemDigito = false;
    const auto LerDigitos = [&] {
        bool LAlgum = false;
        for (; i < LTexto.size() && EhDigito(LTexto[i]); ++i, LAlgum = true)
            LNormal += LTexto[i];
        return LAlgum;
    };
    LTemDigito = LerDigitos();
    if (i < LTexto.size() && LTexto[i] == ',') {
        ++i;
        LNormal += '.';
        LTemDigito = LerDigitos() || LTemDigito;
    }
    if (!LTemDigito)
        return std::nullopt;
    if (i < LTexto.size() && (LTexto[i] == 'e' || LTexto[i] == 'E')) {
        ++i;
        LNormal += 'e';
        if (i < LTexto.size() && (LTexto[i] == '+' || LTexto[i] == '-'))
            LNormal += LTexto[i++];
        if (!LerDigitos())
            return std::nullopt;
    }
    if (i != LTexto.size())
        return std::nullopt;
    T LResultado = 0;
    const auto [LFim, LErro] = std::from_chars(LNormal.data(), LNormal.data() + LNormal.size(), LResultado);
    static_cast<void>(LFim);
    if (LErro != std::errc() || !std::isfinite(static_cast<double>(LResultado)))
        return std::nullopt;
    return LResultado;
}

/// One or more digits from APosicao on, at most AMaximo of them; -1 when there are none.
int LerDigitos(std::string_view ATexto, std::size_t& APosicao, std::size_t AMaximo, std::size_t& AQuantos)
{
    int LValor = 0;
    AQuantos = 0;
    while (APosicao < ATexto.size() && EhDigito(ATexto[APosicao]) && AQuantos < AMaximo) {
        LValor = LValor * 10 + (ATexto[APosicao] - '0');
        ++APosicao;
        ++AQuantos;
    }
    return AQuantos == 0 ? -1 : LValor;
}

/// Whether a text has a digit wherever the model has a zero, and the model's own character elsewhere.
bool SegueOMolde(std::string_view ATexto, std::string_view AMolde)
{
    if (ATexto.size() != AMolde.size())
        return false;
    for (std::size_t i = 0; i < AMolde.size(); ++i)
        if (AMolde[i] == '0' ? !EhDigito(ATexto[i]) : ATexto[i] != AMolde[i])
            return false;
    return true;
}

/// The number that so many digits are.
int Digitos(std::string_view ATexto, std::size_t AInicio, std::size_t ATamanho)
{
    int LValor = 0;
    for (const char LChar : ATexto.substr(AInicio, ATamanho))
        LValor = LValor * 10 + (LChar - '0');
    return LValor;
}

std::optional<TDateTime> LerData(std::string_view AValor)
{
    const auto LTexto = Trim(AValor);
    std::size_t LPosicao = 0;
    std::size_t LQuantos = 0;
    const auto LerSeparador = [&](std::string_view ASeparadores) {
        if (LPosicao >= LTexto.size() || ASeparadores.find(LTexto[LPosicao]) == std::string_view::npos)
            return false;
        ++LPosicao;
        return true;
    };
    const int LDia = LerDigitos(LTexto, LPosicao, 2, LQuantos);
    if (LDia < 0 || !LerSeparador("/."))
        return std::nullopt;
    const int LMes = LerDigitos(LTexto, LPosicao, 2, LQuantos);
    if (LMes < 0 || !LerSeparador("/."))
        return std::nullopt;
    int LAno = LerDigitos(LTexto, LPosicao, 4, LQuantos);
    if (LQuantos == 2)
        LAno += LAno < 50 ? 2000 : 1900;
    else if (LQuantos != 4)
        return std::nullopt;
    if (!DataValida(LAno, LMes, LDia))
        return std::nullopt;
    const TDateTime LData = EncodeDate(LAno, LMes, LDia);
    if (LPosicao == LTexto.size())
        return LData;

    if (!LerSeparador(BRANCOS))
        return std::nullopt;
    LPosicao = LTexto.find_first_not_of(BRANCOS, LPosicao);
    const int LHora = LerDigitos(LTexto, LPosicao, 2, LQuantos);
    if (LHora < 0 || LHora > 23 || !LerSeparador(":"))
        return std::nullopt;
    const int LMinuto = LerDigitos(LTexto, LPosicao, 2, LQuantos);
    if (LMinuto < 0 || LMinuto > 59)
        return std::nullopt;
    int LSegundo = 0;
    if (LPosicao != LTexto.size()) {
        if (!LerSeparador(":"))
            return std::nullopt;
        LSegundo = LerDigitos(LTexto, LPosicao, 2, LQuantos);
        if (LSegundo < 0 || LSegundo > 59 || LPosicao != LTexto.size())
            return std::nullopt;
    }
    return JuntarDataHora(LData, EncodeTime(LHora, LMinuto, LSegundo));
}

template <class T>
std::string TextoDoFlutuante(T AValor)
{
    // Plain digits as far as a person reads them; beyond that the exponent form, which the reader above takes back.
    std::array<char, 64> LBuffer{};
    const T LModulo = std::fabs(AValor);
    const bool LPlano = LModulo == 0 || (LModulo >= static_cast<T>(1e-7) && LModulo < static_cast<T>(1e21));
    const auto LFim =
        LPlano ? std::to_chars(LBuffer.data(), LBuffer.data() + LBuffer.size(), AValor, std::chars_format::fixed)
               : std::to_chars(LBuffer.data(), LBuffer.data() + LBuffer.size(), AValor);
    std::string LTexto(LBuffer.data(), LFim.ptr);
    if (LTexto == "-0")
        return "0";
    std::replace(LTexto.begin(), LTexto.end(), '.', ',');
    std::replace(LTexto.begin(), LTexto.end(), 'e', 'E');
    return LTexto;
}

void AcrescentarUtf8(std::string& ATexto, unsigned ACodigo)
{
    if (ACodigo < 0x80) {
        ATexto += static_cast<char>(ACodigo);
    } else if (ACodigo < 0x800) {
        ATexto += static_cast<char>(0xC0 | (ACodigo >> 6));
        ATexto += static_cast<char>(0x80 | (ACodigo & 0x3F));
    } else {
        ATexto += static_cast<char>(0xE0 | (ACodigo >> 12));
        ATexto += static_cast<char>(0x80 | ((ACodigo >> 6) & 0x3F));
        ATexto += static_cast<char>(0x80 | (ACodigo & 0x3F));
    }
}

/// Windows-1252, 0x80 to 0x9F; the five bytes that it leaves open stand for themselves.
constexpr std::array<unsigned, 32> WIN1252{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                           0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

} // namespace

std::string_view Trim(std::string_view AValor)
{
    const auto LInicio = AValor.find_first_not_of(BRANCOS);
    return LInicio == std::string_view::npos ? std::string_view() : TrimRight(AValor.substr(LInicio));
}

std::string_view TrimRight(std::string_view AValor)
{
    const auto LFim = AValor.find_last_not_of(BRANCOS);
    return LFim == std::string_view::npos ? std::string_view() : AValor.substr(0, LFim + 1);
}

bool MesmoTexto(std::string_view A, std::string_view B)
{
    return A.size() == B.size() && std::equal(A.begin(), A.end(), B.begin(),
                                              [](char x, char y) { return MinusculaAscii(x) == MinusculaAscii(y); });
}

std::string Maiusculas(std::string_view AValor)
{
    std::string LTexto(AValor);
    std::transform(LTexto.begin(), LTexto.end(), LTexto.begin(), MaiusculaAscii);
    return LTexto;
}

std::string Minusculas(std::string_view AValor)
{
    std::string LTexto(AValor);
    std::transform(LTexto.begin(), LTexto.end(), LTexto.begin(), MinusculaAscii);
    return LTexto;
}

std::string QuotedStr(std::string_view AValor)
{
    std::string LTexto = "'";
    for (const char LChar : AValor)
        LTexto.append(LChar == '\'' ? 2 : 1, LChar);
    return LTexto += '\'';
}

std::optional<std::int64_t> TryStrToInt64(std::string_view AValor) { return LerInteiro(AValor); }

std::int64_t StrToInt64Def(std::string_view AValor, std::int64_t APadrao)
{
    return LerInteiro(AValor).value_or(APadrao);
}

std::int64_t StrToInt64(std::string_view AValor)
{
    if (const auto LValor = LerInteiro(AValor))
        return *LValor;
    throw EConvertError("'" + std::string(AValor) + "' não é um número inteiro válido");
}

long double StrToFloatDef(std::string_view AValor, long double APadrao)
{
    return LerNumero<long double>(AValor).value_or(APadrao);
}

double StrToDoubleDef(std::string_view AValor, double APadrao) { return LerNumero<double>(AValor).value_or(APadrao); }

template <class T>
static T NumeroOuErro(std::string_view AValor)
{
    if (const auto LValor = LerNumero<T>(AValor))
        return *LValor;
    throw EConvertError("'" + std::string(AValor) + "' não é um número válido");
}

long double StrToFloat(std::string_view AValor) { return NumeroOuErro<long double>(AValor); }
double StrToDouble(std::string_view AValor) { return NumeroOuErro<double>(AValor); }

TDateTime StrToDateTime(std::string_view AValor)
{
    if (const auto LData = LerData(AValor))
        return *LData;
    throw EConvertError("'" + std::string(AValor) + "' não é uma data válida");
}

std::optional<std::pair<TPartesDaData, TPartesDaHora>> LerDataDB(std::string_view AValor)
{
    static constexpr std::string_view MOLDE = "00.00.0000 00:00:00";
    const bool LComHora = AValor.size() > 10;
    if (!SegueOMolde(AValor, LComHora ? MOLDE : MOLDE.substr(0, 10)))
        return std::nullopt;
    const TPartesDaData LDia{.Ano = Digitos(AValor, 6, 4), .Mes = Digitos(AValor, 3, 2), .Dia = Digitos(AValor, 0, 2)};
    TPartesDaHora LHora;
    if (LComHora)
        LHora = {.Hora = Digitos(AValor, 11, 2), .Minuto = Digitos(AValor, 14, 2), .Segundo = Digitos(AValor, 17, 2)};
    if (!DataValida(LDia.Ano, LDia.Mes, LDia.Dia) || LHora.Hora > 23 || LHora.Minuto > 59 || LHora.Segundo > 59)
        return std::nullopt;
    return std::pair{LDia, LHora};
}

std::optional<TDateTime> LerDataIso(std::string_view AValor)
{
    if (!SegueOMolde(AValor, "0000-00-00"))
        return std::nullopt;
    const int LAno = Digitos(AValor, 0, 4);
    const int LMes = Digitos(AValor, 5, 2);
    const int LDia = Digitos(AValor, 8, 2);
    if (!DataValida(LAno, LMes, LDia))
        return std::nullopt;
    return EncodeDate(LAno, LMes, LDia);
}

TDateTime StrToDateTimeDef(std::string_view AValor, TDateTime APadrao) { return LerData(AValor).value_or(APadrao); }

std::string IntToStr(std::int64_t AValor) { return std::to_string(AValor); }

std::string DateTimeToStr(TDateTime AData)
{
    const auto LData = DecodeDate(AData);
    const auto LHora = DecodeTime(AData);
    std::array<char, 64> LBuffer{};
    int LTamanho = std::snprintf(LBuffer.data(), LBuffer.size(), "%02d/%02d/%04d", LData.Dia, LData.Mes, LData.Ano);
    if (TemHora(AData))
        LTamanho += std::snprintf(LBuffer.data() + LTamanho, LBuffer.size() - static_cast<std::size_t>(LTamanho),
                                  " %02d:%02d:%02d", LHora.Hora, LHora.Minuto, LHora.Segundo);
    return {LBuffer.data(), static_cast<std::size_t>(LTamanho)};
}

std::string FloatToStr(double AValor) { return TextoDoFlutuante(AValor); }
std::string FloatToStr(float AValor) { return TextoDoFlutuante(AValor); }
std::string CurrToStr(Currency AValor) { return DecimalToStr(AValor.DecimosMilesimos(), -4); }

std::string DecimalToStr(std::int64_t AValor, int AEscala, char ASeparador)
{
    const bool LNegativo = AValor < 0;
    auto LResto = static_cast<std::uint64_t>(AValor);
    if (LNegativo)
        LResto = 0 - LResto;
    std::string LDigitos; // the digits, last first
    do {
        LDigitos += static_cast<char>('0' + static_cast<int>(LResto % 10));
        LResto /= 10;
    } while (LResto != 0);
    const auto LDecimais = static_cast<std::size_t>(-AEscala);
    while (LDigitos.size() <= LDecimais)
        LDigitos += '0';
    std::reverse(LDigitos.begin(), LDigitos.end());
    if (LDecimais > 0) {
        LDigitos.insert(LDigitos.size() - LDecimais, 1, ASeparador);
        LDigitos.erase(LDigitos.find_last_not_of('0') + 1);
        if (LDigitos.back() == ASeparador)
            LDigitos.pop_back();
    }
    return LNegativo ? "-" + LDigitos : LDigitos;
}

std::size_t TamanhoDoCaractereUtf8(std::string_view AValor)
{
    if (AValor.empty())
        return 0;
    const auto LByte = [&](std::size_t i) { return static_cast<unsigned char>(AValor[i]); };
    const unsigned char LPrimeiro = LByte(0);
    if (LPrimeiro < 0x80)
        return 1;
    std::size_t LTamanho = 0;
    unsigned char LMinimo = 0x80;
    unsigned char LMaximo = 0xBF;
    if (LPrimeiro >= 0xC2 && LPrimeiro <= 0xDF) {
        LTamanho = 2;
    } else if (LPrimeiro >= 0xE0 && LPrimeiro <= 0xEF) {
        LTamanho = 3;
        if (LPrimeiro == 0xE0)
            LMinimo = 0xA0; // no overlong form
        if (LPrimeiro == 0xED)
            LMaximo = 0x9F; // no surrogate
    } else if (LPrimeiro >= 0xF0 && LPrimeiro <= 0xF4) {
        LTamanho = 4;
        if (LPrimeiro == 0xF0)
            LMinimo = 0x90;
        if (LPrimeiro == 0xF4)
            LMaximo = 0x8F;
    } else {
        return 0;
    }
    if (AValor.size() < LTamanho || LByte(1) < LMinimo || LByte(1) > LMaximo)
        return 0;
    for (std::size_t i = 2; i < LTamanho; ++i)
        if (LByte(i) < 0x80 || LByte(i) > 0xBF)
            return 0;
    return LTamanho;
}

std::size_t QuantidadeDeCaracteresUtf8(std::string_view AValor)
{
    return static_cast<std::size_t>(
        std::count_if(AValor.begin(), AValor.end(), [](char AChar) { return (AChar & 0xC0) != 0x80; }));
}

bool Utf8Valido(std::string_view AValor)
{
    while (!AValor.empty()) {
        const auto LTamanho = TamanhoDoCaractereUtf8(AValor);
        if (LTamanho == 0)
            return false;
        AValor.remove_prefix(LTamanho);
    }
    return true;
}

std::string ParaUtf8(std::string_view AValor)
{
    if (Utf8Valido(AValor))
        return std::string(AValor);
    std::string LTexto;
    LTexto.reserve(AValor.size() * 2);
    for (const char LChar : AValor) {
        const unsigned LByte = static_cast<unsigned char>(LChar);
        AcrescentarUtf8(LTexto, LByte >= 0x80 && LByte <= 0x9F ? WIN1252[LByte - 0x80] : LByte);
    }
    return LTexto;
}

} // namespace tarvo
