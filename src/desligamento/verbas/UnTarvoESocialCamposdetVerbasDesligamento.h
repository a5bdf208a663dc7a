#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// detVerbas: a rubric of a termination in a lotação. Sources: the amount, TAB_VERBAS, SC00_EMPRESACFG 90/38/13 for the
/// table of rubrics, the rubric's incidences on the day of the termination.
class TTarvoESocialCamposdetVerbasDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    /// Empty for a rubric that no event reports.
    std::string codRubr;
    std::string ideTabRubr;
    Currency qtdRubr;
    Currency fatorRubr;
    /// Always empty.
    std::string vrUnit;
    /// In reais.
    Currency vrRubr;
    /// Code of the rubric's nature, whatever its validity; 0 for none.
    std::int32_t CodNaturezaRubricaRelac = 0;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposdetVerbasDesligamento(std::string_view AGuid, const TDadosCalculo& ADadosCalculo,
                                             std::int64_t AIdEmpresa, TDate ADataDemissao);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void AtribuirCodRubr();

    TDadosCalculo FDadosCalculo;
    std::int64_t FIdEmpresa;
    TDate FDataDemissao;
};

} // namespace tarvo::desligamento
