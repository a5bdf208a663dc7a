#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// S-2299 consigFGTS: the loan guaranteed by the FGTS. Source: FP_EMPREGADOSDET 4/1.
class TTarvoESocialCamposConsigFGTS : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposConsigFGTS(std::int64_t AIdEmpregado);

    std::string insConsig;
    std::string nrContr;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
};

} // namespace tarvo::desligamento
