#include "tabelas/horario/UnTarvoESocialCamposdadosHorContratual.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "tabelas/horario/UnTarvoESocialCamposPrefixoDoDia.h"

namespace tarvo::tabelas {

TTarvoESocialCamposdadosHorContratual::TTarvoESocialCamposdadosHorContratual(std::int64_t AIdHorario,
                                                                             std::int64_t AIdHorarioDet,
                                                                             TDiaSemana ADiaSemana)
    : TTarvoESocialCamposGrupoBase("{8A5D5628-3C4F-49EC-A94E-6F213B021946}"),
      HorarioIntervalo(AIdHorario, AIdHorarioDet, ADiaSemana), FIdHorario(AIdHorario), FIdHorarioDet(AIdHorarioDet),
      FDiaSemana(ADiaSemana)
{}

const TPropriedades& TTarvoESocialCamposdadosHorContratual::Tabela()
{
    using Eu = TTarvoESocialCamposdadosHorContratual;
    static const TPropriedades tabela{
        {"hrEntr", &Eu::hrEntr, TFieldRelacionado("ENTRADA")},
        {"hrSaida", &Eu::hrSaida, TFieldRelacionado("SAIDA")},
        {"durJornada", &Eu::durJornada, TFieldRelacionado("JORNADA")},
        {"perHorFlexivel", &Eu::perHorFlexivel, TFieldRelacionado("PERMITEHORFLEXIVEL")},
        {"HorarioIntervalo", &Eu::HorarioIntervalo},
    };
    return tabela;
}

void TTarvoESocialCamposdadosHorContratual::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    HorarioIntervalo.CarregarDados(AListaCamposModificados);
}

std::string TTarvoESocialCamposdadosHorContratual::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT TAB_HORARIOSDET.ENTR ENTRADA,
       TAB_HORARIOSDET.SAI SAIDA,
       TAB_HORARIOSDET.DURJORNADA JORNADA,
       TAB_HORARIOS.PERMITEHORFLEXIVEL
FROM TAB_HORARIOSDET
JOIN TAB_HORARIOS ON (TAB_HORARIOSDET.IDHORARIO = TAB_HORARIOS.IDHORARIO)
WHERE TAB_HORARIOSDET.IDHORARIODET = )";
    return FIdHorarioDet != 0 ? std::string(SQL) + IntToStr(FIdHorarioDet) : BuscarSqlConformeoDia();
}

std::string TTarvoESocialCamposdadosHorContratual::BuscarSqlConformeoDia() const
{
    static constexpr std::string_view SQL = R"(SELECT TAB_HORARIOS.%0:s_ENTR AS ENTRADA,
       TAB_HORARIOS.%0:s_SAI AS SAIDA,
       TAB_HORARIOS.DURJORNADA%0:s AS JORNADA,
       TAB_HORARIOS.PERMITEHORFLEXIVEL
FROM TAB_HORARIOS
WHERE TAB_HORARIOS.IDHORARIO = %1:d )";
    return Format(SQL, PrefixoDoDia(FDiaSemana), FIdHorario);
}

} // namespace tarvo::tabelas
