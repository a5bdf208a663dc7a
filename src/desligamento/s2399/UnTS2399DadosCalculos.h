#pragma once

#include "desligamento/verbas/UnTarvoESocialCamposDadosCalculosDesligamento.h"

namespace tarvo::desligamento {

/// The amounts of one demonstrative of the end of a bondless worker. Every row is treated alike: nothing is folded
/// into the net of vacations, and no complementary vacations are added.
class TS2399DadosCalculos : public TDadosCalculosDesligamento {
public:
    explicit TS2399DadosCalculos(TdmDevS2399IOP& ADadosDmDev);

    void CarregarRegistrosCalculo() override;

private:
    TDataset BuscarCalculo();
    TDataset BuscarCalculoRescisao();
};

} // namespace tarvo::desligamento
