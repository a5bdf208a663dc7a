#pragma once

#include "rural/s1250/UnTarvoESocialCamposideEstabAdquirBase.h"

namespace tarvo::rural {

/// S-1250 ideEstabAdquir of the sibling system's own database. It stays empty while the sibling can't be read.
class TTarvoESocialCamposideEstabAdquirBrencoExterno : public TTarvoESocialCamposideEstabAdquirBase {
public:
    /// AIDEstabelecimento is the sibling's id; the kind of connection is ignored.
    TTarvoESocialCamposideEstabAdquirBrencoExterno(std::int64_t AIDEstabelecimento, TDateTime ADataInicio,
                                                   TDateTime ADataFim, TTipoConexao ATipoConexao);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    std::string BuscarSqlTpAquis() override;

private:
    void CarregarEstabelecimento();
    void CarregarTpAquis(const TListaCamposModificados* AListaCamposModificados);
};

} // namespace tarvo::rural
