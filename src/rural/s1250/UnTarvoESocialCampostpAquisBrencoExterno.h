#pragma once

#include "rural/s1250/UnTarvoESocialCampostpAquisBase.h"

namespace tarvo::rural {

/// S-1250 tpAquis from the sibling system's own database, whose establishment id it is given. The two databases meet in
/// the establishment's CNPJ. It stays empty, with a total of "0", while the sibling can't be read.
class TTarvoESocialCampostpAquisBrencoExterno : public TTarvoESocialCampostpAquisBase {
public:
    TTarvoESocialCampostpAquisBrencoExterno(std::int64_t AIDEstabelecimento, TDateTime ADataInicio, TDateTime ADataFim,
                                            std::int32_t AProducaoIsenta);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    void CarreagarProcessosAdquirente() override;

private:
    void CarregarProdutor(const TListaCamposModificados* AListaCamposModificados);
};

} // namespace tarvo::rural
