#include "imports/consultas/UnTarvoConsultasIrrf.h"

#include <array>

namespace tarvo {

namespace {

/// Amount per dependant, in cents, from the first day of a month on.
struct TDeducao {
    int Ano;
    int Mes;
    std::int64_t Centavos;
};
constexpr std::array<TDeducao, 9> DEDUCOES{{{2007, 1, 132'05},
                                            {2008, 1, 137'99},
                                            {2009, 1, 144'20},
                                            {2010, 1, 150'69},
                                            {2011, 4, 157'47},
                                            {2012, 1, 164'56},
                                            {2013, 1, 171'97},
                                            {2014, 1, 179'71},
                                            {2015, 4, 189'59}}};
constexpr std::int64_t DECIMOS_MILESIMOS_DO_CENTAVO = 100;

} // namespace

Currency TTarvoConsultasIrrf::BuscarValorDeDeducaoDosDependentes(std::int32_t ANumero, TDateTime AData)
{
    std::int64_t LCentavos = 0;
    for (const auto& LDeducao : DEDUCOES)
        if (EncodeDate(LDeducao.Ano, LDeducao.Mes, 1) <= AData)
            LCentavos = LDeducao.Centavos;
    return Currency::DeDecimosMilesimos(LCentavos * DECIMOS_MILESIMOS_DO_CENTAVO * ANumero);
}

} // namespace tarvo
