#pragma once

#include "rural/s1250/UnTarvoESocialCampostpAquisBase.h"

namespace tarvo::rural {

/// S-1250 tpAquis from the sibling system's tables in the payroll database. Source: ES02_ENTRADA.
class TTarvoESocialCampostpAquisBrenco : public TTarvoESocialCampostpAquisBase {
public:
    TTarvoESocialCampostpAquisBrenco(std::int64_t AIDEstabelecimento, TDateTime ADataInicio, TDateTime ADataFim,
                                     std::int32_t AProducaoIsenta);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::rural
