#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "imports/UnTarvoTypesCalculos.h"

namespace tarvo {

/// Look-ups of companies (SC00_EMPRESA) and establishments (SC00_FILIAL).
class TTarvoConsultasEmpresa {
public:
    /// The company of an establishment; 0 when there is none.
    static std::int64_t BuscarIDEmpresaPeloIDEstab(std::int64_t AIDEstab);
    /// How the company splits its guides, from its newest setting; Nenhuma without one.
    static TTipoQuebraGpsGfip BuscarTipoQuebraGpsGfipEmpresa(std::int64_t AIDEmpresa);
    /// One column of the company's row as text; empty when there is no row.
    static std::string BuscarCampoPeloIdEmpresa(std::string_view ACampo, std::int64_t AIDEmpresa);
};

} // namespace tarvo
