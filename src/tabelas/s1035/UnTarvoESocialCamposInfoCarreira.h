#pragma once

#include "tabelas/s1035/UnTarvoESocialCamposDadosCarreira.h"
#include "tabelas/s1035/UnTarvoESocialCamposIdeCarreira.h"

namespace tarvo::tabelas {

/// S-1035 infoCarreira: identification and data of the career.
class TTarvoESocialCamposInfoCarreira : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoCarreira(std::int64_t AIDCargosDescr);

    TTarvoESocialCamposIdeCarreira IdeCarreira;
    TTarvoESocialCamposDadosCarreira dadosCarreira;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
