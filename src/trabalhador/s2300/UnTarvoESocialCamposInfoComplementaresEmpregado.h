#pragma once

#include "trabalhador/contrato/UnTarvoESocialCamposRemuneracao.h"
#include "trabalhador/s2300/UnTarvoESocialCamposInfoDirigenteSindical.h"
#include "trabalhador/s2300/UnTarvoESocialCamposInfoTrabCedido.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposCargoFuncao.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposInfoEstagiario.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposFgts.h"

namespace tarvo::trabalhador {

/// S-2300 infoComplementares: what a kind of worker without a bond has beside the others. All of it is loaded, whatever
/// the worker's category.
class TTarvoESocialCamposInfoComplementaresEmpregado : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoComplementaresEmpregado(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposCargoFuncao CargoFuncao;
    TTarvoESocialCamposRemuneracao Remuneracao;
    TTarvoESocialCamposFgts FGTS;
    TTarvoESocialCamposInfoDirigenteSindical InfoDirSind;
    TTarvoESocialCamposInfoTrabCedido InfoTrabCedido;
    TTarvoESocialCamposInfoEstagiario InfoEstagiario;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
