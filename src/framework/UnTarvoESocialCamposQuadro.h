#pragma once

#include <initializer_list>

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo {

/// A group that only declares tags: it has no statement and no bound property, and the caller fills its values. A load
/// walks its children all the same. It keeps the id that it was built with, which nothing reads.
class TTarvoESocialCamposQuadro : public TTarvoESocialCamposGrupoBase {
protected:
    explicit TTarvoESocialCamposQuadro(std::string_view AGuid, std::int64_t AId = 0)
        : TTarvoESocialCamposGrupoBase(AGuid), FId(AId)
    {}

    /// The group's own load, then that of the children in the order given, with the same list.
    void CarregarComFilhos(const TListaCamposModificados* AListaCamposModificados,
                           std::initializer_list<TTarvoESocialCamposGrupoBase*> AFilhos)
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        for (auto* LFilho : AFilhos)
            LFilho->CarregarDados(AListaCamposModificados);
    }

private:
    [[maybe_unused]] std::int64_t FId;
};

} // namespace tarvo
