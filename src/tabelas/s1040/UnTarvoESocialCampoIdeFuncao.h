#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1040 ideFuncao: code of the function. Source: FP_CARGOSDESCR.
class TTarvoESocialCamposIdeFuncao : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeFuncao(std::int64_t AIDCargosDescr);

    std::string CodFuncao;
    /// For the caller to fill.
    std::string iniValid;
    /// For the caller to fill.
    std::string fimValid;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDCargosDescr;
};

} // namespace tarvo::tabelas
