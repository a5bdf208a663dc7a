#pragma once

#include <cstdint>
#include <string_view>

#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// Which tributes of a rubric have a legal process at a company, and which process; an id is 0 where the flag is off.
struct TTributosComProcesso {
    bool INSS = false;
    bool IRRF = false;
    bool FGTS = false;
    bool CS = false;
    std::int64_t IDProcessoINSS = 0;
    std::int64_t IDProcessoIRRF = 0;
    std::int64_t IDProcessoFGTS = 0;
    std::int64_t IDProcessoCS = 0;
};

/// Look-ups of rubrics (TAB_VERBAS).
class TTarvoConsultasVerbas {
public:
    /// The processes of a rubric that were opened on or before the date, at the company or at none in particular. The
    /// newest process of a tribute wins; of two opened on one day the later entered.
    static TTributosComProcesso BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(std::int64_t AIDVerba,
                                                                                   std::int64_t AIDEmpresa,
                                                                                   TDateTime AData);
    /// The rubric whose formula is the text, the lowest id of several; 0 when there is none.
    static std::int64_t BuscarIDVerbaPelaCaracteristica(std::string_view ACaracteristica);
    /// Code of the rubric's nature in force at the date; 0 when there is none or it is no number.
    static std::int32_t BuscarNatRubrVerba(std::int64_t AIDVerba, TDateTime AData);
};

} // namespace tarvo
