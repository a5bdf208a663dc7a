#pragma once

#include "rural/produtor/UnTarvoESocialCamposideProdutorBrencoBase.h"

namespace tarvo::rural {

/// S-1250 ideProdutor from the sibling system's own database, whose establishment id it is given. The processes are
/// read on the library's connection, by the sibling's plan id. It stays empty while the sibling can't be read.
class TTarvoESocialCamposideProdutorBrencoExterno : public TTarvoESocialCamposideProdutorBrencoBase {
public:
    TTarvoESocialCamposideProdutorBrencoExterno(std::int64_t AIdFilial, std::string ACNPJ, TDateTime ADataInicio,
                                                TDateTime ADataFim, bool AExisteProcessoAdquirente,
                                                std::int32_t AProducaoIsenta);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    void CarregarInfoProcJud() override;
    void CarregarValoresRetencao() override;

private:
    /// The producer's plan at the sibling; 0 when there is none or it can't be read.
    std::int64_t BuscarIDPlano() const;
    void CarregarProdutor();
};

} // namespace tarvo::rural
