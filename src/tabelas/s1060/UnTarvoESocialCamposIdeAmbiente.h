#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1060 ideAmbiente: code and validity of the environment. Source: SST_AMBIENTES.
class TTarvoESocialCamposIdeAmbiente : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdeAmbiente(std::int64_t AIdAmbiente);

    std::string codAmb;
    /// dd/mm/yyyy.
    std::string iniValid;
    std::string fimValid;
    /// For the caller to fill: the statement reads the company, but nothing takes it; meant.
    std::int64_t idEmpresa = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdAmbiente;
};

} // namespace tarvo::tabelas
