#include "imports/consultas/UnTarvoConsultasESocial.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_INICIO_DA_EMPRESA =
    R"(SELECT FIRST 1 SC00_EMPRESACFG.INFORMACAO1, SC00_EMPRESACFG.INFORMACAO2
FROM SC00_EMPRESACFG
WHERE SC00_EMPRESACFG.IDEMPRESA = %0:d
  AND SC00_EMPRESACFG.ORIGEM = 90
  AND SC00_EMPRESACFG.ESPECIE = 38
  AND SC00_EMPRESACFG.TP = 10
ORDER BY SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";

TDatasInicioESocial TTarvoConsultasESocial::BuscarDataInicioEmpresaEsocial(std::int64_t AIDEmpresa)
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(Format(SQL_INICIO_DA_EMPRESA, AIDEmpresa));
    const auto LerData = [&](const char* ACampo, TDateTime APadrao) {
        const auto LTexto = LCds->FieldByName(ACampo).AsString();
        return Trim(LTexto).empty() ? APadrao : StrToDateTime(LTexto);
    };
    const auto LInicio = LerData("INFORMACAO1", TDateTime());
    return {LInicio, LerData("INFORMACAO2", LInicio)};
}

TDateTime TTarvoConsultasESocial::BuscarDataInicioAmbienteTeste() { return EncodeDate(2017, 8, 1); }

// The owner of the row comes as text: an id, or the sub-select that finds it. %4:s is the primary key.
static constexpr std::string_view SQL_IND_SIMPLES = R"(SELECT FIRST 1 %0:s.INFORMACAO1
FROM %0:s
WHERE %0:s.%1:s = %2:s
  AND %0:s.ORIGEM = 90
  AND %0:s.ESPECIE = 60
  AND %0:s.TP = 1
  AND %0:s.DATAINICIO <= %3:s
  AND (%0:s.DATAFIM >= %3:s OR %0:s.DATAFIM IS NULL)
ORDER BY %0:s.DATAINICIO DESC, %0:s.%4:s)";

std::int32_t TTarvoConsultasESocial::BuscarIndSimples(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData)
{
    const auto LData = FormatarDataDB(DateOf(AData), true);
    const auto LDepto = IntToStr(AIDDepto);
    const auto LEstab =
        AIDEstab != 0
            ? IntToStr(AIDEstab)
            : Format("(SELECT SC00_DEPTO.IDFILIAL FROM SC00_DEPTO WHERE SC00_DEPTO.IDDEPTO = %0:d)", AIDDepto);
    auto LCds = TTarvoConsultasGeral::BuscarRegistros(
        Format(SQL_IND_SIMPLES, "SC00_DEPARTAMENTOCFG", "IDDEPARTAMENTO", LDepto, LData, "IDDEPARTAMENTOCFG"));
    if (LCds->IsEmpty())
        LCds = TTarvoConsultasGeral::BuscarRegistros(
            Format(SQL_IND_SIMPLES, "SC00_FILIALCFG", "IDFILIAL", LEstab, LData, "IDFILIALCFG"));
    return static_cast<std::int32_t>(StrToInt64Def(LCds->FieldByName("INFORMACAO1").AsString(), 0));
}

static constexpr std::string_view SQL_RECIBO = R"(SELECT FIRST 1 SC00_ESOCIALREINFDET.DESCRICAO
FROM SC00_ESOCIALREINFXML
JOIN SC00_ESOCIALREINFDET ON (SC00_ESOCIALREINFDET.IDEVENTO = SC00_ESOCIALREINFXML.IDESOCIALREINFXML)
WHERE SC00_ESOCIALREINFXML.IDEMPRESA = %0:d
  AND SC00_ESOCIALREINFXML.TPEVENTO = '%1:s'
  AND SC00_ESOCIALREINFXML.IDTABELAEVENTO = %2:d
  AND SC00_ESOCIALREINFXML.TPAMB = %3:d
  AND SC00_ESOCIALREINFXML.STATUS IN (201, 202)
  AND SC00_ESOCIALREINFDET.STATUS IN (201, 202) %4:s
ORDER BY SC00_ESOCIALREINFXML.DATA DESC,
  SC00_ESOCIALREINFXML.IDESOCIALREINFXML DESC,
  SC00_ESOCIALREINFDET.IDESOCIALREINFDET)";

std::string TTarvoConsultasESocial::BuscarNumeroDeRecibo(std::int64_t AIDEmpresa, TTipoEventoFolha ATipo,
                                                         std::int64_t AIDTrabalhador, std::int64_t AIDEvento,
                                                         std::int32_t ATpAmb, TDateTime AData)
{
    std::string LFiltro;
    if (AIDEvento != 0)
        LFiltro += Format("AND SC00_ESOCIALREINFXML.IDESOCIALREINFXML = %0:d ", AIDEvento);
    if (!AData.Vazia())
        LFiltro +=
            Format("AND CAST(SC00_ESOCIALREINFXML.INIVALID AS DATE) = %0:s", FormatarDataDB(DateOf(AData), true));
    return TTarvoConsultasGeral::BuscarTexto(
        Format(SQL_RECIBO, AIDEmpresa, BuscarTpEvento(ATipo), AIDTrabalhador, ATpAmb, LFiltro));
}

TTpTribs TTarvoConsultasESocial::RetornarTpTribsMarcados(std::int32_t ACodigo)
{
    return {(ACodigo & 1) != 0, (ACodigo & 2) != 0, (ACodigo & 4) != 0, (ACodigo & 8) != 0};
}

TTiposContribIncid1250 TTarvoConsultasESocial::RetornarTiposContribIncid1250(std::int32_t ACodigo)
{
    return {(ACodigo & 1) != 0, (ACodigo & 2) != 0, (ACodigo & 4) != 0};
}

} // namespace tarvo
