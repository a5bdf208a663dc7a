#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210IOP.h"

namespace tarvo::pagamento {

/// S-1210 deps: deduction of the income tax for the dependants at the first day of the period, in reais. Sources:
/// DEPENDENTES of the contracts, or the number in PREST_SERVICO for a provider without a contract.
class TTarvoESocialCamposdeps : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdeps(const TTarvoESocialCamposS1210IOP& AInfoBind);

    long double vrDedDep = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CalcularValorDeducao();
    std::int32_t BuscarNumeroDependentesEmpregado() const;
    std::int32_t BuscarNumeroDependentesPrestServico() const;

    const TTarvoESocialCamposS1210IOP& FInfoBind;
};

} // namespace tarvo::pagamento
