#pragma once

#include "tabelas/s1010/UnTarvoESocialCamposInfoRubrica.h"

namespace tarvo::tabelas {

/// S-1010: table of rubrics. One event reports a rubric of the payroll (AIdVerba) or a value kind of a provider's
/// receipt (AIdRubricaRpa); the other id is 0. ACodigosIncidencia holds the incidences of a rubric, usually from
/// TTarvoESocialCamposBuscaIncidVerbas; the caller keeps it, and it may be null.
class TTarvoESocialCamposS1010 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposS1010(std::int64_t AIdVerba, std::int64_t AidEmpresa, std::int64_t AIdRubricaRpa,
                             TDateTime ADataGeracao, const regras::TCodigosIncidenciaVerba* ACodigosIncidencia);

    TTarvoESocialCamposInfoRubrica InfoRubrica;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
