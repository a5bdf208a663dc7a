#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 itensRemun: one rubric of a worker in a lotação, of one calculated row or of several that follow each other.
/// Sources: the row, the rubric's nature and incidences, SC00_EMPRESACFG 90/38/13 for the table of rubrics.
class TTarvoESocialCamposItensRemunS1200 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposItensRemunS1200(const TTarvoESocialCamposS1200IOP& AInfoBind);

    /// Empty for a rubric that has no incidences, which isn't reported.
    std::string codRubr;
    std::string ideTabRubr;
    /// Decimal hours, of a rubric that goes by hours; those of the last row.
    double qtdRubr = 0;
    double fatorRubr = 0;
    /// Nothing sets it.
    double vrUnit = 0;
    double vrRubr = 0;
    std::int64_t IdVerba = 0;
    /// Nothing sets these two.
    std::int64_t IdFilial = 0;
    std::int64_t IdDepto = 0;
    std::int64_t CodIncInss = 0;
    std::int64_t CodIncIrrf = 0;
    std::int64_t CodIncFgts = 0;
    std::int64_t CodIncCs = 0;

    /// Adds the row that was given last; amounts and factors grow with each call.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    /// Takes a row and adds it.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados, const TDadosCalculo& ADadosCalculo);

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void AlimentarCampoCodRubr();

    const TTarvoESocialCamposS1200IOP& FInfoBind;
    TDadosCalculo FItemCalculo;
};

/// The items of the current worker from the calculated rows. Rows of one rubric that follow each other make one item;
/// its first row decides whether it is reported. Left out are amounts of zero or less, rubrics without incidences,
/// those of a payment (EhRetencaoDeIrrf), and by their social-security code sickness benefit (23, 24) and the
/// complement to the minimum wage (61); of a contract whose category is above 700 also maternity pay of the INSS
/// (25, 26) and family salary (51). The rows must not begin with rubric 0: EAccessViolation.
void GerarListaItensRemun(const TTarvoESocialCamposS1200IOP& AInfoBind, const std::vector<TDadosCalculo>& ADadosCalculo,
                          const TListaCamposModificados* AListaCamposModificados,
                          TListaDeGrupos<TTarvoESocialCamposItensRemunS1200>& AItensRemun);

} // namespace tarvo::remuneracao
