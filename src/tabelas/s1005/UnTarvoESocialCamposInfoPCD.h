#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "regras/UnTarvoESocialCamposSqlLugar.h"

namespace tarvo::tabelas {

/// S-1005 infoPCD: quota of disabled persons, of the head office only, and of an establishment only when it has a
/// department. Source: SC00_EMPRESACFG 90/38/14.
class TTarvoESocialCamposInfoPCD : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoPCD(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);

    std::string ContPCD;
    /// The number of the process; the row holds its id.
    std::string NrProcJud;
    std::int64_t IdEstab;
    std::int64_t IdDepto;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
    TDateTime FData;
};

} // namespace tarvo::tabelas
