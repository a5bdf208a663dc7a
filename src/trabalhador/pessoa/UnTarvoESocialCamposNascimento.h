#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Birth, parents and nationality of a worker. Source: EMPREGADOS, with the countries in the payroll's register
/// (CA06_PAIS) and in the eSocial's table 6. Raises EDatabaseError when table 6 holds a code that is no number and is
/// compared with a country of the worker.
class TTarvoESocialCamposNascimento : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposNascimento(std::int64_t AIDEmpregado);

    TDate DataNascimento;
    std::string MunicipioCodigo;
    std::string MunicipioNome;
    std::string MunicipioUf;
    std::int64_t PaisNascimentoID = 0;
    std::int32_t PaisNascimentoCodigo = 0;
    std::string PaisNascimentoNome;
    std::int64_t PaisNacionalidadeID = 0;
    std::int32_t PaisNacionalidadeCodigo = 0;
    std::string PaisNacionalidadeNome;
    std::string NomeMae;
    std::string NomePai;
    std::string CodigoESocialPaisNasc;
    std::string CodigoESocialPaisNascion;
    std::int64_t IdEmpregado() const { return FIDEmpregado; }

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
