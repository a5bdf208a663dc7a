#pragma once

#include "rural/s1250/UnTarvoESocialCamposideEstabAdquirBase.h"

namespace tarvo::rural {

/// S-1250 ideEstabAdquir of the payroll database, whose purchases are in the own payroll or in the sibling system's
/// tables of the same database. Source: SC00_FILIAL.
class TTarvoESocialCamposideEstabAdquir : public TTarvoESocialCamposideEstabAdquirBase {
public:
    /// ATipoConexao: Folha, or Brenco for the sibling system's tables.
    TTarvoESocialCamposideEstabAdquir(std::int64_t AIDEstabelecimento, TDateTime ADataInicio, TDateTime ADataFim,
                                      TTipoConexao ATipoConexao);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    std::string BuscarSQLDados() override;
    std::string BuscarSqlTpAquis() override;

private:
    void BuscarDadosTpAquis();
};

} // namespace tarvo::rural
