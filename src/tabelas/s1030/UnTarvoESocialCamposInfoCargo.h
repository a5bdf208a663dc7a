#pragma once

#include "tabelas/s1030/UnTarvoESocialCamposDadosCargo.h"
#include "tabelas/s1030/UnTarvoESocialCamposIdeCargo.h"
#include "tabelas/s1030/UnTarvoESocialCamposNovaValidade.h"

namespace tarvo::tabelas {

/// S-1030 infoCargo: identification and data of the position.
class TTarvoESocialCamposInfoCargo : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoCargo(std::int64_t AIDCargosDescr);

    TTarvoESocialCamposIdeCargo IdeCargo;
    TTarvoESocialCamposDadosCargo DadosCargo;
    TTarvoESocialCamposNovaValidade NovaValidade;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
