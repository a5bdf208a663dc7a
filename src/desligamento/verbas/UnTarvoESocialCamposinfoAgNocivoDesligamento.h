#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// infoAgNocivo: the exposure to harmful agents in the position held on a day. Sources: CARGOS, the contract's category.
class TTarvoESocialCamposinfoAgNocivoDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    /// The occurrence as it stands, unlike in the remuneration.
    std::string grauExp;
    std::int32_t codCateg = 0;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposinfoAgNocivoDesligamento(std::string_view AGuid, std::int64_t AIdEmpregado, TDateTime ADataBase);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
    TDateTime FDataBase;
};

} // namespace tarvo::desligamento
