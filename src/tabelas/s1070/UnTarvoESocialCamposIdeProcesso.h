#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1070 ideProcesso: kind, number and opening of the process. Source: ES02_SPPROC.
class TTarvoESocialCamposIdeProcesso : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeProcesso(std::int64_t AIdProcesso);

    std::string tpProc;
    /// Digits only.
    std::string nrProc;
    TDateTime iniValid;
    /// For the caller to fill.
    TDateTime fimValid;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdProcesso;
};

} // namespace tarvo::tabelas
