#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2300 termino: end of the work without a bond. Source: EMPREGADOS, for a worker who has a termination of situation
/// 0 in TAB_RESCISAO.
class TTarvoESocialCamposTermino : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposTermino(std::int64_t AIDEmpregado);

    TDate dtTerm;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
