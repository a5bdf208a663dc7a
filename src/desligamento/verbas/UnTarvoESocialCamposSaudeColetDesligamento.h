#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"
#include "tabelas/saude/UnTarvoESocialCamposDetOperPlanoSaude.h"

namespace tarvo::desligamento {

/// detPlano: a dependant in the health plan and his share, cut to the days worked in the lotação. Sources:
/// FP_PSAUDEVLRMESDEP, DEPENDENTES, FP_ESOCIALTABELA.
class TTarvoESocialCamposdetPlanoDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    std::string tpDep;
    std::string cpfDep;
    std::string nmDep;
    TDateTime dtNascto;
    /// In reais.
    Currency vlrPgDep;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposdetPlanoDesligamento(std::string_view AGuid, std::int64_t AIdPSaudeVlrMesDep,
                                            TDateTime ADataInicioCalculo, TDateTime ADataFimCalculo,
                                            std::int32_t ADiasTrabalhadosNaLotacao);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void ProporcionalizarValorPelosDiasTrabalhados();

    std::int64_t FIdPSaudeVlrMesDep;
    TDateTime FDataInicioCalculo;
    TDateTime FDataFimCalculo;
    std::int32_t FDiasTrabalhadosNaLotacao;
};

class TTarvoESocialCamposdetPlanoS2299 : public TTarvoESocialCamposdetPlanoDesligamento {
public:
    TTarvoESocialCamposdetPlanoS2299(std::int64_t AIdPSaudeVlrMesDep, TDateTime ADataInicioCalculo,
                                     TDateTime ADataFimCalculo, std::int32_t ADiasTrabalhadosNaLotacao)
        : TTarvoESocialCamposdetPlanoDesligamento("{7C8D2E4B-6CE5-4CF6-9FFA-7A98243FE2E8}", AIdPSaudeVlrMesDep,
                                                  ADataInicioCalculo, ADataFimCalculo, ADiasTrabalhadosNaLotacao)
    {}
};

class TTarvoESocialCamposdetPlanoS2399 : public TTarvoESocialCamposdetPlanoDesligamento {
public:
    TTarvoESocialCamposdetPlanoS2399(std::int64_t AIdPSaudeVlrMesDep, TDateTime ADataInicioCalculo,
                                     TDateTime ADataFimCalculo, std::int32_t ADiasTrabalhadosNaLotacao)
        : TTarvoESocialCamposdetPlanoDesligamento("{24D07A1F-63EB-4D8A-B054-063E94EC7050}", AIdPSaudeVlrMesDep,
                                                  ADataInicioCalculo, ADataFimCalculo, ADiasTrabalhadosNaLotacao)
    {}
};

/// detOper: the operator of a rubric's health plan, of the worker of the amount.
template <class TDetPlano>
class TTarvoESocialCamposdetOperDesligamento : public tabelas::TTarvoESocialCamposDetOperPlanoSaude<TDetPlano> {
protected:
    TTarvoESocialCamposdetOperDesligamento(std::string_view AGuid, const TDadosCalculo& ADadosCalculo,
                                           TDateTime ADataInicioCalculo, TDateTime ADataFimCalculo,
                                           tabelas::TOperadorasDaVerba AOperadoras)
        : tabelas::TTarvoESocialCamposDetOperPlanoSaude<TDetPlano>(AGuid,
                                                                   {.IdVerba = ADadosCalculo.IDVerba,
                                                                    .Valor = ADadosCalculo.Valor,
                                                                    .DataInicio = ADataInicioCalculo,
                                                                    .DataFim = ADataFimCalculo,
                                                                    .DiasTrab = ADadosCalculo.DiasTrabNaLotacao},
                                                                   AOperadoras),
          FIDEmpregado(ADadosCalculo.IDEmpregado)
    {}

    std::string CondicaoDoEmpregado() const override { return "= " + std::to_string(FIDEmpregado); }

private:
    std::int64_t FIDEmpregado;
};

class TTarvoESocialCamposdetOperS2299
    : public TTarvoESocialCamposdetOperDesligamento<TTarvoESocialCamposdetPlanoS2299> {
public:
    TTarvoESocialCamposdetOperS2299(const TDadosCalculo& ADadosCalculo, TDateTime ADataInicioCalculo,
                                    TDateTime ADataFimCalculo)
        : TTarvoESocialCamposdetOperDesligamento("{47FD1DE5-FF3B-4362-95D1-BAB400A9F942}", ADadosCalculo,
                                                 ADataInicioCalculo, ADataFimCalculo,
                                                 tabelas::TOperadorasDaVerba::SemTipo2)
    {}
};

class TTarvoESocialCamposdetOperS2399
    : public TTarvoESocialCamposdetOperDesligamento<TTarvoESocialCamposdetPlanoS2399> {
public:
    TTarvoESocialCamposdetOperS2399(const TDadosCalculoS2399& ADadosCalculo, TDateTime ADataInicioCalculo,
                                    TDateTime ADataFimCalculo)
        : TTarvoESocialCamposdetOperDesligamento("{A00D8010-2F38-4140-8BB9-F99084C2C79C}", ADadosCalculo,
                                                 ADataInicioCalculo, ADataFimCalculo,
                                                 tabelas::TOperadorasDaVerba::Todas)
    {}
};

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

class TTarvoESocialCamposinfoSaudeColetS2299
    : public TTarvoESocialCamposinfoSaudeColetDesligamento<TTarvoESocialCamposdetOperS2299> {
public:
    explicit TTarvoESocialCamposinfoSaudeColetS2299(const TDadosCalculosDesligamento& ADadosCalculos)
        : TTarvoESocialCamposinfoSaudeColetDesligamento("{33B0A0C1-121E-4445-B1C8-C384A53C5037}", ADadosCalculos)
    {}
};

class TTarvoESocialCamposinfoSaudeColetS2399
    : public TTarvoESocialCamposinfoSaudeColetDesligamento<TTarvoESocialCamposdetOperS2399> {
public:
    explicit TTarvoESocialCamposinfoSaudeColetS2399(const TDadosCalculosDesligamento& ADadosCalculos)
        : TTarvoESocialCamposinfoSaudeColetDesligamento("{AFD81CDD-9EFA-482A-96D3-A37680F08B4E}", ADadosCalculos)
    {}
};

} // namespace tarvo::desligamento
