#pragma once

#include "trabalhador/s3000/UnTarvoESocialCamposInfoExclusao.h"

namespace tarvo::trabalhador {

/// Event S-3000: exclusion of an event already sent.
class TTarvoESocialCamposS3000 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdEvento: SC00_ESOCIALREINFXML.IDESOCIALREINFXML. Exception when that event's kind is unknown.
    explicit TTarvoESocialCamposS3000(std::int64_t AIdEvento);

    TTarvoESocialCamposInfoExclusao InfoExclusao;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
