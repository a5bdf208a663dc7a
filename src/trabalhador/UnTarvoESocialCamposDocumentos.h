#pragma once

#include "trabalhador/UnTarvoESocialCamposCnh.h"
#include "trabalhador/UnTarvoESocialCamposCtps.h"
#include "trabalhador/UnTarvoESocialCamposOc.h"
#include "trabalhador/UnTarvoESocialCamposRg.h"
#include "trabalhador/UnTarvoESocialCamposRic.h"
#include "trabalhador/UnTarvoESocialCamposRne.h"

namespace tarvo::trabalhador {

/// The documents of a worker.
class TTarvoESocialCamposDocumentos : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDocumentos(std::int64_t AIDEmpregado);

    TTarvoESocialCamposCtps Ctps;
    TTarvoESocialCamposRic Ric;
    TTarvoESocialCamposRg Rg;
    TTarvoESocialCamposRne Rne;
    TTarvoESocialCamposOc Oc;
    TTarvoESocialCamposCnh Cnh;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
