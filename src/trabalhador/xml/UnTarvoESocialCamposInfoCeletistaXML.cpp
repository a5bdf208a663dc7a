#include "trabalhador/xml/UnTarvoESocialCamposInfoCeletistaXML.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoCeletistaXML::TTarvoESocialCamposInfoCeletistaXML(const std::string& AXml) : FXmlReader(AXml) {}

void TTarvoESocialCamposInfoCeletistaXML::CarregarDados(TTipoEvento ATipoEvento)
{
    const auto LCaminho = BuscarCaminhoTag(ATipoEvento);
    tpRegJor = FXmlReader.BuscarValorTag(Format("%0:s.tpRegJor", LCaminho));
    indAdmissao = FXmlReader.BuscarValorTag(Format("%0:s.indAdmissao", LCaminho));
}

std::string TTarvoESocialCamposInfoCeletistaXML::BuscarCaminhoTag(TTipoEvento ATipoEvento)
{
    switch (ATipoEvento) {
    case TTipoEvento::teS2200:
        return "evtAdmissao.vinculo.infoRegimeTrab.infoCeletista";
    case TTipoEvento::teS2206:
        return "evtAltContratual.altContratual.infoRegimeTrab.infoCeletista";
    default:
        return {};
    }
}

} // namespace tarvo::trabalhador
