#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "regras/UnTarvoESocialCamposCodRubr.h"

namespace tarvo::tabelas {

/// S-1010 ideRubrica: code and table of a rubric, or of a value kind of a provider's receipt. With both ids it follows
/// the rubric. Sources: TAB_VERBAS, RPATPVALOR, SC00_EMPRESACFG 90/38/13 ("0" without a row). The caller sets the
/// validity.
class TTarvoESocialCamposIdeRubrica : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposIdeRubrica(std::int64_t AIdVerba, std::int64_t AidEmpresa, std::int64_t AIdRubricaRpa,
                                  const regras::TCodigosIncidenciaVerba* ACodigosIncidencia);

    std::string codRubr;
    std::string IdeTabRubr;
    TDateTime iniValid;
    TDateTime fimValid;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdVerba;
    std::int64_t FIdEmpresa;
    std::int64_t FIdRubricaRpa;
};

} // namespace tarvo::tabelas
