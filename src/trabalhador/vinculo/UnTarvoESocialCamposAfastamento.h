#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// The leave that a worker is on at a date, begun before it. Source: the newest of SITUACOES, whatever its kind but
/// '01' and '02', with the reason's code of FP_ESOCIALTABELA.
class TTarvoESocialCamposAfastamento : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposAfastamento(std::int64_t AIDEmpregado, TDate ADataGeracao);

    /// Code of the layout, not the payroll's own.
    std::string CodigoSituacao;
    std::string DescricaoSituacao;
    TDate DataInicioSituacao;
    /// Unset while the end is open.
    TDate DataFimSituacao;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
