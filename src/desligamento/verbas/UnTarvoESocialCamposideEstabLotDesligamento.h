#pragma once

#include "desligamento/s2299/UnTS2299DadosCalculos.h"
#include "desligamento/s2399/UnTS2399DadosCalculos.h"
#include "desligamento/verbas/UnTarvoESocialCamposLotacaoDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposSaudeColetDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposdetVerbasDesligamento.h"
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
        return tabelas::SqlInscricaoDaLotacao(LDmDev.IDFilial, LDmDev.IDDepto);
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

/// No health plan in a complementary dismissal or in the differences of an agreement.
class TTarvoESocialCamposideEstabLotS2299
    : public TTarvoESocialCamposideEstabLotDesligamento<
          TTarvoESocialCamposdetVerbasS2299, TTarvoESocialCamposinfoSaudeColetS2299,
          TTarvoESocialCamposinfoAgNocivoS2299, TTarvoESocialCamposinfoSimplesS2299> {
public:
    explicit TTarvoESocialCamposideEstabLotS2299(const TS2299DadosCalculos& ADadosCalculo)
        : TTarvoESocialCamposideEstabLotDesligamento("{A8F0D8CA-CE60-4479-B554-4D3488828F4B}", ADadosCalculo)
    {}

protected:
    bool TemPlanoDeSaude(TTipoCalculoDesligamento ATipo) const override
    {
        return ATipo != TTipoCalculoDesligamento::RescisaoComplementar &&
               ATipo != TTipoCalculoDesligamento::ComplementarPagoNaCompet;
    }
};

/// No health plan in a complementary termination.
class TTarvoESocialCamposideEstabLotS2399
    : public TTarvoESocialCamposideEstabLotDesligamento<
          TTarvoESocialCamposdetVerbasS2399, TTarvoESocialCamposinfoSaudeColetS2399,
          TTarvoESocialCamposinfoAgNocivoS2399, TTarvoESocialCamposinfoSimplesS2399> {
public:
    explicit TTarvoESocialCamposideEstabLotS2399(const TS2399DadosCalculos& ADadosCalculo)
        : TTarvoESocialCamposideEstabLotDesligamento("{BC9056DD-2CB4-4539-A0FD-7429F7771DC6}", ADadosCalculo)
    {}

protected:
    bool TemPlanoDeSaude(TTipoCalculoDesligamento ATipo) const override
    {
        return ATipo != TTipoCalculoDesligamento::RescisaoComplementar;
    }
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
