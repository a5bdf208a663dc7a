#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// What the four process groups of a rubric share: they are loaded with the process that suspends the incidence.
/// Loaded without one they stay empty.
class TTarvoESocialCamposIdeProcessoVerba : public TTarvoESocialCamposGrupoBase {
public:
    using TTarvoESocialCamposGrupoBase::CarregarDados;
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados, std::int64_t AIdProcesso);

protected:
    using TTarvoESocialCamposGrupoBase::TTarvoESocialCamposGrupoBase;

    std::int64_t FIdProcesso = 0;
};

} // namespace tarvo::tabelas
