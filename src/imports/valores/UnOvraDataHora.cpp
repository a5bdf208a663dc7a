#include "imports/valores/UnOvraDataHora.h"

#include <chrono>
#include <cmath>
#include <ctime>

#include "imports/UnOvraExcecoes.h"

namespace tarvo {

namespace {

using namespace std::chrono;

constexpr sys_days DIA_ZERO{year{1899} / December / 30};
constexpr int MILISSEGUNDOS_DO_DIA = 86'400'000;

struct TDiaEHora {
    std::int64_t Dia;
    int Milissegundos;
};

TDiaEHora Separar(TDateTime AData)
{
    double LInteiro = 0.0;
    const double LFracao = std::fabs(std::modf(AData.Valor(), &LInteiro));
    TDiaEHora LResultado{static_cast<std::int64_t>(LInteiro),
                         static_cast<int>(std::lround(LFracao * MILISSEGUNDOS_DO_DIA))};
    if (LResultado.Milissegundos >= MILISSEGUNDOS_DO_DIA) {
        LResultado.Milissegundos -= MILISSEGUNDOS_DO_DIA;
        ++LResultado.Dia;
    }
    return LResultado;
}

year_month_day Calendario(TDateTime AData) { return year_month_day{DIA_ZERO + days{Separar(AData).Dia}}; }

} // namespace

bool DataValida(int AAno, int AMes, int ADia)
{
    if (AAno < 1 || AAno > 9999 || AMes < 1 || AMes > 12 || ADia < 1 || ADia > 31)
        return false;
    return year_month_day{year{AAno}, month{static_cast<unsigned>(AMes)}, day{static_cast<unsigned>(ADia)}}.ok();
}

TDateTime EncodeDate(int AAno, int AMes, int ADia)
{
    if (!DataValida(AAno, AMes, ADia))
        throw EConvertError("Data inválida: " + std::to_string(ADia) + "/" + std::to_string(AMes) + "/" +
                            std::to_string(AAno));
    const sys_days LDia{year{AAno} / AMes / ADia};
    return TDateTime(static_cast<double>((LDia - DIA_ZERO).count()));
}

double EncodeTime(int AHora, int AMinuto, int ASegundo, int AMilissegundo)
{
    if (AHora < 0 || AHora > 23 || AMinuto < 0 || AMinuto > 59 || ASegundo < 0 || ASegundo > 59 || AMilissegundo < 0 ||
        AMilissegundo > 999)
        throw EConvertError("Hora inválida: " + std::to_string(AHora) + ":" + std::to_string(AMinuto) + ":" +
                            std::to_string(ASegundo));
    return (((AHora * 60.0 + AMinuto) * 60.0 + ASegundo) * 1000.0 + AMilissegundo) / MILISSEGUNDOS_DO_DIA;
}

TDateTime JuntarDataHora(TDateTime AData, double AFracao)
{
    return AData.Valor() < 0.0 ? AData - AFracao : AData + AFracao;
}

TPartesDaData DecodeDate(TDateTime AData)
{
    const auto LData = Calendario(AData);
    return {static_cast<int>(LData.year()), static_cast<int>(static_cast<unsigned>(LData.month())),
            static_cast<int>(static_cast<unsigned>(LData.day()))};
}

TPartesDaHora DecodeTime(TDateTime AData)
{
    const int LTotal = Separar(AData).Milissegundos;
    return {LTotal / 3'600'000, LTotal / 60'000 % 60, LTotal / 1000 % 60, LTotal % 1000};
}

TDateTime DateOf(TDateTime AData) { return TDateTime(static_cast<double>(Separar(AData).Dia)); }

bool TemHora(TDateTime AData) { return Separar(AData).Milissegundos != 0; }

int DayOf(TDateTime AData) { return DecodeDate(AData).Dia; }

int DaysInMonth(TDateTime AData)
{
    const auto LData = Calendario(AData);
    return static_cast<int>(static_cast<unsigned>((LData.year() / LData.month() / last).day()));
}

TDateTime Now()
{
    const auto LAgora = system_clock::now();
    const std::time_t LSegundos = system_clock::to_time_t(LAgora);
    std::tm LLocal{};
    localtime_r(&LSegundos, &LLocal);
    const auto LMili = duration_cast<milliseconds>(LAgora.time_since_epoch()).count() % 1000;
    return JuntarDataHora(
        EncodeDate(LLocal.tm_year + 1900, LLocal.tm_mon + 1, LLocal.tm_mday),
        EncodeTime(LLocal.tm_hour, LLocal.tm_min, std::min(LLocal.tm_sec, 59), static_cast<int>(LMili)));
}

} // namespace tarvo
