#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::remuneracao {

/// S-1200 sucessaoVinc: always empty in this event, and in the tree all the same.
class TTarvoESocialCamposSucessaoVincS1200 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposSucessaoVincS1200();

    std::string cnpjEmpregAnt;
    std::string matricAnt;
    TDateTime dtAdm;
    std::string observacao;
    /// The spelling is the property's.
    bool PossuiInformcao() const;

    /// Clears what a client may have set.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::remuneracao
