#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// S-2299 infoTrabInterm: a convocation of intermittent work. Source: FP_CONTRAINTERM.
class TTarvoESocialCamposInfoTrabIntermS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoTrabIntermS2299(std::int64_t AIDDetConvocacaoTrabInterm);

    std::string codConv;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDDetConvocacaoTrabInterm;
};

} // namespace tarvo::desligamento
