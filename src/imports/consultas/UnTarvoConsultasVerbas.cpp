#include "imports/consultas/UnTarvoConsultasVerbas.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

// The date of opening may carry a time of day; the day is what counts.
static constexpr std::string_view SQL_PROCESSOS_DA_VERBA = R"(SELECT ES02_SPPROC.IDSPPROC, ES02_SPPROC.INDMATERIATPTRIB
FROM FP_VERBAPROCESSO
JOIN ES02_SPPROC ON (ES02_SPPROC.IDSPPROC = FP_VERBAPROCESSO.IDSPPROC)
LEFT JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = ES02_SPPROC.IDFILIAL)
WHERE FP_VERBAPROCESSO.IDVERBA = %0:d
  AND (COALESCE(ES02_SPPROC.IDFILIAL, 0) = 0 OR SC00_FILIAL.IDEMPRESA = %1:d)
  AND CAST(ES02_SPPROC.DATAABERTURA AS DATE) <= %2:s
ORDER BY ES02_SPPROC.DATAABERTURA DESC, ES02_SPPROC.IDSPPROC DESC)";

TTributosComProcesso TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(std::int64_t AIDVerba,
                                                                                               std::int64_t AIDEmpresa,
                                                                                               TDateTime AData)
{
    TTributosComProcesso LTributos;
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(
        Format(SQL_PROCESSOS_DA_VERBA, AIDVerba, AIDEmpresa, FormatarDataDB(DateOf(AData), true)));
    for (; !LCds->Eof(); LCds->Next()) {
        const auto LMarcados = TTarvoConsultasESocial::RetornarTpTribsMarcados(
            static_cast<std::int32_t>(StrToInt64Def(LCds->FieldByName("INDMATERIATPTRIB").AsString(), 0)));
        const auto LIdProcesso = LCds->FieldByName("IDSPPROC").AsLargeInt();
        const auto Atribuir = [&](bool AMarcado, bool& ATem, std::int64_t& AId) {
            if (!AMarcado || ATem)
                return;
            ATem = true;
            AId = LIdProcesso;
        };
        Atribuir(LMarcados.INSS, LTributos.INSS, LTributos.IDProcessoINSS);
        Atribuir(LMarcados.IRRF, LTributos.IRRF, LTributos.IDProcessoIRRF);
        Atribuir(LMarcados.FGTS, LTributos.FGTS, LTributos.IDProcessoFGTS);
        Atribuir(LMarcados.CS, LTributos.CS, LTributos.IDProcessoCS);
    }
    return LTributos;
}

static constexpr std::string_view SQL_VERBA_DA_FORMULA = R"(SELECT MIN(TAB_VERBAS.IDVERBA)
FROM TAB_VERBAS
WHERE TAB_VERBAS.FORMULA = '%0:s')";

std::int64_t TTarvoConsultasVerbas::BuscarIDVerbaPelaCaracteristica(std::string_view ACaracteristica)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_VERBA_DA_FORMULA, ACaracteristica));
}

static constexpr std::string_view SQL_NATUREZA_DA_VERBA = R"(SELECT FIRST 1 FP_ESOCIALTABELA.CODIGO
FROM FP_RUBRICARELAC
JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_RUBRICARELAC.IDESOCIALTABELA)
WHERE FP_RUBRICARELAC.IDVERBA = %0:d
  AND FP_ESOCIALTABELA.TABELA = 3
  AND FP_RUBRICARELAC.DATAINICIO <= %1:s
  AND (FP_RUBRICARELAC.DATAFIM >= %1:s OR FP_RUBRICARELAC.DATAFIM IS NULL)
ORDER BY FP_RUBRICARELAC.DATAINICIO DESC, FP_RUBRICARELAC.IDRUBRICARELAC)";

std::int32_t TTarvoConsultasVerbas::BuscarNatRubrVerba(std::int64_t AIDVerba, TDateTime AData)
{
    const auto LCodigo =
        TTarvoConsultasGeral::BuscarTexto(Format(SQL_NATUREZA_DA_VERBA, AIDVerba, FormatarDataDB(DateOf(AData), true)));
    return static_cast<std::int32_t>(StrToInt64Def(LCodigo, 0));
}

} // namespace tarvo
