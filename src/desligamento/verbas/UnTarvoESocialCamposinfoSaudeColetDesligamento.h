#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"
#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

namespace tarvo::desligamento {

/// infoSaudeColet: what the worker pays for the collective health plan in a lotação, by operator.
template <class TDetOper>
class TTarvoESocialCamposinfoSaudeColetDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    TListaDeGrupos<TDetOper> detOper;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        const auto& LDmDev = FDadosCalculos.DadosDmDev();
        for (const auto& LDados : FDadosCalculos.DadosDaLotacaoAtual())
            tabelas::CarregarDetOper(detOper, std::make_unique<TDetOper>(LDados, LDmDev.DataInicio, LDmDev.DataFim));
    }

    static const TPropriedades& Tabela()
    {
        static const TPropriedades tabela{{"detOper", &TTarvoESocialCamposinfoSaudeColetDesligamento::detOper}};
        return tabela;
    }

protected:
    TTarvoESocialCamposinfoSaudeColetDesligamento(std::string_view AGuid,
                                                  const TDadosCalculosDesligamento& ADadosCalculos)
        : TTarvoESocialCamposGrupoBase(AGuid), FDadosCalculos(ADadosCalculos)
    {}

    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    const TDadosCalculosDesligamento& FDadosCalculos;
};

} // namespace tarvo::desligamento
