#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"

namespace tarvo::desligamento {

/// The amounts of one demonstrative of a dismissal. What was withheld from a vacation payment (formulas '99H', '5EA')
/// goes into its net ('7L'); a vacation paid before ('7D') brings its complementary amounts along.
class TS2299DadosCalculos : public TDadosCalculosDesligamento {
public:
    explicit TS2299DadosCalculos(TdmDevS2299IOP& ADadosDmDev);

    void CarregarRegistrosCalculo() override;
    TdmDevS2299IOP& DadosS2299() const { return FDados; }

private:
    TDataset BuscarCalculo();
    TDataset BuscarCalculoRescisao();
    TDataset BuscarCalculoComplementarPagoNaCompet() const;
    TDataset BuscarCalculoIntermitente();
    void AdicionarVerbasDeFeriasComplementaresNaLista();
    void SomarVerbaDeIRRF(Currency AValor);

    TdmDevS2299IOP& FDados;
};

} // namespace tarvo::desligamento
