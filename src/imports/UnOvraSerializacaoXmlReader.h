#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tarvo {

/// Reads values out of an XML text in UTF-8 by the path of their tags.
class TOvraSerializacaoXmlReader {
public:
    /// An empty text is an empty document. EConvertError when the text is no well-formed XML.
    explicit TOvraSerializacaoXmlReader(std::string_view AXml);
    TOvraSerializacaoXmlReader(const TOvraSerializacaoXmlReader&) = delete;
    TOvraSerializacaoXmlReader& operator=(const TOvraSerializacaoXmlReader&) = delete;
    ~TOvraSerializacaoXmlReader();

    /// Text of the first tag at a dotted path that starts below the root element ("evtFechaEvPer.infoFech"). Names
    /// count without namespace prefix, case included; empty when the tag is absent.
    std::string BuscarValorTag(std::string_view ACaminho) const;

private:
    struct TDocumento;
    std::unique_ptr<TDocumento> FDocumento;
};

} // namespace tarvo
