#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposIdeDmDev.h"
#include "regras/UnTarvoESocialCamposSqlCalculo.h"

namespace tarvo::desligamento {

TRamoDeDemonstrativo RamoRescisaoComplementar(const TdmDevDesligamentoIOP& ADmDev, std::string AColunas)
{
    static const std::string JUNCOES =
        "\nJOIN " + std::string(regras::RESC_COMPL_DO_CALCULO) + std::string(JUNCAO_VERBAS);
    static constexpr std::string_view CONDICOES = R"(CALCULO.TIPO = '05'
  AND CALCULO.SUBTIPO = 2
  AND ((RESC_COMPL.IDINFOGFIP650660 IS NULL) OR (CALCULO.DATA_PAGTO BETWEEN %0:s AND %1:s )))";
    return {TTipoCalculoDesligamento::RescisaoComplementar, std::move(AColunas), JUNCOES,
            Format(CONDICOES, FormatarDataDB(ADmDev.GetPrimeiroDiaMesRescisao(), true),
                   FormatarDataDB(ADmDev.GetUltimoDiaMesRescisao(), true)) +
                std::string(SEM_BASE_DO_SALARIO_FAMILIA)};
}

TRamoDeDemonstrativo RamoOutrosTiposNaCompetencia(const TdmDevDesligamentoIOP& ADmDev, std::string AColunas)
{
    static constexpr std::string_view CONDICOES = R"(CALCULO.TIPO IN ('02', '06')
  AND CALCULO.SUBTIPO = 0
  AND CALCULO.DATA_PAGTO BETWEEN %0:s AND %1:s
  AND CALCULO.VALOR > 0)";
    return {TTipoCalculoDesligamento::OutroDaCompetencia, std::move(AColunas), "",
            Format(CONDICOES, FormatarDataDB(ADmDev.GetPrimeiroDiaMesRescisao(), true),
                   FormatarDataDB(ADmDev.GetUltimoDiaMesRescisao(), true))};
}

namespace {

std::string SqlDoRamo(const TRamoDeDemonstrativo& ARamo, std::string_view AColunaDoTipo, std::int64_t AIdEmpregado)
{
    static constexpr std::string_view SQL = R"(SELECT
  %0:d AS %1:s,
  CALCULO.DATA_INICIO,
  CALCULO.DATA_FIM,
  CALCULO.DATA_PAGTO,
  CALCULO.TIPO,
  %2:s,
  CALCULO.IDCALCULO
FROM CALCULO%3:s
WHERE CALCULO.IDEMPREGADO = %4:d
  AND %5:s)";
    return Format(SQL, static_cast<int>(ARamo.Tipo), AColunaDoTipo, ARamo.Colunas, ARamo.Juncoes, AIdEmpregado,
                  ARamo.Condicoes);
}

} // namespace

std::string SqlDosRamos(std::initializer_list<TRamoDeDemonstrativo> ARamos, std::string_view AColunaDoTipo,
                        std::string_view AOutras, std::int64_t AIdEmpregado)
{
    static constexpr std::string_view SQL = R"(SELECT
  %0:s
FROM (
%1:s
)
GROUP BY %0:s)";
    std::string LRamos;
    for (const auto& LRamo : ARamos)
        LRamos += (LRamos.empty() ? "" : "\nUNION ALL\n") + SqlDoRamo(LRamo, AColunaDoTipo, AIdEmpregado);
    return Format(SQL, Format("%0:s, DATA_INICIO, DATA_FIM, DATA_PAGTO, TIPO, %1:s", AColunaDoTipo, AOutras), LRamos);
}

void AlimentarDmDev(TdmDevDesligamentoIOP& ADmDev, const TOvraClientDataSet& ACds, std::string_view AColunaDoTipo)
{
    ADmDev.TipoCalculo = static_cast<TTipoCalculoDesligamento>(ACds.FieldByName(AColunaDoTipo).AsInteger());
    ADmDev.DataPagamento = ACds.FieldByName("DATA_PAGTO").AsDateTime();
    ADmDev.DataInicio = ACds.FieldByName("DATA_INICIO").AsDateTime();
    ADmDev.DataFim = ACds.FieldByName("DATA_FIM").AsDateTime();
    ADmDev.TipoFolha = ACds.FieldByName("TIPO").AsString();
    ADmDev.SubTipoFolha = ACds.FieldByName("SUBTIPO").AsInteger();
}

std::string FormarIdeDmDevDesligamento(const TdmDevDesligamentoIOP& ADmDev, std::int32_t ATipoCalcComplem,
                                       std::int64_t AIdDetConvocacao)
{
    using enum TTipoCalculoDesligamento;
    regras::TDadosIdeDmDev LDados;
    LDados.TipoFolha = StrToInt64(ADmDev.TipoFolha);
    LDados.SubTipoFolha = ADmDev.SubTipoFolha;
    LDados.TipoFolhaCompl = ATipoCalcComplem;
    LDados.Data = ADmDev.DataInicio;
    if (ADmDev.TipoCalculo == Rescisao || ADmDev.TipoCalculo == RescisaoComplementar)
        LDados.Forma = regras::TFormaIdeDmDev::Rescisao;
    else if (ADmDev.TipoCalculo == Intermitente)
        LDados.IdDetConvocacao = AIdDetConvocacao;
    if (TTarvoConsultasEmpregado::ExistemVariosVinculosAtivosComCategDiferentes(ADmDev.IDEmpregado, ADmDev.DataInicio))
        LDados.CodCateg = static_cast<std::int32_t>(
            StrToInt64Def(TTarvoConsultasEmpregado::BuscarCodCategoriaEmpregado(ADmDev.IDEmpregado).substr(0, 3), 0));
    return regras::FormarIdeDmDev(LDados);
}

bool ValidouEnvioDasVerbas(std::int64_t AIdEmpregado, TDateTime ADataDesligamento,
                           TDateTime ADataInicioEventosPeriodicos)
{
    return ADataDesligamento >= ADataInicioEventosPeriodicos &&
           !TTarvoConsultasEmpregado::EncontrouMovimPorTransfDefinitivaParaOhEmpregado(
               IntToStr(AIdEmpregado), ADataDesligamento, ADataDesligamento);
}

} // namespace tarvo::desligamento
