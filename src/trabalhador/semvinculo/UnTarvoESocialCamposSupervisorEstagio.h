#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Supervisor of an internship. Source: EMPREGADOS, the row of the supervisor, whose id stands in FP_EMPREGADOSDET 1/4.
class TTarvoESocialCamposSupervisorEstagio : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposSupervisorEstagio(std::int64_t AIDEmpregado);

    std::string cpfSupervisor;
    std::string nmSuperv;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
