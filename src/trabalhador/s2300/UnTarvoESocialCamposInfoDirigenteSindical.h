#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2300 infoDirigenteSindical: a union leader's employer of origin. Source: FP_EMPREGADOSDET 1/5. A date of origin
/// that is no date raises EConvertError.
class TTarvoESocialCamposInfoDirigenteSindical : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoDirigenteSindical(std::int64_t AIDEmpregado);

    std::string categOrig;
    std::string cnpjOrigem;
    TDateTime dtAdmOrigem;
    std::string matricOrig;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
