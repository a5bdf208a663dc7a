#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1070 infoSusp: one suspension of the process. Source: ES02_SPPROCDET.
class TTarvoESocialCamposInfoSusp : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdInfoSusp: ES02_SPPROCDET.IDSPPROCDET.
    explicit TTarvoESocialCamposInfoSusp(std::int64_t AIdInfoSusp);

    /// The id of the row itself.
    std::string codSusp;
    std::string indSusp;
    TDateTime dtDecisao;
    std::string indDeposito;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdInfoSusp;
};

} // namespace tarvo::tabelas
