#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// A dependant of a worker. Source: DEPENDENTES by the dependant's own id, with the degree of dependency from table 7.
class TTarvoESocialCamposDependente : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDependente(std::int64_t AIDDependente);

    std::string GrauDependenciaDesc;
    std::string GrauDependenciaCodigo;
    std::string Nome;
    std::int32_t CodDependente = 0;
    TDate DataNascimento;
    std::string Cpf;
    TDate DataFimIrrf;
    TDate DataFimInss;
    std::int64_t IDDependente = 0;
    std::string Dep_Perm;
    std::int32_t CodEmpresa = 0;
    std::int32_t CodEmpregado = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDDependente;
};

} // namespace tarvo::trabalhador
