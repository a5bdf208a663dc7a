#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1005 infoObra: substitution of the employer's contribution on a construction work. Source: SC00_DEPARTAMENTOCFG
/// 90/40/1; "0" without a row.
class TTarvoESocialCamposInfoObra : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoObra(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    std::string IndSubstPatrObra;
    std::int64_t IdEstab;
    std::int64_t IdDepto;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDDepto;
    TDateTime FData;
};

} // namespace tarvo::tabelas
