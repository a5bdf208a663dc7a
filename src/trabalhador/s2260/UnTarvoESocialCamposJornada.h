#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2260 jornada: schedule and day of the call. Source: FP_CONTRAINTERM, with the code of a schedule of TAB_HORARIOS
/// whose kind isn't 3; a code that is no number fails in the engine.
class TTarvoESocialCamposJornada : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposJornada(std::int64_t AIdEmpregado, TDateTime ADataInicio);

    /// Six digits of the schedule and one of the day of the week, 0 Sunday to 6 Saturday.
    std::string codHorContrat;
    std::string dscJornada;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
    TDateTime FDataInicio;
};

} // namespace tarvo::trabalhador
