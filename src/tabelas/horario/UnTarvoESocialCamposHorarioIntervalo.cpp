#include "tabelas/horario/UnTarvoESocialCamposHorarioIntervalo.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "tabelas/horario/UnTarvoESocialCamposPrefixoDoDia.h"

namespace tarvo::tabelas {

TTarvoESocialCamposHorarioIntervalo::TTarvoESocialCamposHorarioIntervalo(std::int64_t AIdHorario,
                                                                         std::int64_t AIdHorarioDet,
                                                                         TDiaSemana ADiaSemana)
    : TTarvoESocialCamposGrupoBase("{8A212C51-D97A-4E48-A558-AC44DDF00147}"), DiaSemana(ADiaSemana),
      FIdHorario(AIdHorario), FIdHorarioDet(AIdHorarioDet), FDiaSemana(ADiaSemana)
{}

const TPropriedades& TTarvoESocialCamposHorarioIntervalo::Tabela()
{
    using Eu = TTarvoESocialCamposHorarioIntervalo;
    static const TPropriedades tabela{
        {"tpInterv", &Eu::tpInterv, TFieldRelacionado("TIPOINTERVALO")},
        {"durInterv", &Eu::durInterv, TFieldRelacionado("INTERVALO")},
        {"iniInterv", &Eu::iniInterv, TFieldRelacionado("ENTRADA")},
        {"termInterv", &Eu::termInterv, TFieldRelacionado("SAIDA")},
        {"DiaSemana", &Eu::DiaSemana},
    };
    return tabela;
}

std::string TTarvoESocialCamposHorarioIntervalo::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT TAB_HORARIOS.TIPOINTERVALO,
       TAB_HORARIOSDET.DURINTERV INTERVALO,
       TAB_HORARIOSDET.INT_E ENTRADA,
       TAB_HORARIOSDET.INT_S SAIDA
FROM TAB_HORARIOSDET
JOIN TAB_HORARIOS ON (TAB_HORARIOSDET.IDHORARIO = TAB_HORARIOS.IDHORARIO)
WHERE TAB_HORARIOSDET.IDHORARIODET = )";
    return FIdHorarioDet != 0 ? std::string(SQL) + IntToStr(FIdHorarioDet) : BuscarSqlConformeODia();
}

std::string TTarvoESocialCamposHorarioIntervalo::BuscarSqlConformeODia() const
{
    static constexpr std::string_view SQL = R"(SELECT tab_horarios.TIPOINTERVALO,
       TAB_HORARIOS.%0:s_INT_E AS ENTRADA,
       TAB_HORARIOS.%0:s_INT_S AS SAIDA,
       TAB_HORARIOS.DURINTERV%0:s AS INTERVALO
FROM TAB_HORARIOS
WHERE TAB_HORARIOS.IDHORARIO = %1:d )";
    return Format(SQL, PrefixoDoDia(FDiaSemana), FIdHorario);
}

} // namespace tarvo::tabelas
