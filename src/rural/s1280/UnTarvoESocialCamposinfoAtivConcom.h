#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::rural {

/// S-1280 infoAtivConcom: factor of concurrent activities of the month, of the establishment with the lowest EHMATRIZ:
/// a branch that holds 0 goes before the head office, and that is meant. Source: FP_RECEITASIMPLES.
class TTarvoESocialCamposinfoAtivConcom : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoAtivConcom(std::int64_t AIdEmpresa, TDateTime ACompt);

    double fatorMes = 0;
    /// The same column as fatorMes.
    double fator13 = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpresa;
    TDateTime FCompt;
};

} // namespace tarvo::rural
