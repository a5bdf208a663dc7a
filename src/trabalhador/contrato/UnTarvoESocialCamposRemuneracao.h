#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Salary of a worker at a date. Source: the rows of SP_BUSCARSALARIOEMPREGADO, one for each level of a worker paid
/// by the class hour; a row whose level isn't in FP_NIVEL is left out. The first row counts; of several, the
/// description of the variable salary lists every one.
class TTarvoESocialCamposRemuneracao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposRemuneracao(std::int64_t AIDEmpregado, TDate ADataGeracao);

    /// In the unit of the kind of remuneration: a month, an hour, a class hour.
    double ValorSalarioFixo = 0;
    std::string TipoRemuneracao;
    std::string TipoRemuneracaoDesc;
    std::string DescricaoSalarioVariavel;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
