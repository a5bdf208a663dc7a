#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// S-2299 procCs: a process of the establishment on the union contribution or on a dismissal's rubrics. Source:
/// ES02_SPPROC of the establishment that the worker was placed in on the day of the dismissal.
class TTarvoESocialCamposProcCSS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposProcCSS2299(std::int64_t AIDEmpregado);

    std::string nrProcJud;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::desligamento
