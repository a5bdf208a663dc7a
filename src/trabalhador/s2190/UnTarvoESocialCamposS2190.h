#pragma once

#include "trabalhador/s2190/UnTarvoESocialCamposinfoRegPrelim.h"

namespace tarvo::trabalhador {

/// Event S-2190: preliminary record of an admission.
class TTarvoESocialCamposS2190 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdEmpregado: EMPREGADOS.IDEMPREGADO.
    explicit TTarvoESocialCamposS2190(std::int64_t AIdEmpregado);

    TTarvoESocialCamposinfoRegPrelim infoRegPrelim;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
