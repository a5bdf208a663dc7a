#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Driver's licence (CNH) of a worker. Source: EMPREGADOS.
class TTarvoESocialCamposCnh : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposCnh(std::int64_t AIDEmpregado);

    std::string Numero;
    TDate DataExpedicao;
    TDate DataValidade;
    std::string CategoriaCnh;
    TDate DataPrimeiraHabilitacao;
    std::string Uf;
    /// Whether the document is to be reported.
    bool PossuiInformacao() const;
    std::int64_t IdEmpregado() const { return FIDEmpregado; }
    /// For the caller; no load sets it.
    std::int64_t CodEmpregado = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
