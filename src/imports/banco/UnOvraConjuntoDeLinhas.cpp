#include "imports/banco/UnOvraConjuntoDeLinhas.h"

#include <cmath>

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

namespace {

std::int64_t Potencia10(int AExpoente)
{
    std::int64_t LValor = 1;
    for (; AExpoente > 0; --AExpoente)
        LValor *= 10;
    return LValor;
}

/// ANumerador over a power of ten, rounded half to even.
std::int64_t DividirArredondando(std::int64_t ANumerador, std::int64_t ADivisor)
{
    const auto LQuociente = ANumerador / ADivisor;
    const auto LResto = std::abs(ANumerador % ADivisor);
    const bool LSobe = LResto > ADivisor - LResto || (LResto == ADivisor - LResto && LQuociente % 2 != 0);
    return LSobe ? LQuociente + (ANumerador < 0 ? -1 : 1) : LQuociente;
}

std::int64_t Truncar(double AValor)
{
    const double LInteiro = std::trunc(AValor);
    if (!(LInteiro >= -9.2233720368547758e18 && LInteiro < 9.2233720368547758e18))
        throw EIntOverflow("Valor fora da faixa de um inteiro: " + FloatToStr(AValor));
    return static_cast<std::int64_t>(LInteiro);
}

} // namespace

TConjuntoDeLinhas::TConjuntoDeLinhas(std::shared_ptr<const std::vector<TColuna>> AColunas)
    : FColunas(std::move(AColunas))
{}

const std::vector<TColuna>& TConjuntoDeLinhas::Colunas() const
{
    static const std::vector<TColuna> vazia;
    return FColunas ? *FColunas : vazia;
}

int TConjuntoDeLinhas::IndiceDaColuna(std::string_view ANome) const
{
    const auto& LColunas = Colunas();
    for (std::size_t i = 0; i < LColunas.size(); ++i)
        if (MesmoTexto(LColunas[i].Nome, ANome))
            return static_cast<int>(i);
    return -1;
}

const TConjuntoDeLinhas::TCelula& TConjuntoDeLinhas::Celula(std::size_t ALinha, std::size_t AColuna) const
{
    return FCelulas[ALinha * FColunas->size() + AColuna];
}

std::string_view TConjuntoDeLinhas::TextoCru(const TCelula& ACelula) const
{
    return std::string_view(FTextos).substr(ACelula.Posicao, ACelula.Tamanho);
}

bool TConjuntoDeLinhas::Nulo(std::size_t ALinha, std::size_t AColuna) const { return Celula(ALinha, AColuna).Nula; }

std::string TConjuntoDeLinhas::Texto(std::size_t ALinha, std::size_t AColuna) const
{
    const TCelula& LCelula = Celula(ALinha, AColuna);
    if (LCelula.Nula)
        return {};
    const TColuna& LColuna = (*FColunas)[AColuna];
    switch (LColuna.Tipo) {
    case TTipoColuna::Texto:
        return std::string(TextoCru(LCelula));
    case TTipoColuna::Inteiro:
        return DecimalToStr(LCelula.Inteiro, LColuna.Escala);
    case TTipoColuna::Float:
        return FloatToStr(static_cast<float>(LCelula.Numero));
    case TTipoColuna::Double:
        return FloatToStr(LCelula.Numero);
    case TTipoColuna::Hora:
        return FormatDateTime("hh:nn:ss", TDateTime(LCelula.Numero));
    case TTipoColuna::Data:
    case TTipoColuna::DataHora:
        return DateTimeToStr(TDateTime(LCelula.Numero));
    case TTipoColuna::Booleano:
        return LCelula.Inteiro != 0 ? "True" : "False";
    }
    return {};
}

std::int64_t TConjuntoDeLinhas::Inteiro(std::size_t ALinha, std::size_t AColuna) const
{
    const TCelula& LCelula = Celula(ALinha, AColuna);
    if (LCelula.Nula)
        return 0;
    const TColuna& LColuna = (*FColunas)[AColuna];
    switch (LColuna.Tipo) {
    case TTipoColuna::Texto:
        return StrToInt64(TextoCru(LCelula));
    case TTipoColuna::Inteiro:
        return LCelula.Inteiro / Potencia10(-LColuna.Escala);
    case TTipoColuna::Booleano:
        return LCelula.Inteiro;
    default:
        return Truncar(LCelula.Numero);
    }
}

