#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Disability of a worker. Source: EMPREGADOS.
class TTarvoESocialCamposInfoDeficiencia : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoDeficiencia(std::int64_t AIDEmpregado);

    std::int32_t TipoDeficiencia = 0;
    /// Whether the worker counts for the quota.
    std::int32_t infoCota = 0;
    /// Text of the payroll's own kind (TIPO_DEFICIENCIA), which needn't agree with TipoDeficiencia.
    std::string TipoDeficienciaDesc;
    std::string Observacao;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
