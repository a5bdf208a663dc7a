#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::sst {

/// S-2210 ideLocalAcid: inscription of the place. Source: TABCAT.
class TTarvoESocialCamposideLocalAcid : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposideLocalAcid(std::int64_t AIdTabCat);

    std::int64_t tpInsc = 0;
    std::string nrInsc;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdTabCat;
};

} // namespace tarvo::sst
