#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2300 infoTrabCedido: the employer of origin of a worker on loan, and the regimes. Source: FP_EMPREGADOSDET 1/2 of
/// a worker of TIPOADMISSAO 4 and SC00_EMPREGADOCFG 90/38/7, whatever its validity, though a row in force at the date
/// comes before the others; empty unless both exist.
class TTarvoESocialCamposInfoTrabCedido : public TTarvoESocialCamposGrupoBase {
public:
    /// Without a date no row counts as in force, and the newest comes first.
    explicit TTarvoESocialCamposInfoTrabCedido(std::int64_t AIDEmpregado, TDate ADataGeracao = TDate());

    /// For the caller; no load sets it.
    std::int32_t categOrig = 0;
    std::string cnpjCednt;
    std::string matricCed;
    TDateTime dtAdmCed;
    std::string tpRegTrab;
    std::string tpRegPrev;
    std::string infOnus;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
