#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Category of a contract for the FGTS and the date of the option. Source: EMPREGADOS.
class TTarvoESocialCamposFgts : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposFgts(std::int64_t AIDEmpregado);

    std::string Categoria;
    /// The category without its code.
    std::string CategoriaDesc;
    TDate DataOpcaoFgts;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
