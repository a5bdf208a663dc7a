#pragma once

#include "trabalhador/contrato/UnTarvoESocialCamposLocalTrabDom.h"
#include "trabalhador/contrato/UnTarvoESocialCamposLocalTrabGeral.h"

namespace tarvo::trabalhador {

/// Place of work of a worker, in the form of an establishment and in that of a domestic worker. Both are always
/// loaded; who reads the tree chooses.
class TTarvoESocialCamposLocalTrabalho : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposLocalTrabalho(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposLocalTrabGeral LocalTrabGeral;
    TTarvoESocialCamposLocalTrabDom LocalTrabDom;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
