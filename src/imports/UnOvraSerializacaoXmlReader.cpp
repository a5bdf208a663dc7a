#include "imports/UnOvraSerializacaoXmlReader.h"

#include <algorithm>
#include <pugixml.hpp>

#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

namespace {

std::string_view NomeSemPrefixo(const pugi::xml_node& ANo)
{
    std::string_view LNome = ANo.name();
    LNome.remove_prefix(LNome.find(':') + 1); // npos + 1 is 0
    return LNome;
}

/// The first descendant at the path; a branch that leads nowhere is left for its next sibling.
pugi::xml_node BuscarNo(const pugi::xml_node& APai, std::string_view ACaminho)
{
    const auto LPonto = std::min(ACaminho.find('.'), ACaminho.size());
    const auto LNome = ACaminho.substr(0, LPonto);
    for (const auto LFilho : APai.children()) {
        if (LFilho.type() != pugi::node_element || NomeSemPrefixo(LFilho) != LNome)
            continue;
        if (LPonto == ACaminho.size())
            return LFilho;
        if (const auto LNo = BuscarNo(LFilho, ACaminho.substr(LPonto + 1)))
            return LNo;
    }
    return {};
}

} // namespace

struct TOvraSerializacaoXmlReader::TDocumento {
    pugi::xml_document Xml;
};

TOvraSerializacaoXmlReader::TOvraSerializacaoXmlReader(std::string_view AXml)
    : FDocumento(std::make_unique<TDocumento>())
{
    if (Trim(AXml).empty())
        return;
    // The text is UTF-8 by now, whatever its declaration says of the file that it once was.
    const auto LResultado =
        FDocumento->Xml.load_buffer(AXml.data(), AXml.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!LResultado)
        throw EConvertError(std::string("XML inválido na posição ") + std::to_string(LResultado.offset) + ": " +
                            LResultado.description());
}

TOvraSerializacaoXmlReader::~TOvraSerializacaoXmlReader() = default;

std::string TOvraSerializacaoXmlReader::BuscarValorTag(std::string_view ACaminho) const
{
    return BuscarNo(FDocumento->Xml.document_element(), ACaminho).text().get();
}

} // namespace tarvo
