#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 situacaoPF: special situation of a natural person. Source: SC00_EMPRESACFG 90/38/8, the same row for both kinds.
class TTarvoESocialCamposSituacaoPF : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposSituacaoPF(std::int64_t AIDEmpresa, TDateTime AData);

    std::string indSitPF;

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
