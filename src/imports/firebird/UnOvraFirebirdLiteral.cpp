#include "imports/firebird/UnOvraFirebirdLiteral.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::firebird {

namespace {

constexpr unsigned BYTES_POR_CARACTERE_UTF8 = 4;

/// A date as the library writes it, in the engine's form; anything else is left to the engine.
std::optional<ISC_TIMESTAMP> LerDataDoLiteral(std::string_view ATexto)
{
    const auto LPartes = LerDataDB(ATexto);
    if (!LPartes)
        return std::nullopt;
    const TPartesDaData& LDia = LPartes->first;
    const TPartesDaHora& LHora = LPartes->second;
    ISC_TIMESTAMP LMomento{};
    LMomento.timestamp_date =
        static_cast<ISC_DATE>(EncodeDate(LDia.Ano, LDia.Mes, LDia.Dia).Valor()) + DIA_ZERO_DO_MOTOR;
    LMomento.timestamp_time = static_cast<ISC_TIME>(((LHora.Hora * 60 + LHora.Minuto) * 60 + LHora.Segundo) * 10'000);
    return LMomento;
}

bool EscreverInteiro(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro, unsigned char* AOnde)
{
    std::int64_t LValor = ALiteral.Inteiro;
    for (int i = AParametro.Escala; i < 0; ++i)
        if (__builtin_mul_overflow(LValor, 10, &LValor))
            return false;
    switch (AParametro.Tipo) {
    case SQL_SHORT:
        if (LValor > std::numeric_limits<ISC_SHORT>::max())
            return false;
        EscreverNaMensagem(AOnde, static_cast<ISC_SHORT>(LValor));
        return true;
    case SQL_LONG:
        if (LValor > std::numeric_limits<ISC_LONG>::max())
            return false;
        EscreverNaMensagem(AOnde, static_cast<ISC_LONG>(LValor));
        return true;
    default:
        EscreverNaMensagem(AOnde, static_cast<ISC_INT64>(LValor));
        return true;
    }
}

bool EscreverTexto(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro, unsigned char* AOnde)
{
    const auto& LTexto = ALiteral.Texto;
    const auto LCaracteres = QuantidadeDeCaracteresUtf8(LTexto);
    const bool LUtf8 = AParametro.ConjuntoDeCaracteres == CHARSET_UTF8;
    // In another character set only plain ASCII is surely the same text.
    if (!LUtf8 && std::any_of(LTexto.begin(), LTexto.end(), [](char AChar) { return (AChar & 0x80) != 0; }))
        return false;
    if (LCaracteres > AParametro.Tamanho / (LUtf8 ? BYTES_POR_CARACTERE_UTF8 : 1) || LTexto.size() > AParametro.Tamanho)
        return false;
    if (AParametro.Tipo == SQL_VARYING) {
        EscreverNaMensagem(AOnde, static_cast<ISC_USHORT>(LTexto.size()));
        AOnde += sizeof(ISC_USHORT);
    } else {
        std::memset(AOnde, ' ', AParametro.Tamanho);
    }
    std::memcpy(AOnde, LTexto.data(), LTexto.size());
    return true;
}

} // namespace

bool TipoCombina(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro)
{
    switch (AParametro.Tipo) {
    case SQL_SHORT:
    case SQL_LONG:
    case SQL_INT64:
        return !ALiteral.EhTexto;
    case SQL_TYPE_DATE:
    case SQL_TIMESTAMP:
        return ALiteral.EhTexto && LerDataDoLiteral(ALiteral.Texto).has_value();
    case SQL_TEXT:
    case SQL_VARYING:
        return ALiteral.EhTexto && AParametro.ConjuntoDeCaracteres != CHARSET_OCTETS;
    default:
        return false;
    }
}

bool EscreverParametro(const TValorLiteralSql& ALiteral, const TColunaDaMensagem& AParametro,
                       std::vector<unsigned char>& AMensagem)
{
    unsigned char* LOnde = AMensagem.data() + AParametro.Posicao;
    EscreverNaMensagem(AMensagem.data() + AParametro.PosicaoDoNulo, ISC_SHORT{0});
    if (!TipoCombina(ALiteral, AParametro))
        return false;
    if (!ALiteral.EhTexto)
        return EscreverInteiro(ALiteral, AParametro, LOnde);
    if (AParametro.Tipo == SQL_TEXT || AParametro.Tipo == SQL_VARYING)
        return EscreverTexto(ALiteral, AParametro, LOnde);
    const auto LMomento = *LerDataDoLiteral(ALiteral.Texto);
    if (AParametro.Tipo == SQL_TIMESTAMP) {
        EscreverNaMensagem(LOnde, LMomento);
        return true;
    }
    // A DATE column refuses a literal with a time of day; the engine has to say so.
    if (LMomento.timestamp_time != 0 || ALiteral.Texto.size() > 10)
        return false;
    EscreverNaMensagem(LOnde, LMomento.timestamp_date);
    return true;
}

} // namespace tarvo::firebird
