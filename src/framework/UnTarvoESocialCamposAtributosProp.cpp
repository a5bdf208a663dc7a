#include "framework/UnTarvoESocialCamposAtributosProp.h"

#include <algorithm>

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

const TPropriedade* TPropriedades::Buscar(std::string_view ANome) const
{
    auto LItem = std::find_if(FItens.begin(), FItens.end(), [&](const auto& AItem) { return AItem.Nome() == ANome; });
    if (LItem == FItens.end())
        LItem = std::find_if(FItens.begin(), FItens.end(),
                             [&](const auto& AItem) { return MesmoTexto(AItem.Nome(), ANome); });
    return LItem == FItens.end() ? nullptr : &*LItem;
}

} // namespace tarvo
