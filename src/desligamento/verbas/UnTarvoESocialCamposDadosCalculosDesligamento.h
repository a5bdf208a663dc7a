#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "desligamento/verbas/UnTdmDevDesligamentoIOP.h"
#include "imports/banco/UnOvraClientDataSet.h"
#include "imports/valores/UnOvraCurrency.h"

namespace tarvo::desligamento {

/// One amount of a termination: a rubric in a lotação. Money in reais.
struct TDadosCalculo {
    std::int32_t CodEmpresa = 0;
    std::int32_t CodFilial = 0;
    /// 0 unless the company splits by department.
    std::int32_t CodDepto = 0;
    std::int64_t IDEstabelecimento = 0;
    std::int64_t IdDepto = 0;
    Currency Base;
    Currency Referencia;
    /// What the event shows, the base for some rubrics.
    Currency Valor;
    std::int64_t IDVerba = 0;
    std::int64_t IDEmpregado = 0;
    /// 0 where the month isn't split.
    std::int32_t DiasTrabNaLotacao = 0;
    /// TAB_VERBAS.FORMULA.
    std::string CaracteristicaVerba;
};
using TDadosCalculoS2399 = TDadosCalculo;

/// An establishment, or a department of it.
struct TDadosLotacao {
    std::int64_t IDEstabelecimento = 0;
    std::int64_t IdDepto = 0;
    friend bool operator==(const TDadosLotacao&, const TDadosLotacao&) = default;
};
using TDadosLotacaoS2399 = TDadosLotacao;

/// What the readers of S-2299 and S-2399 have in common: statements from shared pieces, rows that become amounts, and
/// the lotações of the amounts. Serves one demonstrative. EDatabaseError as the engine raises it.
class TDadosCalculosDesligamento {
public:
    TDadosCalculosDesligamento(const TDadosCalculosDesligamento&) = delete;
    TDadosCalculosDesligamento& operator=(const TDadosCalculosDesligamento&) = delete;
    virtual ~TDadosCalculosDesligamento() = default;

    /// Fills both lists anew; a demonstrative of no known kind leaves them empty.
    virtual void CarregarRegistrosCalculo() = 0;

    /// Not owned; the groups write the lotação that is being loaded into it.
    TdmDevDesligamentoIOP& DadosDmDev() const { return FDadosDmDev; }
    /// In reading order.
    const std::vector<TDadosCalculo>& ListaDadosCalculo() const { return FListaDadosCalculo; }
    /// Each once, in the order of its first amount.
    const std::vector<TDadosLotacao>& LotacoesDoCalculo() const { return FLotacoesDoCalculo; }
    /// The amounts in the lotação of the parameter object, in reading order.
    std::vector<TDadosCalculo> DadosDaLotacaoAtual() const;

protected:
    /// AFormulasExcluidas: quoted formulas, with commas, of the rubrics that this event doesn't report.
    TDadosCalculosDesligamento(TdmDevDesligamentoIOP& ADadosDmDev, std::string_view AFormulasExcluidas);

    /// The rows of CALCULO, without an order. AJuncoes stands before the WHERE.
    std::string SqlDoCalculo(std::string_view ACondicoes, std::string_view AColunas,
                             std::string_view AJuncoes = {}) const;
    /// With the columns that every statement has.
    std::string SqlDoCalculo(std::string_view ACondicoes) const;
    /// The rows of CALC_QUEBRA, without an order.
    std::string SqlDaQuebra(std::string_view ACondicoes) const { return SqlDaQuebra(ACondicoes, {}); }
    /// The rows of CALC_QUEBRA, and those of CALCULO that aren't split, alike ones once and without an order: the keys of
    /// the first row of each can be had by MIN(IDCALCULO) and MIN(IDCALCQUEBRA).
    std::string SqlDaQuebraOuDoCalculo(std::string_view ACondicoes) const;

    /// The complementary terminations paid on the day of the demonstrative, whatever their period.
    TDataset BuscarCalculoRescisaoComplementar() const;
    /// Advances of the month: split rows where there are any.
    TDataset BuscarCalculoOutrosTiposNaCompetencia() const;

    void LimparListas();
    /// An amount of the current row. It joins the amount before it where rubric and lotação are the same; rows that
    /// don't follow each other stay apart, and the reference stays that of the first.
    void AdicionarVerba(const TOvraClientDataSet& ACds);
    void CarregarLotacoesDoCalculo();
    Currency BuscarValorDaVerba(const TOvraClientDataSet& ACds) const;

    std::vector<TDadosCalculo> FListaDadosCalculo;
    /// Against CALCULO alone.
    std::string FSqlCalc;
    /// Through the break table.
    std::string FSqlCalcQuebra;

private:
    /// AChaves follows the columns.
    std::string SqlDaQuebra(std::string_view ACondicoes, std::string_view AChaves) const;
    TDadosLotacao BuscarDadosLotacao(const TDadosCalculo& ADados) const;

    TdmDevDesligamentoIOP& FDadosDmDev;
    std::string_view FFormulasExcluidas;
    std::vector<TDadosLotacao> FLotacoesDoCalculo;
};

/// Order of the statements that don't go through the break table.
inline constexpr std::string_view ORDEM_DO_CALCULO =
    "\nORDER BY COD_EMPRESA, COD_FILIAL, COD_DEPTO, TAB_VERBAS.CODIGO, CALCULO.IDCALCULO, TAB_VERBAS.IDVERBA";

/// What SqlDaQuebraOuDoCalculo selects.
inline constexpr std::string_view COLUNAS_DA_UNIAO =
    "COD_EMPRESA, COD_FILIAL, COD_DEPTO, BASE, REFERENCIA, VALOR, IDVERBA, FORMULA, DIASTRAB";

/// The period of a calculation, to the day: `CALCULO.DATA_INICIO = d AND CALCULO.DATA_FIM = d`.
std::string CondicaoDoPeriodo(TDateTime AInicio, TDateTime AFim);

} // namespace tarvo::desligamento
