#include "tabelas/s1050/UnTarvoESocialCamposS1050.h"

namespace tarvo::tabelas {

TTarvoESocialCamposS1050::TTarvoESocialCamposS1050(std::int64_t AIdHorario, std::int64_t AIdHorarioDet,
                                                   TDiaSemana ADiaSemana)
    : TTarvoESocialCamposGrupoBase("{A8A145DD-4590-43C8-8CF8-14F7950AC18E}"),
      infoHorContratual(AIdHorario, AIdHorarioDet, ADiaSemana)
{}

const TPropriedades& TTarvoESocialCamposS1050::Tabela()
{
    static const TPropriedades tabela{
        {"infoHorContratual", &TTarvoESocialCamposS1050::infoHorContratual},
    };
    return tabela;
}

void TTarvoESocialCamposS1050::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    infoHorContratual.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
