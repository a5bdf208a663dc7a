#pragma once

#include <string>
#include <string_view>

namespace tarvo {

class TTarvoESocialCamposGrupoBase;

/// Context of the serialiser. Nothing in it changes the result; it may be null everywhere.
class TSuperRttiContext {};

/// A JSON document.
class ISuperObject {
public:
    explicit ISuperObject(std::string ATexto) : FTexto(std::move(ATexto)) {}

    /// UTF-8 text, on one line or indented.
    std::string AsJSON(bool AIdentado = false) const;

private:
    std::string FTexto;
};

/// A text as a JSON string, with its quotes. Bytes that are no UTF-8 are read as Windows-1252.
std::string TextoJson(std::string_view ATexto);

class TSuperObjectHelper {
public:
    /// One object per group, the property names as keys in declared order; a null child and an unset date are null.
    /// EConvertError when a text property holds what is no UTF-8.
    static ISuperObject ToJson(const TTarvoESocialCamposGrupoBase& AGrupo, TSuperRttiContext* ctx);
};

} // namespace tarvo
