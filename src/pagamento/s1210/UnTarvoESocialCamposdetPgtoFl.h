#pragma once

#include "imports/pcesConversaoeSocial.h"
#include "pagamento/s1210/UnTarvoESocialCamposQuadrosS1210.h"
#include "pagamento/s1210/UnTarvoESocialCamposretPgtoTot.h"

namespace tarvo::pagamento {

/// S-1210 detPgtoFl: one demonstrative that was paid on the date: the period it refers to, the identifier under which
/// the remuneration or the termination reported it, the net in reais and the rubrics of the tax withheld on it.
/// Sources: CALCULO of the demonstrative, or the values of a receipt (RPAVALOR).
///
/// Raises Exception for a withheld rubric whose income-tax incidence is none of a withholding: the rubric is named.
class TTarvoESocialCamposdetPgtoFl : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdetPgtoFl(const TTarvoESocialCamposS1210IOP& AInfoBind);

    /// YYYY-MM, of a thirteenth salary YYYY; empty for a payment of a termination.
    std::string perRef;
    std::string ideDmDev;
    tpSimNao indPgtoTt = tpSimNao::Sim;
    long double vrLiq = 0;
    /// Receipt of the termination event; empty for other payments.
    std::string nrRecArq;
    TListaDeGrupos<TTarvoESocialCamposretPgtoTot> retPgtoTot;
    TTarvoESocialCamposInfoPgtoParc infoPgtoParc;
    /// True when the demonstrative holds something to report.
    bool ValidouGeracao = false;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void AtribuirFiltroIntermitente();
    void AlimentarPropriedadesDaTag();
    void ValidarEvento();
    std::string BuscarPerRef() const;
    std::string GerarIdeDmDev() const;
    long double BuscarValorTotal() const;
    std::string BuscarNumeroRecibo() const;

    void BuscarListaretPgtoTot();
    void BuscarListaretPgtoTotEmpregado();
    void BuscarListaretPgtoTotPrestServico();
    template <class TValidar, class TNomear>
    void AdicionarVerbasDeRetencao(const std::string& ASql, std::string_view AColuna, TValidar AValidar,
                                   TNomear ANomear);
    bool ValidouIncidenciaDaVerba(std::int64_t AIdVerba) const;
    bool ValidouIncidenciaDaVerbaRpa(std::int64_t AId) const;

    const TTarvoESocialCamposS1210IOP& FInfoBind;
    /// Ties the queries to the intermittent call of the demonstrative.
    std::string FFiltroIntermitente;
    const TListaCamposModificados* FListaCamposModificados = nullptr;
};

} // namespace tarvo::pagamento
