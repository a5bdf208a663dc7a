#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::sst {

/// S-2210 parteAtingida: a part of the body, by its own row. Source: FP_CATPARTEATINGIDA with code table 13.
class TTarvoESocialCamposparteAtingida : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposparteAtingida(std::int64_t AIdCatParteAtingida);

    std::int32_t codParteAting = 0;
    std::int32_t lateralidade = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdCatParteAtingida;
};

} // namespace tarvo::sst
