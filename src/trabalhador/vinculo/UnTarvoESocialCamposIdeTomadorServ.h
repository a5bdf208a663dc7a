#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Taker of the services of a temporary worker. Source: MOV_PRESTSERV with PREST_SERVICO for the place of the worker
/// (MOV_TRANSF) in the month of the admission, or of the employer's start in the eSocial where that is later; of
/// several takers any one comes.
class TTarvoESocialCamposIdeTomadorServ : public TTarvoESocialCamposGrupoBase {
public:
    /// ADataBase has no effect: each load works out its own month.
    TTarvoESocialCamposIdeTomadorServ(std::int64_t AIDEmpregado, TDate ADataBase);

    std::string TipoInscricao;
    std::string NumeroInscricao;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    TDateTime BuscarDataDeReferencia() const;

    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
