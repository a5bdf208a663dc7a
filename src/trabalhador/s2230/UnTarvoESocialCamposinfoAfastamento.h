#pragma once

#include "imports/pcesConversaoeSocial.h"
#include "trabalhador/s2230/UnTarvoESocialCamposfimAfastamento.h"
#include "trabalhador/s2230/UnTarvoESocialCamposinfoRetif.h"
#include "trabalhador/s2230/UnTarvoESocialCamposiniAfastamento.h"

namespace tarvo::trabalhador {

/// S-2230 infoAfastamento: the start of the leave or its end, by the kind of the event; the other side stays empty. The
/// correction is loaded in both.
class TTarvoESocialCamposinfoAfastamento : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoAfastamento(std::int64_t AIdSituacao, TTipoEventoS2230 ATipoEvento);

    TTarvoESocialCamposiniAfastamento iniAfastamento;
    TTarvoESocialCamposfimAfastamento fimAfastamento;
    TTarvoESocialCamposinfoRetif infoRetif;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    TTipoEventoS2230 FTipoEvento;
};

} // namespace tarvo::trabalhador
