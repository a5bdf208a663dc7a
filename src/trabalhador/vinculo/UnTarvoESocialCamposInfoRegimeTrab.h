#pragma once

#include "trabalhador/vinculo/UnTarvoESocialCamposInfoCeletista.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposInfoEstatutario.h"

namespace tarvo::trabalhador {

/// Labour regime of a bond, in both forms. Both are always loaded, whatever the worker's regime; who reads the tree
/// chooses.
class TTarvoESocialCamposInfoRegimeTrab : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoRegimeTrab(std::int64_t AIDEmpregado, TDate ADataGeracao);

    TTarvoESocialCamposInfoCeletista InfoCeletista;
    TTarvoESocialCamposInfoEstatutario InfoEstatutario;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
