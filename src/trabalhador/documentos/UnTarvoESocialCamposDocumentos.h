#pragma once

#include "trabalhador/documentos/UnTarvoESocialCamposCnh.h"
#include "trabalhador/documentos/UnTarvoESocialCamposCtps.h"
#include "trabalhador/documentos/UnTarvoESocialCamposOc.h"
#include "trabalhador/documentos/UnTarvoESocialCamposRg.h"
#include "trabalhador/documentos/UnTarvoESocialCamposRic.h"
#include "trabalhador/documentos/UnTarvoESocialCamposRne.h"

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
