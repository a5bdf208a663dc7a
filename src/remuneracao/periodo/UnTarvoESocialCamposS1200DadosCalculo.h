#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "imports/UnTarvoTypesCalculos.h"
#include "imports/banco/UnOvraClientDataSet.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// Which tree asks for the amounts: that of the current or that of an earlier period.
enum class TTagOrigem : std::uint8_t { toRemunPerApur = 0, toRemunPerAnt = 1 };

/// Where the amounts of a health plan come from.
enum class TOrigemInformacoesCalculo : std::uint8_t { ocCALCULO = 0, ocCALC_QUEBRA = 1, ocRPA = 2 };

/// The calculated rubrics of the current run and worker in one establishment or department, with the values that are
/// to be reported. Reads CALCULO, CALC_QUEBRA and the complementary calculations, or of a provider the receipt.
///
/// An employee who is dismissed in the month has only the thirteenth salary and profit sharing here; the rest goes
/// into the dismissal. EDatabaseError as the engine raises it; a kind of run that is unknown gives an empty list.
class TTarvoESocialCamposS1200DadosCalculo {
public:
    /// By establishment where AIdFilial isn't 0, else by department.
    TTarvoESocialCamposS1200DadosCalculo(const TTarvoESocialCamposS1200IOP& AInfoBind, std::int64_t AIdFilial,
                                         std::int64_t AIdDepto, TTagOrigem ATagOrigem);

    /// Fills ListaDadosCalculo, in the order of the statement. Called once.
    void CarregarListaDadosCalculo();

    /// The result; the group that asked takes it over.
    std::vector<TDadosCalculo> ListaDadosCalculo;

private:
    TDataset BuscarDados();
    TDataset BuscarDadosFolhaNormal();
    TDataset BuscarDadosGrupo1A() const;
    TDataset BuscarDadosGrupo1B() const;
    TDataset BuscarDadosGrupo1C();
    TDataset BuscarDadosGrupo2();
    TDataset BuscarDadosCalculoRescisaoComplementar() const;
    TDataset BuscarDadosCalculoNormalComplementar();
    TDataset BuscarDadosIntermitente();
    TDataset BuscarDadosRpa() const;

    TDataset BuscarPorTipoDeQuebra() const;
    TDataset BuscarComplementar(const std::string& ACondicoes, std::string_view AJuncaoDoAcordo);
    std::string SqlDoCalculo(const std::string& ACondicoes) const;
    std::string SqlDaQuebra(const std::string& ACondicoes) const;
    std::string CaudaDaLotacao() const;
    std::string TipoFolhaEntreAspas() const;
    std::string_view ColunaDaLotacao() const;
    std::int64_t IdDaLotacao() const;

    bool EmpregadoEstahDemitidoNoMes() const;
    bool EhFolhaNormal() const;
    void AdicionarEmpregado(const TOvraClientDataSet& ACds, double& AValorDoLiquidoDeFerias);
    void AdicionarPrestador(const TOvraClientDataSet& ACds);
    void AdicionarVerbasDeFeriasComplementaresNaLista();

    TTipoQuebraGpsGfip FTipoQuebraEmpresa;
    std::int64_t FIdFilial;
    std::int64_t FIdDepto;
    const TTarvoESocialCamposS1200IOP& FInfoBind;
    TTagOrigem FTagOrigem;
    /// Against CALCULO alone.
    std::string FSqlCalc;
    /// Against the split rows where there are any.
    std::string FSqlCalcQuebra;
};

} // namespace tarvo::remuneracao
