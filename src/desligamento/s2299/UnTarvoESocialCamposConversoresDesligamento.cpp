#include "desligamento/s2299/UnTarvoESocialCamposConversoresDesligamento.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::desligamento {

namespace {

/// 0 without leading digits.
std::int64_t DigitosIniciais(std::string_view AValor)
{
    return StrToInt64Def(AValor.substr(0, std::min(AValor.find_first_not_of("0123456789"), AValor.size())), 0);
}

} // namespace

std::string TConversorMotivoDesligamento::BuscarValor(const std::string& AValor)
{
    switch (DigitosIniciais(AValor)) {
    case 10:
        return "1";
    case 11:
        return "2";
    case 12:
        return "6";
    case 13:
        return "3";
    case 14:
        return "4";
    case 15:
        return "5";
    case 16:
        return "26";
    case 20:
    case 80:
        return "17";
    case 21:
        return "7";
    case 33:
        return "33";
    case 60:
    case 62:
    case 63:
    case 64:
        return "10";
    case 70:
        return "20";
    case 72:
        return "19";
    case 75:
        return "18";
    default:
        return {};
    }
}

std::string TConversorPensAlim::BuscarValor(const std::string& AValor)
{
    switch (DigitosIniciais(AValor)) {
    case 0:
    case 1:
        return "0";
    case 2:
    case 7:
        return "2";
    case 3:
    case 4:
    case 5:
    case 6:
        return "1";
    default:
        return {};
    }
}

} // namespace tarvo::desligamento
