#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "regras/UnTarvoESocialCamposSqlLugar.h"

namespace tarvo::tabelas {

/// S-1005 infoCaepf: kind of the CAEPF. Source: SC00_EMPRESACFG 1/1/1 of the company.
class TTarvoESocialCamposInfoCaepf : public TTarvoESocialCamposGrupoBase {
public:
    /// Only the low 32 bits of the two ids count; meant.
    TTarvoESocialCamposInfoCaepf(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    std::string tpCaepf;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
    TDateTime FData;
};

} // namespace tarvo::tabelas
