#pragma once

#include "rural/produtor/UnTarvoESocialCamposideProdutorBase.h"

namespace tarvo::rural {

/// S-1250 ideProdutor from the own payroll: the retentions follow from the legal rates, and are 0 when the producer or
/// the acquirer has a process. Source: PREST_SERVICO and MOV_PRESTSERV, processes in ES02_SPPROC. A CPF that is no bare
/// number makes the statement of the processes fail: EDatabaseError.
class TTarvoESocialCamposideProdutor : public TTarvoESocialCamposideProdutorBase {
public:
    TTarvoESocialCamposideProdutor(std::int64_t AIdFilial, std::string ACNPJ, TDateTime ADataInicio, TDateTime ADataFim,
                                   bool AExisteProcessoAdquirente, std::int32_t AProducaoIsenta);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    std::string BuscarSQLDados() override;

private:
    TDataset BuscarProcessos() const;
    void CalcularRetencao();
};

} // namespace tarvo::rural
