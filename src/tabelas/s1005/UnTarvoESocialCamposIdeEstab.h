#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "regras/UnTarvoESocialCamposSqlLugar.h"

namespace tarvo::tabelas {

/// S-1005 ideEstab: kind and number of inscription. Source: SC00_FILIAL and its company, or SC00_DEPTO.
class TTarvoESocialCamposIdeEstab : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposIdeEstab(std::int64_t AIDEstab, std::int64_t AIDDepto);

    std::string TpInsc;
    /// CAEPF, else CEI, else CNPJ of an establishment; the own inscription of a department.
    std::string NrInsc;
    std::string MatriculaCEI;
    std::string MatriculaCAEPF;
    /// Kind of inscription of the company; empty for a department.
    std::string TpInscEmp;
    /// Start of a department; an establishment has none.
    TDateTime IniValid;
    /// For the caller to fill.
    TDateTime FimValid;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    regras::TLugar FLugar;
};

} // namespace tarvo::tabelas
