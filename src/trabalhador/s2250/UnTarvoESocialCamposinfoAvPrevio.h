#pragma once

#include "trabalhador/s2250/UnTarvoESocialCamposcancAvPrevio.h"
#include "trabalhador/s2250/UnTarvoESocialCamposdetAvPrevio.h"

namespace tarvo::trabalhador {

/// S-2250 infoAvPrevio: the notice and its cancellation, both of one row. Its GUID is also that of the exclusion of
/// S-3000.
class TTarvoESocialCamposinfoAvPrevio : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoAvPrevio(std::int64_t AIdAvisoPrevio);

    TTarvoESocialCamposdetAvPrevio detAvPrevio;
    TTarvoESocialCamposcancAvPrevio cancAvPrevio;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
