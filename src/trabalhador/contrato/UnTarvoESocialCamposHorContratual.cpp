#include "trabalhador/contrato/UnTarvoESocialCamposHorContratual.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"
#include "tabelas/horario/UnTarvoESocialCamposInfoHorContratual.h"

namespace tarvo::trabalhador {

namespace {

/// What the layout says instead of a weekday: the day varies.
constexpr std::int32_t DIA_VARIAVEL = 8;

/// The layout counts Monday to Sunday, 1 to 7.
std::int32_t DiaDoLeiaute(TDiaSemana ADia) { return ADia == TDiaSemana::Domingo ? 7 : static_cast<std::int32_t>(ADia); }

} // namespace

TTarvoESocialCamposHorContratual::TTarvoESocialCamposHorContratual(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{ACE7860C-5687-4E74-ABB2-9868B79F4D71}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposHorContratual::Tabela()
{
    using Eu = TTarvoESocialCamposHorContratual;
    static const TPropriedades tabela{
        {"CarregarDadosDoHorario", &Eu::CarregarDadosDoHorario},
        {"Horario", &Eu::Horario},
        {"QuantidadedHorasSemanais", &Eu::QuantidadedHorasSemanais, TFieldRelacionado("QTDHRSSEMANAESOCIAL")},
        {"CodigoHorario", &Eu::CodigoHorario, TFieldRelacionado("CODIGO")},
        {"DescricaoHorario", &Eu::DescricaoHorario, TFieldRelacionado("DESCRICAO")},
        {"TipoJornada", &Eu::TipoJornada, TFieldRelacionado("TIPO")},
        {"RevezHrTrab", &Eu::RevezHrTrab, TFieldRelacionado("REVEZHRTRAB")},
        {"RevezHrFolga", &Eu::RevezHrFolga, TFieldRelacionado("REVEZHRFOLGA")},
        {"DescricaoTipoJornada", &Eu::DescricaoTipoJornada, TFieldRelacionado("DESCTIPOJORNADA")},
        {"tmpParc", &Eu::tmpParc, TFieldRelacionado("TMPPARC")},
        {"IdHorario", &Eu::IdHorario, TFieldRelacionado("IDHORARIO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposHorContratual::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  TAB_HORARIOS.QTDHRSSEMANAESOCIAL,
  TAB_HORARIOS.TIPO,
  TAB_HORARIOS.IDHORARIO,
  TAB_HORARIOS.DESCTIPOJORNADA,
  TAB_HORARIOS.REVEZHRTRAB,
  TAB_HORARIOS.REVEZHRFOLGA,
  TAB_HORARIOS.DESCRICAO,
  TAB_HORARIOS.JORNADA_SEMANAL,
  TAB_HORARIOS.CODIGO,
  (SELECT FIRST 1 SC00_EMPREGADOCFG.INFORMACAO2
   FROM SC00_EMPREGADOCFG
   WHERE %1:s
     AND SC00_EMPREGADOCFG.INFORMACAO1 = 1
     AND %2:s
   ORDER BY SC00_EMPREGADOCFG.DATAINICIO DESC, SC00_EMPREGADOCFG.IDEMPREGADOCFG) AS TMPPARC
FROM EMPREGADOS
LEFT JOIN TAB_HORARIOS ON ( TAB_HORARIOS.CODIGO = EMPREGADOS.COD_HORARIO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY TAB_HORARIOS.IDHORARIO + 0)";
    return Format(SQL, FIDEmpregado, regras::CondicaoDaChave(regras::SC00_EMPREGADOCFG, FIDEmpregado, {90, 1, 1}),
                  regras::CondicaoDaValidade(regras::SC00_EMPREGADOCFG, FDataGeracao));
}

void TTarvoESocialCamposHorContratual::CarregarDadosHorario()
{
    if (TipoJornada == 1 || TipoJornada == 2)
        CarregarDiasDaSemana();
    // No other pattern of shifts is listed; meant.
    else if (TipoJornada == 4 && StrToInt64Def(RevezHrTrab, 0) == 12 && StrToInt64Def(RevezHrFolga, 0) == 36)
        CarregarTurnos();
}

void TTarvoESocialCamposHorContratual::CarregarDiasDaSemana()
{
    for (std::int32_t LDiaSemana = 0; LDiaSemana <= 6; ++LDiaSemana) {
        const auto LDia = static_cast<TDiaSemana>(LDiaSemana);
        tabelas::TTarvoESocialCamposInfoHorContratual LHorario(IdHorario, 0, LDia);
        LHorario.CarregarDados();
        if (StrToInt64Def(LHorario.dadosHorContratual.durJornada, 0) == 0)
            continue;
        // The code ends in the suite's number of the weekday, not in the layout's; meant.
        AdicionarHorario(LDiaSemana, TipoJornada == 1 ? DiaDoLeiaute(LDia) : DIA_VARIAVEL,
                         FormatFloat("000000", StrToInt64Def(LHorario.ideHorContratual.codHorContrat, 0)) +
                             IntToStr(LDiaSemana));
    }
}

void TTarvoESocialCamposHorContratual::CarregarTurnos()
{
    static constexpr std::string_view SQL = R"(SELECT TAB_HORARIOSDET.CODIGOESOCIAL
FROM TAB_HORARIOSDET
WHERE TAB_HORARIOSDET.IDHORARIO = %0:D
ORDER BY TAB_HORARIOSDET.IDHORARIO, TAB_HORARIOSDET.IDHORARIODET)";
    for (const auto LCds = TTarvoConsultasGeral::BuscarRegistros(Format(SQL, IdHorario)); !LCds->Eof(); LCds->Next())
        AdicionarHorario(DIA_VARIAVEL, DIA_VARIAVEL, LCds->FieldByName("CODIGOESOCIAL").AsString());
}

void TTarvoESocialCamposHorContratual::AdicionarHorario(std::int32_t ADiaSemana, std::int32_t ADia, std::string ACodigo)
{
    auto& LHorario = *Horario.emplace_back(std::make_unique<TTarvoESocialCamposHorario>(IdHorario, ADiaSemana));
    LHorario.Dia = ADia;
    LHorario.CodigoHorarioContratual = std::move(ACodigo);
}

void TTarvoESocialCamposHorContratual::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosHorario();
}

} // namespace tarvo::trabalhador
