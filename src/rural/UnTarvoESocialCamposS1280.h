#pragma once

#include "rural/UnTarvoESocialCamposInfoSubstPatr.h"
#include "rural/UnTarvoESocialCamposinfoAtivConcom.h"
#include "rural/UnTarvoESocialCamposinfoSubstPatrOpPort.h"

namespace tarvo::rural {

/// Event S-1280: complements of a competence: the payroll exemption's share and the factor of concurrent activities.
class TTarvoESocialCamposS1280 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposS1280(std::int64_t AIdEmpresa, TDateTime ACompetencia);

    TTarvoESocialCamposInfoSubstPatr InfoSubstPatr;
    /// Nothing fills it; a caller may.
    TListaDeGrupos<TTarvoESocialCamposinfoSubstPatrOpPort> infoSubstPatrOpPort;
    TTarvoESocialCamposinfoAtivConcom infoAtivConcom;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::rural
