#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2250 detAvPrevio: the notice. Source: FP_AVISOPREVIO.
class TTarvoESocialCamposdetAvPrevio : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdetAvPrevio(std::int64_t AIdAvisoPrevio);

    TDateTime dtAvPrv;
    TDateTime dtPrevDeslig;
    std::string tpAvPrevio;
    std::string observacao;
    std::string Acordo;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdAvisoPrevio;
};

} // namespace tarvo::trabalhador
