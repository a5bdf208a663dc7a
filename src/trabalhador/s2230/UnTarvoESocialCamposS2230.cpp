#include "trabalhador/s2230/UnTarvoESocialCamposS2230.h"

#include "imports/consultas/UnTarvoConsultasEmpregadoSituacoes.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposS2230::TTarvoESocialCamposS2230(std::int64_t AIdSituacao, TTipoEventoS2230 ATipoEvento)
    : TTarvoESocialCamposGrupoBase("{08630C49-6E79-42BB-85CC-0D812116D1C0}"),
      ideVinculo(TTarvoConsultasEmpregadoSituacoes::BuscarIdEmpregadoPeloIDSituacao(AIdSituacao)),
      infoAfastamento(AIdSituacao, ATipoEvento)
{}

const TPropriedades& TTarvoESocialCamposS2230::Tabela()
{
    using Eu = TTarvoESocialCamposS2230;
    static const TPropriedades tabela{
        {"ideVinculo", &Eu::ideVinculo},
        {"infoAfastamento", &Eu::infoAfastamento},
    };
    return tabela;
}

void TTarvoESocialCamposS2230::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideVinculo.CarregarDados(AListaCamposModificados);
    infoAfastamento.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
