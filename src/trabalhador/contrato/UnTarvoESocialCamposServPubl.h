#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Reason of the last change of a public servant's position at a date. Source: SP_BUSCARCARGOEMPREGADO.
class TTarvoESocialCamposServPubl : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposServPubl(std::int64_t AIdEmpregado, TDateTime AData);

    std::string mtvAlter;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDateTime FData;
};

} // namespace tarvo::trabalhador
