#pragma once

#include <memory>

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "regras/UnTarvoESocialCamposSqlLotacao.h"

namespace tarvo::desligamento {

/// ideEstabLot: an establishment or department and the rubrics of the termination there. It is the lotação that the
/// parameter object names while it is made and loaded. Sources: SC00_FILIAL, SC00_DEPTO.
template <class TDetVerbas, class TInfoSaudeColet, class TInfoAgNocivo, class TInfoSimples>
class TTarvoESocialCamposideEstabLotDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    std::string tpInsc;
    std::string nrInsc;
    std::string codLotacao;
    TListaDeGrupos<TDetVerbas> detVerbas;
    TInfoSaudeColet infoSaudeColet;
    TInfoAgNocivo infoAgNocivo;
    TInfoSimples infoSimples;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        AtribuirDetVerbas();
        if (TemPlanoDeSaude(FDadosCalculos.DadosDmDev().TipoCalculo))
            infoSaudeColet.CarregarDados(AListaCamposModificados);
        infoAgNocivo.CarregarDados(AListaCamposModificados);
        infoSimples.CarregarDados(AListaCamposModificados);
    }

    static const TPropriedades& Tabela()
    {
        using Eu = TTarvoESocialCamposideEstabLotDesligamento;
        static const TPropriedades tabela{
            {"tpInsc", &Eu::tpInsc, TFieldRelacionado("TPINSCRICAO")},
            {"nrInsc", &Eu::nrInsc, TFieldRelacionado("INSCRICAO")},
            {"codLotacao", &Eu::codLotacao, TFieldRelacionado("CODIGOESOCIAL")},
            {"detVerbas", &Eu::detVerbas},
            {"infoSaudeColet", &Eu::infoSaudeColet},
            {"infoAgNocivo", &Eu::infoAgNocivo},
            {"infoSimples", &Eu::infoSimples},
        };
        return tabela;
    }

protected:
    TTarvoESocialCamposideEstabLotDesligamento(std::string_view AGuid, const TDadosCalculosDesligamento& ADadosCalculos)
        : TTarvoESocialCamposGrupoBase(AGuid), infoSaudeColet(ADadosCalculos),
          infoAgNocivo(ADadosCalculos.DadosDmDev().IDEmpregado, ADadosCalculos.DadosDmDev().DataFim),
          infoSimples(ADadosCalculos.DadosDmDev().IDFilial, ADadosCalculos.DadosDmDev().IDDepto,
                      ADadosCalculos.DadosDmDev().DataFim),
          FDadosCalculos(ADadosCalculos)
    {}

    /// Whether a calculation of the kind shows the health plan.
    virtual bool TemPlanoDeSaude(TTipoCalculoDesligamento ATipo) const = 0;

    const TPropriedades& Propriedades() const override { return Tabela(); }

    std::string BuscarSQLDados() override
    {
        const auto& LDmDev = FDadosCalculos.DadosDmDev();
        return regras::SqlInscricaoDaLotacao(LDmDev.IDFilial, LDmDev.IDDepto);
    }

private:
    void AtribuirDetVerbas()
    {
        const auto& LDmDev = FDadosCalculos.DadosDmDev();
        const auto LIdEmpresa = TTarvoConsultasEmpresa::BuscarIDEmpresaPeloIDEstab(LDmDev.IDFilial);
        for (const auto& LDados : FDadosCalculos.DadosDaLotacaoAtual()) {
            auto LVerba = std::make_unique<TDetVerbas>(LDados, LIdEmpresa, LDmDev.DataDemissao);
            LVerba->CarregarDados();
            detVerbas.push_back(std::move(LVerba));
        }
    }

    const TDadosCalculosDesligamento& FDadosCalculos;
};

/// Adds one group a lotação of the amounts; each is named in the parameter object while its group is made and loaded.
template <class TIdeEstabLot, class TDadosCalculos>
void CarregarIdeEstabLot(TListaDeGrupos<TIdeEstabLot>& ALista, const TDadosCalculos& ADadosCalculos)
{
    for (const auto& LLotacao : ADadosCalculos.LotacoesDoCalculo()) {
        ADadosCalculos.DadosDmDev().IDFilial = LLotacao.IDEstabelecimento;
        ADadosCalculos.DadosDmDev().IDDepto = LLotacao.IdDepto;
        auto LEstabLot = std::make_unique<TIdeEstabLot>(ADadosCalculos);
        LEstabLot->CarregarDados();
        ALista.push_back(std::move(LEstabLot));
    }
}

} // namespace tarvo::desligamento
