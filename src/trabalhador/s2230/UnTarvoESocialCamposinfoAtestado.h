#pragma once

#include "trabalhador/atestado/UnTarvoESocialCamposEmitente.h"

namespace tarvo::trabalhador {

/// S-2230 infoAtestado: a medical certificate. Source: FP_SITUACAOATESTADO. Its issuer is looked up at construction.
class TTarvoESocialCamposinfoAtestado : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoAtestado(std::int64_t AIdSituacaoAtestado);

    std::string codCID;
    std::int32_t qtDiasAfast = 0;
    TTarvoESocialCamposEmitente Emitente;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdSituacaoAtestado;
};

} // namespace tarvo::trabalhador
