#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposideEstabLotDesligamento.h"

namespace tarvo::desligamento {

/// S-2299 infoPerApur: the amounts of the current period, by lotação.
class TTarvoESocialCamposinfoPerApurS2299 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoPerApurS2299();

    TListaDeGrupos<TTarvoESocialCamposideEstabLotS2299> ideEstabLot;

    using TTarvoESocialCamposGrupoBase::CarregarDados;
    /// From the amounts of the demonstrative, which must outlive the groups made here.
    void CarregarDados(const TS2299DadosCalculos& ADadosCalculos);

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

/// S-2299 idePeriodo: the earlier period that the differences of an agreement refer to, and its amounts by lotação.
class TTarvoESocialCamposidePeriodoS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposidePeriodoS2299(const TS2299DadosCalculos& ADadosCalculos);

    TDateTime perRef;
    TListaDeGrupos<TTarvoESocialCamposideEstabLotS2299> ideEstabLot;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    const TS2299DadosCalculos& FDadosCalculos;
};

/// S-2299 ideADC: the agreement, convention or dissídio behind differences. Source: FP_INFOGFIP650660.
class TTarvoESocialCamposideADCS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposideADCS2299(const TS2299DadosCalculos& ADadosCalculos);

    TDateTime dtAcConv;
    std::int32_t tpAcConv = 0;
    /// Month of the payment, YYYY-MM.
    std::string compAcConv;
    TDateTime dtEfAcConv;
    std::string dsc;
    TTarvoESocialCamposidePeriodoS2299 idePeriodoS2299;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    const TS2299DadosCalculos& FDadosCalculos;
};

/// S-2299 infoPerAnt: the amounts of an earlier period, under their one agreement.
class TTarvoESocialCamposinfoPerAntS2299 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposinfoPerAntS2299();

    TListaDeGrupos<TTarvoESocialCamposideADCS2299> ideADC;

    using TTarvoESocialCamposGrupoBase::CarregarDados;
    /// From the amounts of the demonstrative, which must outlive the groups made here.
    void CarregarDados(const TS2299DadosCalculos& ADadosCalculos);

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

/// S-2299 infoTrabInterm: a convocation of intermittent work. Source: FP_CONTRAINTERM.
class TTarvoESocialCamposInfoTrabIntermS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoTrabIntermS2299(std::int64_t AIDDetConvocacaoTrabInterm);

    std::string codConv;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDDetConvocacaoTrabInterm;
};

/// S-2299 dmDev: one calculation that the dismissal paid. Keeps parameters and amounts of its own, so that its groups
/// can be loaded again whatever became of the others.
class TTarvoESocialCamposdmDevS2299 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdmDevS2299(const TdmDevS2299IOP& ADadosDmDev);

    std::string ideDmDev;
    TTarvoESocialCamposinfoPerApurS2299 infoPerApur;
    TTarvoESocialCamposinfoPerAntS2299 infoPerAnt;
    TListaDeGrupos<TTarvoESocialCamposInfoTrabIntermS2299> infoTrabInterm;

    /// Nothing was paid: not reported.
    bool Vazio() const;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    void CarregarDadosInfoTrabInterm();

    TdmDevS2299IOP FDadosDmDev;
    TS2299DadosCalculos FDadosCalculos;
};

} // namespace tarvo::desligamento
