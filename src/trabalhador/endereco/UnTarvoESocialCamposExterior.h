#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Address of a worker, read as one abroad. Source: EMPREGADOS, whose code of municipality here points at the general
/// register CA06_MUNICIPIO; the country of residence is the municipality's. Loaded whatever the country.
class TTarvoESocialCamposExterior : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposExterior(std::int64_t AIDEmpregado);

    std::string PaisResid;
    /// The payroll's own description of the kind of street, not table 20's.
    std::string DscLograd;
    /// "S/N" for a number of blanks; a number that is not set stays empty.
    std::string NrLograd;
    std::string Complemento;
    std::string Bairro;
    std::string NmCid;
    /// The municipality's; Cep is the worker's.
    std::string CodPostal;
    std::string PaisNome;
    std::string Logradouro;
    std::string Cep;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
