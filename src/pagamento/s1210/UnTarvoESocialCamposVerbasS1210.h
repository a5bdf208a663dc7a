#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210IOP.h"
#include "pagamento/s1210/UnTarvoESocialCampospenAlim.h"
#include "regras/UnTarvoESocialCamposBuscaIncidVerbas.h"
#include "regras/UnTarvoESocialCamposCodRubr.h"

namespace tarvo::pagamento {

/// The incidences of a receipt's value (FP_RUBRICARELACRPA); 0 where it isn't related.
regras::TCodigosIncidenciaVerba BuscarCodigosDaVerbaRpa(std::int64_t AIdRpaTpValor);

/// What the rubrics of a payment have in common, withheld tax (retPgtoTot) and vacation (detRubrFer) alike: code,
/// quantity, factor and value in the demonstrative, and the beneficiaries of its alimony. Sources: TAB_VERBAS, CALCULO
/// of the demonstrative, SC00_EMPRESACFG 90/38/13, DEPENDENTES.
class TTarvoESocialCamposVerbaDoPagamento : public TTarvoESocialCamposGrupoBase {
public:
    std::string codRubr;
    std::string ideTabRubr;
    /// Decimal hours.
    long double qtdRubr = 0;
    /// As stored.
    long double fatorRubr = 0;
    long double vrUnit = 0;
    long double vrRubr = 0;
    /// Set by whoever creates the group, before the load.
    std::int64_t IdVerba = 0;
    TListaDeGrupos<TTarvoESocialCampospenAlim> penAlim;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposVerbaDoPagamento(std::string_view AGuid, const TTarvoESocialCamposS1210IOP& AInfoBind);

    /// Up to IdVerba; where penAlim stands differs.
    const TPropriedades& Propriedades() const override { return Tabela(); }

    /// The incidences of IdVerba, for the code and the alimony. Under a legal process of the rubric the codes are those
    /// of the process, tribute by tribute.
    const regras::TIncidVerba& BuscarIncidenciasDaVerba();
    /// AFiltro picks the rubric in TAB_VERBAS.
    std::string ComporCodRubrDaVerba(std::string_view AFiltro) const;
    std::string BuscarIdeTabRubr() const;
    long double BuscarQtdRubr() const;
    long double BuscarFatorRubr() const;
    long double BuscarVrRubr() const;
    /// The pensioners share the alimony of the demonstrative alike, not rounded; none where no income-tax code of the
    /// rubric passes the test.
    void CarregarListaPensaoAlimenticia(bool (*AAceito)(std::int64_t ACodIncIrrf),
                                        const TListaCamposModificados* AListaCamposModificados);

    const TTarvoESocialCamposS1210IOP& FInfoBind;

private:
    long double BuscarValorTotalPensao() const;

    regras::TIncidVerba FIncidVerba;
};

} // namespace tarvo::pagamento
