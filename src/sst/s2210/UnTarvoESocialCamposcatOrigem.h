#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::sst {

/// S-2210 catOrigem: receipt of the report that this one follows, once the government accepted it. Source:
/// SC00_ESOCIALREINFXML and SC00_ESOCIALREINFDET of the environment in use.
class TTarvoESocialCamposcatOrigem : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposcatOrigem(std::int64_t AIdTabCat);

    std::string nrCatOrig;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdTabCat;
};

} // namespace tarvo::sst
