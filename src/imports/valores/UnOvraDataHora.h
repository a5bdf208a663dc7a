#pragma once

#include <compare>
#include <string>

namespace tarvo {

/// Day count with a fraction for the time of day; day 0 is 30 December 1899, and 0 means unset.
/// Before day 0 the fraction counts forward from the day's midnight: -1.25 is 29 December 1899, 06:00.
class TDateTime {
public:
    constexpr TDateTime() = default;
    constexpr explicit TDateTime(double AValor) : FValor(AValor) {}

    constexpr double Valor() const { return FValor; }
    constexpr bool Vazia() const { return FValor == 0.0; }

    friend constexpr auto operator<=>(TDateTime, TDateTime) = default;
    friend constexpr TDateTime operator+(TDateTime AData, double ADias) { return TDateTime(AData.FValor + ADias); }
    friend constexpr TDateTime operator-(TDateTime AData, double ADias) { return TDateTime(AData.FValor - ADias); }
    /// Days between two dates.
    friend constexpr double operator-(TDateTime A, TDateTime B) { return A.FValor - B.FValor; }

private:
    double FValor = 0.0;
};

/// A date whose time of day doesn't matter; the same representation.
using TDate = TDateTime;

struct TPartesDaData {
    int Ano = 0;
    int Mes = 0;
    int Dia = 0;
};

struct TPartesDaHora {
    int Hora = 0;
    int Minuto = 0;
    int Segundo = 0;
    int Milissegundo = 0;
};

/// A date by its parts; EConvertError when the calendar doesn't have it. Years 1 to 9999.
TDateTime EncodeDate(int AAno, int AMes, int ADia);
/// Fraction of a day; EConvertError when a part is out of range.
double EncodeTime(int AHora, int AMinuto, int ASegundo, int AMilissegundo = 0);
bool DataValida(int AAno, int AMes, int ADia);
/// Date and fraction of a day, joined by the convention of TDateTime.
TDateTime JuntarDataHora(TDateTime AData, double AFracao);

TPartesDaData DecodeDate(TDateTime AData);
/// The time of day, rounded to the millisecond.
TPartesDaHora DecodeTime(TDateTime AData);

/// The date without its time of day.
TDateTime DateOf(TDateTime AData);
/// True when the time of day is not midnight.
bool TemHora(TDateTime AData);
int DayOf(TDateTime AData);
int DaysInMonth(TDateTime AData);
/// Current local date and time.
TDateTime Now();

} // namespace tarvo
