#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1030 leiCargo: the law behind a public position. Source: FP_CARGOSPUBLICO.
class TTarvoESocialCamposleiCargo : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposleiCargo(std::int64_t AIDCargosDescr);

    std::string nrLei;
    /// dd/mm/yyyy.
    std::string dtLei;
    std::string sitCargo;
    std::int64_t IdCargosDescr;

    /// One statement unless dtLei is empty; a text that is no date is written as day 0.
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDCargosDescr;
};

} // namespace tarvo::tabelas
