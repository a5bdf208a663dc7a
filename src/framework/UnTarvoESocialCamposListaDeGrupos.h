#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo {

/// Adds one child a row to a list, in the order of the rows: made from the key in a column, loaded, then added. The
/// list isn't emptied first. The children are loaded with the list of groups that is passed on, whole without one.
/// Ler reads the key; with &TField::AsInteger one that needs more than 32 bits raises EIntOverflow. A failure leaves
/// the children that are already there.
template <auto Ler = &TField::AsLargeInt, class T>
void AcrescentarUmPorLinha(TListaDeGrupos<T>& ALista, const TDataset& ACds, std::string_view AColunaDaChave,
                           const TListaCamposModificados* AListaCamposModificados = nullptr)
{
    for (; !ACds->Eof(); ACds->Next()) {
        auto LFilho = std::make_unique<T>((ACds->FieldByName(AColunaDaChave).*Ler)());
        LFilho->CarregarDados(AListaCamposModificados);
        ALista.push_back(std::move(LFilho));
    }
}

} // namespace tarvo
