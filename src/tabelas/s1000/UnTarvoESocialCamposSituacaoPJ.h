#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 situacaoPJ: special situation of a legal person. Source: SC00_EMPRESACFG 90/38/8, the same row for both kinds.
class TTarvoESocialCamposSituacaoPJ : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposSituacaoPJ(std::int64_t AIDEmpresa, TDateTime AData);

    std::string indSitPJ;

    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpresa;
    TDateTime FData;
};

} // namespace tarvo::tabelas
