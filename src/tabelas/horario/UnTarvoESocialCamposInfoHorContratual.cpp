#include "tabelas/horario/UnTarvoESocialCamposInfoHorContratual.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoHorContratual::TTarvoESocialCamposInfoHorContratual(std::int64_t AIdHorario,
                                                                           std::int64_t AIdHorarioDet,
                                                                           TDiaSemana ADiaSemana)
    : TTarvoESocialCamposGrupoBase("{7E1BE90F-D600-402D-AA62-0041DEBD79DC}"),
      ideHorContratual(AIdHorario, AIdHorarioDet), dadosHorContratual(AIdHorario, AIdHorarioDet, ADiaSemana)
{}

const TPropriedades& TTarvoESocialCamposInfoHorContratual::Tabela()
{
    using Eu = TTarvoESocialCamposInfoHorContratual;
    static const TPropriedades tabela{
        {"ideHorContratual", &Eu::ideHorContratual},
        {"dadosHorContratual", &Eu::dadosHorContratual},
    };
    return tabela;
}

void TTarvoESocialCamposInfoHorContratual::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideHorContratual.CarregarDados(AListaCamposModificados);
    dadosHorContratual.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
