#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Appointment of a statutory servant at a date. Source: SC00_EMPREGADOCFG 90/38/10; of several rows in force the
/// engine's first. Raises EConvertError when one of the dates is a text that is no date.
class TTarvoESocialCamposInfoEstatutario : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoEstatutario(std::int64_t AIDEmpregado, TDate ADataGeracao);

    std::int32_t IndProvimento = 0;
    std::int32_t TipoProvimento = 0;
    TDate DataNomeacao;
    TDate DataPosse;
    TDate DataExercicio;
    std::int32_t tpPlanRP = 0;
    std::string nrProcJud;
    std::int64_t IdEmpregado() const { return FIDEmpregado; }

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
