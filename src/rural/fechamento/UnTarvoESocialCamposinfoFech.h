#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/pcesConversaoeSocial.h"

namespace tarvo::rural {

/// S-1299 infoFech: which events of the period the government accepted, as counts (a positive number means that there
/// are some), and for a period without any the mark of the last closing. Source: SC00_ESOCIALREINFXML of the
/// environment in use. EConvertError when the last closing's XML is malformed.
class TTarvoESocialCamposinfoFech : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoFech(std::int32_t AIdEmpresa, TDateTime ADataInicio, TDateTime ADataFim,
                                tpIndApuracao AIndApur);

    std::int32_t evtRemun = 0;
    std::int32_t evtPgtos = 0;
    std::int32_t evtAqProd = 0;
    std::int32_t evtInfoComplPer = 0;
    /// Always 0.
    std::int32_t evtComProd = 0;
    /// Always 0.
    std::int32_t evtContratAvNP = 0;
    /// Empty in a period with movement.
    std::string compSemMovto;
    std::int32_t IdEmpresa;
    TDateTime DataInicio;
    TDateTime DataFim;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void PreencherTagcompSemMovto();
    bool ExisteS1299Anterior();

    tpIndApuracao FIndApur;
    /// The search for the former closing.
    std::unique_ptr<TOvraClientDataSetWithConnection> FCdsPesquisaEventoS1299;
};

} // namespace tarvo::rural
