#include "tabelas/horario/UnTarvoESocialCamposideHorContratual.h"

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::tabelas {

TTarvoESocialCamposideHorContratual::TTarvoESocialCamposideHorContratual(std::int64_t AIdHorario,
                                                                         std::int64_t AIdHorarioDet)
    : TTarvoESocialCamposGrupoBase("{151007F3-F3C2-4CEF-8A77-532D805485CA}"), FIdHorario(AIdHorario),
      FIdHorarioDet(AIdHorarioDet)
{}

const TPropriedades& TTarvoESocialCamposideHorContratual::Tabela()
{
    using Eu = TTarvoESocialCamposideHorContratual;
    static const TPropriedades tabela{
        {"codHorContrat", &Eu::codHorContrat, TFieldRelacionado("CODIGO")},
        {"iniValid", &Eu::iniValid},
        {"fimValid", &Eu::fimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposideHorContratual::BuscarSQLDados()
{
    if (FIdHorarioDet == 0)
        return "SELECT TAB_HORARIOS.CODIGO FROM TAB_HORARIOS WHERE TAB_HORARIOS.IDHORARIO = " + IntToStr(FIdHorario);
    return "SELECT TAB_HORARIOSDET.CODIGOESOCIAL CODIGO FROM TAB_HORARIOSDET WHERE TAB_HORARIOSDET.IDHORARIODET = " +
           IntToStr(FIdHorarioDet);
}

} // namespace tarvo::tabelas
