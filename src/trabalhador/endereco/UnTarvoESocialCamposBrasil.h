#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Address of a worker, read as one in Brazil. Source: EMPREGADOS, with the kind of street in the payroll's register
/// (CA06_CODLOGRAD) and in the eSocial's table 20, and the municipality in MUNICIPIOS. Loaded whatever the country.
class TTarvoESocialCamposBrasil : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposBrasil(std::int64_t AIDEmpregado);

    std::int64_t LogradouroTipoID = 0;
    std::string LogradouroTipoCodigo;
    std::string LogradouroTipoDescricao;
    std::string MunicipioCodigo;
    std::string MunicipioDescricao;
    std::string LogradouroDescricao;
    std::string LogradouroNumero;
    std::string Complemento;
    std::string Bairro;
    std::string Cep;
    std::string Uf;
    std::string ESocialTipoLograd;
    std::string ESocialDescr;
    /// "S/N" for a number of blanks; a number that is not set stays empty.
    std::string NumeroLogrESocial;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
