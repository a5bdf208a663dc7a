#pragma once

#include "pagamento/s1210/UnTarvoESocialCamposdetRubrFer.h"

namespace tarvo::pagamento {

/// S-1210 detPgtoFer: a vacation that was paid on the date, with its net in reais and its rubrics. Sources: CALCULO of
/// kind '04', EMPREGADOS.
class TTarvoESocialCamposdetPgtoFer : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdetPgtoFer(const TTarvoESocialCamposS1210IOP& AInfoBind);

    std::int32_t codCateg = 0;
    std::string matricula;
    /// These two are set by whoever creates the group, before the load.
    TDateTime dtIniGoz;
    std::int32_t qtDias = 0;
    /// Of every worker of the payment date's list, not of this one alone; meant.
    long double vrLiq = 0;
    TListaDeGrupos<TTarvoESocialCamposdetRubrFer> detRubrFer;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    long double BuscarValorLiquido() const;
    std::string BuscarMatricula() const;
    void BuscarListaDetRubrFer(const TListaCamposModificados* AListaCamposModificados);

    const TTarvoESocialCamposS1210IOP& FInfoBind;
};

} // namespace tarvo::pagamento
