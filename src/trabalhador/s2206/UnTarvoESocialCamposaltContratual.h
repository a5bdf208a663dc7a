#pragma once

#include "trabalhador/s2206/UnTarvoESocialCamposInfoContratoS2206.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposInfoRegimeTrab.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposVinculo.h"

namespace tarvo::trabalhador {

/// S-2206 altContratual: the contract as it stands after the change. The regime and the terms stand here twice, inside
/// Vinculo and beside it, and are loaded twice; meant.
class TTarvoESocialCamposaltContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposaltContratual(std::int64_t AIDEmpregado, TDateTime ADataGeracao);

    /// For the caller; no load sets it.
    TDateTime dtALteracao;
    /// The day from which the change counts: the start of the salary in force at the date.
    TDate dtEf;
    /// For the caller; no load sets it.
    std::string dscAlt;
    TTarvoESocialCamposVinculo Vinculo;
    TTarvoESocialCamposInfoRegimeTrab infoRegimeTrab;
    TTarvoESocialCamposInfoContratoS2206 infoContrato;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDateTime FDataGeracao;
};

} // namespace tarvo::trabalhador
