#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1040 dadosFuncao: description and occupation, which may be missing. Source: FP_CARGOSDESCR and FP_CBO2002.
class TTarvoESocialCamposDadosFuncao : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDadosFuncao(std::int64_t AIDCargosDescr);

    std::string dscFuncao;
    /// Without its hyphen, unlike that of a position.
    std::string codCBO;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDCargosDescr;
};

} // namespace tarvo::tabelas
