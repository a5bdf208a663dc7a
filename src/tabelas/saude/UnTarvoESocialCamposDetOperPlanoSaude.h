#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraCurrency.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::tabelas {

// The collective health plan, by one rule for remuneration and termination: what a rubric of an operator deducts from
// the worker is the holder's share and those of the dependants, each to the days worked in the lotação.

/// Which operators make a rubric an amount of the health plan: those of kind 2 (PSAUDE_OPER.TIPO) count only in S-2399.
enum class TOperadorasDaVerba : std::uint8_t { SemTipo2, Todas };

/// A calculated rubric that may be of a health plan, as the events' own rows give it.
struct TVerbaDoPlanoSaude {
    std::int64_t IdVerba = 0;
    Currency Valor;
    /// The calculation's period.
    TDateTime DataInicio;
    TDateTime DataFim;
    /// Days worked in the lotação; 0 where the month isn't split.
    std::int32_t DiasTrab = 0;
};

/// The operators of a rubric: IDPSAUDE_OPER, CNPJOPER, REGANS.
std::string SqlOperadorasDaVerba(std::int64_t AIdVerba, TOperadorasDaVerba AOperadoras);

/// The plan rows of the dependants with an operator that are in force in a period: IDPSAUDEVLRMESDEP.
/// ACondicaoDoEmpregado is the comparison that follows FP_PSAUDEVLRMESDEP.IDEMPREGADO.
std::string SqlPlanosDosDependentes(std::string_view ACondicaoDoEmpregado, TDateTime ADataInicio, TDateTime ADataFim,
                                    std::int64_t AIdOperadora);

/// The part of an amount of the period that falls to the days worked in a lotação, wide and not rounded: the caller
/// rounds once where it becomes Currency. Without days (0), or in a period that has none, the whole amount. A period
/// whose end doesn't follow its start counts from the first day of the end's month.
long double ProporcionalizarPelosDias(long double AValor, TDateTime ADataInicio, TDateTime ADataFim,
                                      std::int32_t ADiasTrabalhados);

/// detOper: what a rubric deducts for the plan of one operator, the dependants' shares apart. Sources: PSAUDE_VERBAS,
/// PSAUDE_OPER, FP_PSAUDEVLRMESDEP. A rubric with several operators takes the first row.
///
/// TDetPlano is the event's group of a dependant, built from the id of the plan row, the calculation's period and the
/// days; its vlrPgDep is Currency or Double.
template <class TDetPlano>
class TTarvoESocialCamposDetOperPlanoSaude : public TTarvoESocialCamposGrupoBase {
public:
    std::int64_t IdOperadora = 0;
    std::string cnpjOper;
    std::string regANS;
    /// The holder's share; below zero when the dependants' are more than the rubric's amount.
    Currency vrPgTit;
    /// The rubric's amount before the dependants are taken out.
    Currency valorSemDescontoDep;
    TListaDeGrupos<TDetPlano> detPlano;
    bool PossuiOperadoraSaude = false;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        PossuiOperadoraSaude = !CdsDados().IsEmpty();
        if (!PossuiOperadoraSaude)
            return;
        FValorPlanoDependentes = 0;
        CarregarDetPlano();
        valorSemDescontoDep = FVerba.Valor;
        vrPgTit = FVerba.Valor - FValorPlanoDependentes;
    }

    static const TPropriedades& Tabela()
    {
        using Eu = TTarvoESocialCamposDetOperPlanoSaude;
        static const TPropriedades tabela{
            {"IdOperadora", &Eu::IdOperadora, TFieldRelacionado("IDPSAUDE_OPER")},
            {"cnpjOper", &Eu::cnpjOper, TFieldRelacionado("CNPJOPER")},
            {"regANS", &Eu::regANS, TFieldRelacionado("REGANS")},
            {"vrPgTit", &Eu::vrPgTit},
            {"valorSemDescontoDep", &Eu::valorSemDescontoDep},
            {"detPlano", &Eu::detPlano},
            {"PossuiOperadoraSaude", &Eu::PossuiOperadoraSaude},
        };
        return tabela;
    }

protected:
    TTarvoESocialCamposDetOperPlanoSaude(std::string_view AGuid, const TVerbaDoPlanoSaude& AVerba,
                                         TOperadorasDaVerba AOperadoras)
        : TTarvoESocialCamposGrupoBase(AGuid), FVerba(AVerba), FOperadoras(AOperadoras)
    {}

    /// The comparison that selects the worker's plan rows, asked only for a rubric that has an operator.
    virtual std::string CondicaoDoEmpregado() const = 0;

    const TPropriedades& Propriedades() const override { return Tabela(); }

    std::string BuscarSQLDados() override { return SqlOperadorasDaVerba(FVerba.IdVerba, FOperadoras); }

private:
    void CarregarDetPlano()
    {
        const auto LIds = TTarvoConsultasGeral::BuscarListaDeIds(
            SqlPlanosDosDependentes(CondicaoDoEmpregado(), FVerba.DataInicio, FVerba.DataFim,
                                    CdsDados().FieldByName("IDPSAUDE_OPER").AsLargeInt()));
        for (const auto LId : LIds) {
            auto LPlano = std::make_unique<TDetPlano>(LId, FVerba.DataInicio, FVerba.DataFim, FVerba.DiasTrab);
            LPlano->CarregarDados();
            FValorPlanoDependentes += Currency(LPlano->vlrPgDep);
            detPlano.push_back(std::move(LPlano));
        }
    }

    TVerbaDoPlanoSaude FVerba;
    TOperadorasDaVerba FOperadoras;
    Currency FValorPlanoDependentes;
};

/// Loads a detOper and brings it into the list: the first rubric of an operator stands with its dependants, the whole
/// amount of each further one goes to the holder, so that no dependant is taken out twice. A rubric without an
/// operator is let go.
template <class TDetOper>
void CarregarDetOper(TListaDeGrupos<TDetOper>& ALista, std::unique_ptr<TDetOper> ADetOper)
{
    ADetOper->CarregarDados();
    if (!ADetOper->PossuiOperadoraSaude)
        return;
    const auto LExistente = std::find_if(
        ALista.begin(), ALista.end(), [&](const auto& AItem) { return AItem->IdOperadora == ADetOper->IdOperadora; });
    if (LExistente == ALista.end())
        ALista.push_back(std::move(ADetOper));
    else
        (*LExistente)->vrPgTit += ADetOper->valorSemDescontoDep;
}

} // namespace tarvo::tabelas
