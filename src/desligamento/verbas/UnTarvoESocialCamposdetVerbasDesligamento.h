#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"
#include "framework/UnTarvoESocialCamposQuadro.h"

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

class TTarvoESocialCamposdetVerbasS2299 : public TTarvoESocialCamposdetVerbasDesligamento {
public:
    TTarvoESocialCamposdetVerbasS2299(const TDadosCalculo& ADadosCalculo, std::int64_t AIdEmpresa, TDate ADataDemissao)
        : TTarvoESocialCamposdetVerbasDesligamento("{AB00A200-FFC9-4C40-97EC-AE903DB0430A}", ADadosCalculo, AIdEmpresa,
                                                   ADataDemissao)
    {}

protected:
    void AtribuirValoresManualmente() override;
};

/// Leaves vrUnit as it is.
class TTarvoESocialCamposdetVerbasS2399 : public TTarvoESocialCamposdetVerbasDesligamento {
public:
    TTarvoESocialCamposdetVerbasS2399(const TDadosCalculoS2399& ADadosCalculo, std::int64_t AIdEmpresa,
                                      TDate ADataDemissao)
        : TTarvoESocialCamposdetVerbasDesligamento("{C2281B0F-AE85-4262-ACC7-2396C4ADA3D1}", ADadosCalculo, AIdEmpresa,
                                                   ADataDemissao)
    {}
};

/// Frame detVerbas: part of no tree, for the caller to fill.
class TTarvoESocialCamposdetVerbas : public TTarvoESocialCamposQuadro<TTarvoESocialCamposdetVerbas> {
public:
    explicit TTarvoESocialCamposdetVerbas(std::int64_t AIdCalculo)
        : TTarvoESocialCamposQuadro("{788F0E70-7B3E-4A76-9E56-508BF345CF54}", AIdCalculo)
    {}

    std::string codRubr;
    std::string ideTabRubr;
    std::string qtdRubr;
    std::string fatorRubr;
    std::string vrUnit;
    std::string vrRubr;

    static TPropriedades Tags()
    {
        return {
            {"codRubr", &Eu::codRubr},     {"ideTabRubr", &Eu::ideTabRubr}, {"qtdRubr", &Eu::qtdRubr},
            {"fatorRubr", &Eu::fatorRubr}, {"vrUnit", &Eu::vrUnit},         {"vrRubr", &Eu::vrRubr},
        };
    }
};

} // namespace tarvo::desligamento
