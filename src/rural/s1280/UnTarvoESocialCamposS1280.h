#pragma once

#include "rural/s1280/UnTarvoESocialCamposInfoSubstPatr.h"
#include "rural/s1280/UnTarvoESocialCamposinfoAtivConcom.h"
#include "rural/s1280/UnTarvoESocialCamposinfoSubstPatrOpPort.h"

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
