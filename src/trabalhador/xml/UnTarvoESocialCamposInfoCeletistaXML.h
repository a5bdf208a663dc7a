#pragma once

#include <string>

#include "imports/UnOvraSerializacaoXmlReader.h"
#include "imports/pcesConversaoeSocial.h"

namespace tarvo::trabalhador {

/// The working-time regime and the indicator of admission in the XML of an S-2200 or S-2206 that was generated already,
/// for the suite to compare with the present state. No group, and no tree holds it.
class TTarvoESocialCamposInfoCeletistaXML {
public:
    /// EConvertError when the text is no well-formed XML.
    explicit TTarvoESocialCamposInfoCeletistaXML(const std::string& AXml);

    std::string tpRegJor;
    std::string indAdmissao;

    /// Reads the XML as one of that event. A tag that isn't there, and any event but the two, leaves the empty text.
    void CarregarDados(TTipoEvento ATipoEvento);

private:
    static std::string BuscarCaminhoTag(TTipoEvento ATipoEvento);

    TOvraSerializacaoXmlReader FXmlReader;
};

} // namespace tarvo::trabalhador
