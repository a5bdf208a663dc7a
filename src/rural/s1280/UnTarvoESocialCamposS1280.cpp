#include "rural/s1280/UnTarvoESocialCamposS1280.h"

namespace tarvo::rural {

TTarvoESocialCamposS1280::TTarvoESocialCamposS1280(std::int64_t AIdEmpresa, TDateTime ACompetencia)
    : TTarvoESocialCamposGrupoBase("{181F2B8A-77D4-450A-812E-B8684C6DEB5E}"), InfoSubstPatr(AIdEmpresa, ACompetencia),
      infoAtivConcom(AIdEmpresa, ACompetencia)
{}

const TPropriedades& TTarvoESocialCamposS1280::Tabela()
{
    using Eu = TTarvoESocialCamposS1280;
    static const TPropriedades tabela{
        {"InfoSubstPatr", &Eu::InfoSubstPatr},
        {"infoSubstPatrOpPort", &Eu::infoSubstPatrOpPort},
        {"infoAtivConcom", &Eu::infoAtivConcom},
    };
    return tabela;
}

void TTarvoESocialCamposS1280::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoSubstPatr.CarregarDados(AListaCamposModificados);
    infoAtivConcom.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::rural
