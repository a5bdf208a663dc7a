#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2260 localTrabInterm: address of the work. Source: PREST_SERVICO, the taker of the call, with the kind of street;
/// a taker without one gives nothing.
class TTarvoESocialCamposLocalTrabInterm : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposLocalTrabInterm(std::int64_t AIdEmpregado, TDateTime ADataInicio);

    std::string tpLograd;
    std::string dscLograd;
    std::string nrLograd;
    /// For the caller; no load sets it.
    std::string complem;
    std::string bairro;
    /// Without punctuation.
    std::string cep;
    std::string codMunic;
    std::string uf;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
    TDateTime FDataInicio;
};

} // namespace tarvo::trabalhador
