#include "trabalhador/contrato/UnTarvoESocialCamposHorario.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposHorario::TTarvoESocialCamposHorario(std::int64_t AIDHorario, std::int32_t ADiaSemana)
    : TTarvoESocialCamposGrupoBase("{D09C9846-CD0C-43E6-B6E1-60A891EDC73B}"), IdHorario(AIDHorario),
      FDiaSemana(ADiaSemana)
{}

const TPropriedades& TTarvoESocialCamposHorario::Tabela()
{
    using Eu = TTarvoESocialCamposHorario;
    static const TPropriedades tabela{
        {"Dia", &Eu::Dia},
        {"CodigoHorarioContratual", &Eu::CodigoHorarioContratual},
        {"IdHorario", &Eu::IdHorario},
    };
    return tabela;
}

void TTarvoESocialCamposHorario::CarregarDados(const TListaCamposModificados*)
{
    if (FDiaSemana >= 8)
        return;
    Dia = FDiaSemana;
    CodigoHorarioContratual = FormatFloat("000000", IdHorario) + IntToStr(FDiaSemana);
}

} // namespace tarvo::trabalhador
