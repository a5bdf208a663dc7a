#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Register of a foreigner (RNE). Source: EMPREGADOS, with the name of the country of birth from CA06_PAIS.
class TTarvoESocialCamposRne : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposRne(std::int64_t AIDEmpregado);

    std::string Numero;
    std::string OrgaoEmissor;
    TDate DataExpedicao;
    /// Name, in capitals.
    std::string PaisNascimento;
    /// Whether the document is to be reported; the country alone is no reason to.
    bool PossuiInformacao() const;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
