#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::remuneracao {

/// S-1200 infoTrabInterm: the code of a convocation of intermittent work. Source: FP_CONTRAINTERM.
class TTarvoESocialCamposInfoTrabInterm : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoTrabInterm(std::int64_t AIdDetConvocacao);

    /// Empty without a convocation (0).
    std::string codConv;
    /// Set by the parent.
    std::int32_t codCateg = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdDetConvocacao;
};

} // namespace tarvo::remuneracao
