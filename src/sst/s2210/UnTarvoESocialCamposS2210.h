#pragma once

#include "sst/s2210/UnTarvoESocialCamposCat.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

/// Event S-2210: report of a work accident (a TABCAT row). The worker and the issuer of the certificate are looked up at
/// construction, which therefore needs the database.
class TTarvoESocialCamposS2210 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposS2210(std::int64_t AIdTabCat);

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposCat cat;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::sst
