#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Position of a worker without a bond at a date. Source: SP_BUSCARCARGOEMPREGADO with FP_CARGOSDESCR and
/// FP_CARGOSPUBLICO.
class TTarvoESocialCamposCargoFuncao : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposCargoFuncao(std::int64_t AIDEmpregado, TDate ADataGeracao);

    std::string codCargo;
    std::string DescCargo;
    std::int32_t TipoCargo = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
