#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2250 cancAvPrevio: the cancellation of the notice. Source: FP_AVISOPREVIO.
class TTarvoESocialCamposcancAvPrevio : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposcancAvPrevio(std::int64_t AIdAvisoPrevio);

    TDateTime dtCancAvPrv;
    std::string observacao;
    std::string mtvCancAvPrevio;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdAvisoPrevio;
};

} // namespace tarvo::trabalhador
