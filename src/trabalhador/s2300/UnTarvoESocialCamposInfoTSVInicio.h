#pragma once

#include "trabalhador/s2300/UnTarvoESocialCamposInfoComplementaresEmpregado.h"
#include "trabalhador/s2300/UnTarvoESocialCamposTermino.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposAfastamento.h"

namespace tarvo::trabalhador {

/// S-2300 infoTSVInicio: category and start of the work without a bond. Source: EMPREGADOS, with the code of the
/// category, which must be a number: any other text fails in the engine.
class TTarvoESocialCamposInfoTSVInicio : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoTSVInicio(std::int64_t AIDEmpregado, TDate ADataGeracao);

    /// The whole part of the code alone: 723.1 is 723.
    std::string codCateg;
    /// The first definitive transfer into the company, else the admission.
    TDateTime dtInicio;
    std::string natAtividade;
    TTarvoESocialCamposInfoComplementaresEmpregado InfoComplementares;
    TTarvoESocialCamposAfastamento Afastamento;
    TTarvoESocialCamposTermino Termino;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
