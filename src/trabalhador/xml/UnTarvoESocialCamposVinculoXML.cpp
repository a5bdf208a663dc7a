#include "trabalhador/xml/UnTarvoESocialCamposVinculoXML.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposVinculoXML::TTarvoESocialCamposVinculoXML(const std::string& AXml) : FXmlReader(AXml) {}

void TTarvoESocialCamposVinculoXML::CarregarDados(TTipoEvento ATipoEvento)
{
    const auto LCaminho = BuscarCaminhoTag(ATipoEvento);
    tpRegTrab = FXmlReader.BuscarValorTag(Format("%0:s.tpRegTrab", LCaminho));
    tpRegPrev = FXmlReader.BuscarValorTag(Format("%0:s.tpRegPrev", LCaminho));
}

std::string TTarvoESocialCamposVinculoXML::BuscarCaminhoTag(TTipoEvento ATipoEvento)
{
    switch (ATipoEvento) {
    case TTipoEvento::teS2200:
        return "evtAdmissao.vinculo";
    case TTipoEvento::teS2206:
        return "evtAltContratual.altContratual.vinculo";
    default:
        return {};
    }
}

} // namespace tarvo::trabalhador
