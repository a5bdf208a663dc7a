#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposideEstabLotDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposinfoMVDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposprocJudTrabDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposverbasRescDesligamento.h"

namespace tarvo::desligamento {

/// S-2399 dmDev: one calculation that the end of the work paid; the lotações hang on it. Keeps parameters and amounts
/// of its own, so that its groups can be loaded again whatever became of the others.
class TTarvoESocialCamposdmDev2399 : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposdmDev2399(const TdmDevS2399IOP& ADadosDmDev);

    TListaDeGrupos<TTarvoESocialCamposideEstabLotS2399> ideEstabLot;
    std::string ideDmDev;

    /// Nothing was paid: not reported.
    bool Vazio() const { return ideEstabLot.empty(); }

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    TdmDevS2399IOP FDadosDmDev;
    TS2399DadosCalculos FDadosCalculos;
};

/// S-2399 verbasResc: what the end of the work paid, one demonstrative a calculation. The constructor reads the company
/// and the day of the end. Sources: CALCULO, RESC_COMPL.
class TTarvoESocialCamposverbasRescS2399
    : public TTarvoESocialCamposverbasRescDesligamento<TdmDevS2399IOP, TTarvoESocialCamposdmDev2399,
                                                       TTarvoESocialCamposprocJudTrabS2399,
                                                       TTarvoESocialCamposinfoMVS2399> {
public:
    explicit TTarvoESocialCamposverbasRescS2399(std::int64_t AIdEmpregado);

protected:
    std::string SqlDosDemonstrativos(const TdmDevS2399IOP& ADmDev) const override;
    void AlimentarDemonstrativo(TdmDevS2399IOP& ADmDev, const TOvraClientDataSet& ACds) const override;
};

} // namespace tarvo::desligamento
