#include "imports/valores/UnTarvoUtilsGeral.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo {

std::string TTarvoUtilsGeral::ConverterTListParaMultisselecao(const std::vector<std::int64_t>& ALista)
{
    std::string LLista;
    for (const auto LId : ALista)
        TTarvoUtilsStrings::AdicionarItemNaLista(LLista, IntToStr(LId));
    return LLista.empty() ? "0" : LLista;
}

} // namespace tarvo
