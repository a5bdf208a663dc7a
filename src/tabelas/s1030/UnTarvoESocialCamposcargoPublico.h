#pragma once

#include "tabelas/s1030/UnTarvoESocialCamposleiCargo.h"

namespace tarvo::tabelas {

/// S-1030 cargoPublico: a public position. Source: FP_CARGOSPUBLICO.
class TTarvoESocialCamposcargoPublico : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposcargoPublico(std::int64_t AIDCargosDescr);

    std::string acumCargo;
    std::string contagemEsp;
    std::string dedicExcl;
    TTarvoESocialCamposleiCargo leicargo;
    std::int64_t IdCargosDescr;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    /// One statement unless acumCargo is empty, then that of the law. The values are codes and go without quotes.
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDCargosDescr;
};

} // namespace tarvo::tabelas
