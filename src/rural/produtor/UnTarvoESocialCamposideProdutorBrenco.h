#pragma once

#include "rural/produtor/UnTarvoESocialCamposideProdutorBrencoBase.h"

namespace tarvo::rural {

/// S-1250 ideProdutor from the sibling system's tables in the payroll database. Source: ES02_ENTRADA with its joins,
/// retentions in TR04_IMPRETIDO, processes in ES02_SPPROC by CO01_PLANO. An inscription that is no bare number makes
/// the statement of the processes fail: EDatabaseError.
class TTarvoESocialCamposideProdutorBrenco : public TTarvoESocialCamposideProdutorBrencoBase {
public:
    TTarvoESocialCamposideProdutorBrenco(std::int64_t AIdFilial, std::string ACNPJ, TDateTime ADataInicio,
                                         TDateTime ADataFim, bool AExisteProcessoAdquirente,
                                         std::int32_t AProducaoIsenta);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    std::string BuscarSQLDados() override;
    void CarregarInfoProcJud() override;
    void CarregarValoresRetencao() override;
};

} // namespace tarvo::rural
