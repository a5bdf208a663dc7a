#pragma once

#include "trabalhador/contrato/UnTarvoESocialCamposInfoContrato.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposAfastamento.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposDesligamento.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposInfoRegimeTrab.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposSucessaoVinc.h"
#include "trabalhador/vinculo/UnTarvoESocialCampostransfDom.h"

namespace tarvo::trabalhador {

/// The bond between worker and employer at a date, with its regimes, its terms, its origin and its end. Source:
/// EMPREGADOS and the regimes of SC00_EMPREGADOCFG 90/38/7; a worker without them has a registration and an admission
/// all the same.
class TTarvoESocialCamposVinculo : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposVinculo(std::int64_t AIDEmpregado, TDate ADataGeracao);

    std::string Matricula;
    std::string TipoRegTrabalhista;
    std::string TipoRegTrabCodigo;
    std::string TipoRegPrevidenciario;
    std::string TipoRegPrevCodigo;
    TDateTime DataDeAdmissao;
    TTarvoESocialCamposInfoRegimeTrab InfoRegimeTrab;
    TTarvoESocialCamposInfoContrato InfoContrato;
    TTarvoESocialCamposSucessaoVinc SucessaoVinc;
    TTarvoESocialCamposAfastamento Afastamento;
    TTarvoESocialCamposDesligamento Desligamento;
    TTarvoESocialCampostransfDom transfDom;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
