#include "imports/UnTarvoTypesGeral.h"

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

TTiposFolha BuscarTTipoFolha(std::string_view ATexto)
{
    const auto LCodigo = Trim(ATexto);
    for (std::size_t i = 0; i < CTipoFolha.size(); ++i)
        if (!LCodigo.empty() && CTipoFolha[i] == LCodigo)
            return static_cast<TTiposFolha>(i);
    return TTiposFolha::Nenhuma;
}

} // namespace tarvo
