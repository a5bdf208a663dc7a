#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/periodo/UnTarvoESocialCamposS1200DadosCalculo.h"
#include "remuneracao/saude/UnTarvoESocialCamposdetOperS1200.h"

namespace tarvo::remuneracao {

/// S-1200 infoSaudeColet: what the worker pays for the collective health plan, by operator. A calculated rubric that
/// is linked to an operator is such an amount.
class TTarvoESocialCamposInfoSaudeColetS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoSaudeColetS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200);

    TListaDeGrupos<TTarvoESocialCamposdetOperS1200> detOper;
    /// The calculated rows, of the parent, which sets them before the load; null counts as none.
    const std::vector<TDadosCalculo>* ListaDadosCalculo = nullptr;
    /// The load doesn't use the next three.
    TOrigemInformacoesCalculo OrigemInfoCalculo = TOrigemInformacoesCalculo::ocCALCULO;
    std::int64_t IdFilial = 0;
    std::int64_t IdDepto = 0;

    bool possuiInformacao() const { return !detOper.empty(); }

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarDadosDetOper();

    const TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
