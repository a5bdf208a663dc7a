#pragma once

#include "tabelas/s1000/UnTarvoESocialCamposSituacaoPF.h"
#include "tabelas/s1000/UnTarvoESocialCamposSituacaoPJ.h"

namespace tarvo::tabelas {

/// S-1000 infoComplementares: the special situation of the company, under the tag of either kind of person.
class TTarvoESocialCamposInfoComplementares : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoComplementares(std::int64_t AIDEmpresa, TDateTime AData);

    TTarvoESocialCamposSituacaoPJ situacaoPJ;
    TTarvoESocialCamposSituacaoPF situacaoPF;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
