#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "imports/UnTarvoTypesGeral.h"

namespace tarvo {

class TTarvoUtilsStrings {
public:
    /// The letters (accented too) and digits of a text. Without ATodos the single blanks between them stay.
    static std::string RemoverCaracteresEspeciais(std::string_view AValor, bool ATodos = true);
    /// Splits a comma text; items come without surrounding blanks, empty ones are left out.
    static std::vector<std::string> TransfereStringParaLista(std::string_view AValor);
    /// Appends an item to a comma text.
    static void AdicionarItemNaLista(std::string& ALista, std::string_view AItem);
};

/// Fills a text up to the length of the mask with the mask's own characters: "0000" makes "0012" of "12". A longer
/// text stays as it is.
std::string FormatarTexto(std::string_view AMascara, std::string_view AValor,
                          TFormatacaoTexto AFormatacao = TFormatacaoTexto::CompletarAEsquerda);

} // namespace tarvo
