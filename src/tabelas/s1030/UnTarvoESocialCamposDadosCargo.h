#pragma once

#include "tabelas/s1030/UnTarvoESocialCamposcargoPublico.h"

namespace tarvo::tabelas {

/// S-1030 dadosCargo: name and occupation of the position. Source: FP_CARGOSDESCR and FP_CBO2002; a position without an
/// occupation loads nothing.
class TTarvoESocialCamposDadosCargo : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDadosCargo(std::int64_t AIDCargosDescr);

    std::string nmCargo;
    /// With its hyphen, unlike that of a function.
    std::string codCBO;
    /// FP_CBO2002.IDCBO2002, which the statement writes; codCBO itself is not written.
    std::int32_t ReverIdCbo = 0;
    TTarvoESocialCamposcargoPublico cargoPublico;
    std::int64_t IDCargo;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    /// One statement always, even for a position that the load didn't find, then those of the public position. Texts
    /// aren't escaped.
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDCargosDescr;
};

} // namespace tarvo::tabelas
