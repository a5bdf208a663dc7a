#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// infoSimples: the simplified tax regime of a lotação on a day.
class TTarvoESocialCamposinfoSimplesDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    /// "0" without a setting.
    std::string indSimples;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposinfoSimplesDesligamento(std::string_view AGuid, std::int64_t AIDEstabelecimento,
                                               std::int64_t AIDDepartamento, TDateTime ADataBase);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    std::int64_t FIDEstabelecimento;
    std::int64_t FIDDepartamento;
    TDateTime FDataBase;
};

} // namespace tarvo::desligamento