double TConjuntoDeLinhas::Numero(std::size_t ALinha, std::size_t AColuna) const
{
    const TCelula& LCelula = Celula(ALinha, AColuna);
    if (LCelula.Nula)
        return 0.0;
    const TColuna& LColuna = (*FColunas)[AColuna];
    switch (LColuna.Tipo) {
    case TTipoColuna::Texto:
        return StrToDouble(TextoCru(LCelula));
    case TTipoColuna::Inteiro:
        // Rounded once: a quotient of two numbers that a double holds exactly is, else the decimal text is read.
        if (constexpr std::int64_t EXATO = std::int64_t{1} << 53; LCelula.Inteiro >= -EXATO && LCelula.Inteiro <= EXATO)
            return static_cast<double>(LCelula.Inteiro) / static_cast<double>(Potencia10(-LColuna.Escala));
        return StrToDouble(DecimalToStr(LCelula.Inteiro, LColuna.Escala));
    case TTipoColuna::Booleano:
        return static_cast<double>(LCelula.Inteiro);
    case TTipoColuna::Float:
        // The decimal that the single stands for (507.1), not its binary expansion.
        return StrToDouble(FloatToStr(static_cast<float>(LCelula.Numero)));
    default:
        return LCelula.Numero;
    }
}

Currency TConjuntoDeLinhas::Moeda(std::size_t ALinha, std::size_t AColuna) const
{
    const TCelula& LCelula = Celula(ALinha, AColuna);
    if (LCelula.Nula)
        return {};
    const TColuna& LColuna = (*FColunas)[AColuna];
    if (LColuna.Tipo == TTipoColuna::Texto)
        return Currency(StrToFloat(TextoCru(LCelula)));
    if (LColuna.Tipo != TTipoColuna::Inteiro)
        return Currency(Numero(ALinha, AColuna));
    if (LColuna.Escala <= -4)
        return Currency::DeDecimosMilesimos(DividirArredondando(LCelula.Inteiro, Potencia10(-LColuna.Escala - 4)));
    std::int64_t LEscalado = 0;
    if (__builtin_mul_overflow(LCelula.Inteiro, Potencia10(4 + LColuna.Escala), &LEscalado))
        throw EIntOverflow("Valor fora da faixa do tipo Currency: " + DecimalToStr(LCelula.Inteiro, LColuna.Escala));
    return Currency::DeDecimosMilesimos(LEscalado);
}

TDateTime TConjuntoDeLinhas::Data(std::size_t ALinha, std::size_t AColuna) const
{
    const TCelula& LCelula = Celula(ALinha, AColuna);
    if (LCelula.Nula)
        return {};
    switch ((*FColunas)[AColuna].Tipo) {
    case TTipoColuna::Texto:
        return StrToDateTime(TextoCru(LCelula));
    case TTipoColuna::Data:
    case TTipoColuna::Hora:
    case TTipoColuna::DataHora:
        return TDateTime(LCelula.Numero);
    default:
        return TDateTime(Numero(ALinha, AColuna));
    }
}

void TConjuntoDeLinhas::AcrescentarNulo()
{
    TCelula LCelula{};
    LCelula.Nula = true;
    FCelulas.push_back(LCelula);
}

void TConjuntoDeLinhas::AcrescentarInteiro(std::int64_t AValor)
{
    TCelula LCelula{};
    LCelula.Inteiro = AValor;
    FCelulas.push_back(LCelula);
}

void TConjuntoDeLinhas::AcrescentarNumero(double AValor)
{
    TCelula LCelula{};
    LCelula.Numero = AValor;
    FCelulas.push_back(LCelula);
}

void TConjuntoDeLinhas::AcrescentarTexto(std::string_view AValor)
{
    TCelula LCelula{};
    LCelula.Posicao = FTextos.size();
    LCelula.Tamanho = static_cast<std::uint32_t>(AValor.size());
    FTextos.append(AValor);
    FCelulas.push_back(LCelula);
}

} // namespace tarvo
