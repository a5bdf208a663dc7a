#pragma once

#include <string_view>

namespace tarvo::regras {

/// The categories of workers without a bond (FP_ESOCIALTABELA.CODIGO), as the values of an IN.
inline constexpr std::string_view CATEGORIAS_SEM_VINCULO =
    "'201', '202', '401', '410', '721', '158', '722', '723', '723.1', '731', '734', '738', '761', '771', '781', "
    "'901', '902'";

} // namespace tarvo::regras
