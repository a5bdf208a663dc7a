#pragma once

#include "trabalhador/contrato/UnTarvoESocialCamposRemuneracao.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposCargoFuncao.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposInfoEstagiario.h"

namespace tarvo::trabalhador {

/// S-2306 infoComplementares: position, salary and internship after the change, whatever the worker's category.
class TTarvoESocialCamposinfoComplementares2306 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoComplementares2306(std::int64_t AIdEmpregado, TDateTime AData);

    TTarvoESocialCamposCargoFuncao cargoFuncao;
    TTarvoESocialCamposRemuneracao remuneracao;
    TTarvoESocialCamposInfoEstagiario infoEstagiario;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
