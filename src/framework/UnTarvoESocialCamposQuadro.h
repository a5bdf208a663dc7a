#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnOvraExcecoes.h"

namespace tarvo {

/// A group that only declares tags: it has no statement and no bound property, and the caller fills its values. A load
/// walks its children all the same. T is the frame itself, or a base that several frames of one shape share; its static
/// operation Tags lists the properties, once for the class. It keeps the id that it was built with, which nothing
/// reads.
template <class T>
class TTarvoESocialCamposQuadro : public TTarvoESocialCamposGrupoBase {
public:
    /// The group's own load, then that of its single children in the order of the tags, with the same list. Lists are
    /// the caller's, and aren't loaded. A null child raises EAccessViolation.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        for (const auto& LPropriedade : Propriedades())
            if (LPropriedade.Tipo() == TTipoPropriedade::Grupo)
                // The table only reads; the child is as free to change as this group.
                Existente(const_cast<TTarvoESocialCamposGrupoBase*>(LPropriedade.Filho(*this)), LPropriedade.Nome())
                    .CarregarDados(AListaCamposModificados);
    }

    static const TPropriedades& Tabela()
    {
        static const TPropriedades tabela = TPropriedades(T::Tags()).ApenasDeclaradas();
        return tabela;
    }

protected:
    /// For the members in Tags.
    using Eu = T;

    explicit TTarvoESocialCamposQuadro(std::string_view AGuid, std::int64_t AId = 0)
        : TTarvoESocialCamposGrupoBase(AGuid), FId(AId)
    {}

    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    [[maybe_unused]] std::int64_t FId;
};

} // namespace tarvo
