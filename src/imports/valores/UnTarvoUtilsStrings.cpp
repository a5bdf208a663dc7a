#include "imports/valores/UnTarvoUtilsStrings.h"

#include <algorithm>

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraUtilsStrings.h"

namespace tarvo {

std::string TTarvoUtilsStrings::RemoverCaracteresEspeciais(std::string_view AValor, bool ATodos)
{
    auto LTexto = GOvraUtilsStrings.LimparTexto(AValor);
    if (ATodos)
        std::erase(LTexto, ' ');
    return LTexto;
}

std::vector<std::string> TTarvoUtilsStrings::TransfereStringParaLista(std::string_view AValor)
{
    std::vector<std::string> LItens;
    while (!AValor.empty()) {
        const auto LVirgula = std::min(AValor.find(','), AValor.size());
        if (const auto LItem = Trim(AValor.substr(0, LVirgula)); !LItem.empty())
            LItens.emplace_back(LItem);
        AValor.remove_prefix(std::min(LVirgula + 1, AValor.size()));
    }
    return LItens;
}

void TTarvoUtilsStrings::AdicionarItemNaLista(std::string& ALista, std::string_view AItem)
{
    if (!ALista.empty())
        ALista += ',';
    ALista += AItem;
}

std::string FormatarTexto(std::string_view AMascara, std::string_view AValor, TFormatacaoTexto AFormatacao)
{
    const std::size_t LFaltam = AMascara.size() > AValor.size() ? AMascara.size() - AValor.size() : 0;
    if (AFormatacao == TFormatacaoTexto::CompletarADireita)
        return std::string(AValor).append(AMascara.substr(AMascara.size() - LFaltam));
    return std::string(AMascara.substr(0, LFaltam)).append(AValor);
}

} // namespace tarvo
