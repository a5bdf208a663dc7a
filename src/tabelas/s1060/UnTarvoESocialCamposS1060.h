#pragma once

#include "tabelas/s1060/UnTarvoESocialCamposDadosAmbiente.h"
#include "tabelas/s1060/UnTarvoESocialCamposFatorRisco.h"
#include "tabelas/s1060/UnTarvoESocialCamposIdeAmbiente.h"

namespace tarvo::tabelas {

/// Event S-1060: a work environment.
class TTarvoESocialCamposS1060 : public TTarvoESocialCamposGrupoBase {
public:
    /// AIdAmbiente: SST_AMBIENTES.IDAMBIENTE.
    explicit TTarvoESocialCamposS1060(std::int64_t AIdAmbiente);

    TTarvoESocialCamposIdeAmbiente IdeAmbiente;
    TTarvoESocialCamposDadosAmbiente DadosAmbiente;
    TTarvoESocialCamposFatorRisco FatorRisco;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
