#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// S-2299 transfTit: the new holder of a domestic employment. Source: TRANSF_EMPREG of reason 34.
class TTarvoESocialCamposTransfTitS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposTransfTitS2299(std::int64_t AIdEmpregado);

    /// For the caller.
    TDate dtNascto;
    std::string cpfSubstituto;
    std::string motivoAfast;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
};

} // namespace tarvo::desligamento
