#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/pcesConversaoeSocial.h"

namespace tarvo::trabalhador {

/// S-2210 and S-2230 emitente: the doctor or dentist who issued a certificate. Source: PREST_SERVICO.
class TTarvoESocialCamposEmitente : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposEmitente(std::int64_t AIdPrestServico);

    std::string nmEmit;
    tpIdeOC ideOC{};
    std::string SiglaOC;
    std::string nrOc;
    std::string ufOC;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    std::int64_t FIdPrestServico;
};

} // namespace tarvo::trabalhador
