#include "desligamento/s2299/UnTarvoESocialCamposinfoDeslig.h"

#include "desligamento/s2299/UnTarvoESocialCamposConversoresDesligamento.h"
#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsDatas.h"

namespace tarvo::desligamento {

TTarvoESocialCamposinfoDeslig::TTarvoESocialCamposinfoDeslig(std::int64_t AIdEmpregado,
                                                             TDateTime ADataInicioEventosPeriodicos)
    : TTarvoESocialCamposGrupoBase("{2822BD94-1735-4DCD-B6E1-25A6755EFBA2}"),
      dtDeslig(TTarvoConsultasEmpregado::BuscarDataDemissaoOuTransfDefinitiva(AIdEmpregado)),
      sucessaoVincS2299(AIdEmpregado), transfTit(AIdEmpregado), verbasResc(AIdEmpregado), quarentena(AIdEmpregado),
      ConsigFGTS(AIdEmpregado), FIdEmpregado(AIdEmpregado), FDataInicioEventosPeriodicos(ADataInicioEventosPeriodicos)
{
    RegistrarConversor(ClasseConversor<TConversorMotivoDesligamento>());
    RegistrarConversor(ClasseConversor<TConversorPensAlim>());
}

const TPropriedades& TTarvoESocialCamposinfoDeslig::Tabela()
{
    using Eu = TTarvoESocialCamposinfoDeslig;
    static const TPropriedades tabela{
        {"mtvDeslig", &Eu::mtvDeslig,
         TFieldRelacionado("TIPO_RESCISAO", "", ClasseConversor<TConversorMotivoDesligamento>())},
        {"dtDeslig", &Eu::dtDeslig},
        {"indPagtoAPI", &Eu::indPagtoAPI, TFieldRelacionado("DIAS_INDEN")},
        {"dtProjFimAPI", &Eu::dtProjFimAPI, TFieldRelacionado("dtProjFimAPI")},
        {"pensAlim", &Eu::pensAlim, TFieldRelacionado("pensAlim")},
        {"percAliment", &Eu::percAliment, TFieldRelacionado("percAliment")},
        {"vrAlim", &Eu::vrAlim, TFieldRelacionado("vrAlim")},
        {"nrCertObito", &Eu::nrCertObito, TFieldRelacionado("nrCertObito")},
        {"nrProcTrab", &Eu::nrProcTrab, TFieldRelacionado("nrProcTrab")},
        {"indCumprParc", &Eu::indCumprParc, TFieldRelacionado("indCumprParc")},
        {"observacao", &Eu::observacao, TFieldRelacionado("observacao")},
        {"QteDiasinterm", &Eu::QteDiasinterm, TFieldRelacionado("DIAS_TRAB_INTERM")},
        {"VerbaCfgPensao", &Eu::VerbaCfgPensao, TFieldRelacionado("COD_VERBA_CFG_PENSAO")},
        {"DtIniConfigFGTS", &Eu::DtIniConfigFGTS, TFieldRelacionado("DTINICONFIGFGTS")},
        {"ConsigFGTS", &Eu::ConsigFGTS},
        {"sucessaoVincS2299", &Eu::sucessaoVincS2299},
        {"transfTit", &Eu::transfTit},
        {"verbasResc", &Eu::verbasResc},
        {"quarentena", &Eu::quarentena},
    };
    return tabela;
}

// COD_VERBA_CFG_PENSAO is always null here: the rubric of the alimony's amount waits for a source.
std::string TTarvoESocialCamposinfoDeslig::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(WITH
DIAS_INTERMITENTE AS (
  SELECT COALESCE(SUM (DIAS), 0) AS DIAS_TRAB_INTERM
  FROM (
    SELECT (FP_DETCONVOCACAO.DATAFIM + 1) - FP_DETCONVOCACAO.DATAINICIO AS DIAS
    FROM FP_DETCONVOCACAO
    JOIN FP_CONTRAINTERM ON (FP_CONTRAINTERM.IDCONTRAINTERM = FP_DETCONVOCACAO.IDCONTRAINTERM)
    JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_CONTRAINTERM.IDEMPREGADO)
    WHERE EMPREGADOS.IDEMPREGADO = %0:d
      AND FP_DETCONVOCACAO.DATAINICIO >= %1:s
      AND FP_DETCONVOCACAO.DATAFIM <= %2:s)),
INFORECISAO AS (
  SELECT
    FP_EMPREGADOSDET.INFORMACAO1 AS NRCERTOBITO,
    ES02_SPPROC.NUMERO AS NRPROCTRAB,
    FP_EMPREGADOSDET.INFORMACAO3 AS INDCUMPRPARC,
    FP_EMPREGADOSDET.INFORMACAO10 AS OBSERVACAO,
    FP_EMPREGADOSDET.IDEMPREGADOSDET
  FROM FP_EMPREGADOSDET
  LEFT JOIN ES02_SPPROC ON (COALESCE(FP_EMPREGADOSDET.INFORMACAO2,0) = ES02_SPPROC.IDSPPROC)
  WHERE FP_EMPREGADOSDET.IDEMPREGADO = %0:d
    AND FP_EMPREGADOSDET.ESPECIE = 4
    AND FP_EMPREGADOSDET.TP = 1),
ALIMENTICIO AS (
  SELECT
    NULL AS PENSALIM,
    ALIMENTICIO.INFORMACAO1 AS PERCALIMENT,
    NULL AS VRALIM,
    NULL AS COD_VERBA_CFG_PENSAO,
    ALIMENTICIO.DATAINICIO AS DTINICONFIGFGTS,
    ALIMENTICIO.IDEMPREGADOCFG
  FROM SC00_EMPREGADOCFG AS ALIMENTICIO
  WHERE ALIMENTICIO.IDEMPREGADO = %0:d
    AND ALIMENTICIO.ORIGEM = 90
    AND ALIMENTICIO.ESPECIE = 14
    AND ALIMENTICIO.TP = 3
    AND ALIMENTICIO.DATAINICIO <= %1:s
    AND (ALIMENTICIO.DATAFIM >= %1:s OR ALIMENTICIO.DATAFIM IS NULL))
SELECT
  TAB_RESCISAO.DIAS_INDEN,
  DATEADD(TAB_RESCISAO.DIAS_INDEN DAY to EMPREGADOS.DATA_DEMISSAO) as dtProjFimAPI,
  EMPREGADOS.TIPO_RESCISAO,
  EMPREGADOS.DATA_DEMISSAO,
  INFORECISAO.*,
  ALIMENTICIO.*,
  IIF(CATEG.CODIGO = '111', DIAS_INTERMITENTE.DIAS_TRAB_INTERM, -1) AS DIAS_TRAB_INTERM
FROM EMPREGADOS
LEFT JOIN DIAS_INTERMITENTE ON (1 = 1)
LEFT JOIN INFORECISAO ON (1 = 1)
LEFT JOIN ALIMENTICIO ON (1 = 1)
LEFT JOIN TAB_RESCISAO ON ( EMPREGADOS.COD_EMPREGADO = TAB_RESCISAO.COD_EMPREGADO
                        AND EMPREGADOS.COD_EMPRESA = TAB_RESCISAO.COD_EMPRESA )
LEFT JOIN FP_ESOCIALTABELA AS CATEG ON (EMPREGADOS.IDCATEGORIAESOCIAL = CATEG.IDESOCIALTABELA)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY INFORECISAO.IDEMPREGADOSDET, ALIMENTICIO.DTINICONFIGFGTS DESC, ALIMENTICIO.IDEMPREGADOCFG, TAB_RESCISAO.IDRESCISAO)";
    return Format(SQL, FIdEmpregado,
                  FormatarDataDB(TransformarData(dtDeslig, 0, TDiasTransformarData::PrimeiroDiaDoMes), true),
                  FormatarDataDB(TransformarData(dtDeslig, 0, TDiasTransformarData::UltimoDiaDoMes), true));
}

void TTarvoESocialCamposinfoDeslig::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    sucessaoVincS2299.CarregarDados(AListaCamposModificados);
    transfTit.CarregarDados(AListaCamposModificados);
    AtribuirMotivoDaTransferencia();
    if (ValidouEnvioVerbasRescisorias())
        verbasResc.CarregarDados(AListaCamposModificados);
    quarentena.CarregarDados(AListaCamposModificados);
    ConsigFGTS.CarregarDados(AListaCamposModificados);
    pensAlim = !DtIniConfigFGTS.Vazia() && DtIniConfigFGTS <= dtDeslig ? "1" : "0";
}

void TTarvoESocialCamposinfoDeslig::AtribuirValoresManualmente()
{
    // By + 0 the few rows are sorted; by the bare key the engine would walk the whole table.
    static constexpr std::string_view SQL = R"(SELECT CALCULO.VALOR
FROM CALCULO
WHERE CALCULO.IDEMPREGADO = %0:d
  AND CALCULO.TIPO = '05'
  AND CALCULO.SUBTIPO = 0
  AND CALCULO.COD_VERBA = %1:d
ORDER BY CALCULO.IDCALCULO + 0)";
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    if (VerbaCfgPensao == 0)
        return;
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(Format(SQL, FIdEmpregado, VerbaCfgPensao));
    if (!LCds->IsEmpty())
        vrAlim = LCds->FieldByName("VALOR").AsString();
}

void TTarvoESocialCamposinfoDeslig::AtribuirMotivoDaTransferencia()
{
    if (mtvDeslig.empty())
        mtvDeslig = sucessaoVincS2299.motivoAfast;
    if (mtvDeslig.empty())
        mtvDeslig = transfTit.motivoAfast;
}

bool TTarvoESocialCamposinfoDeslig::ValidouEnvioVerbasRescisorias() const
{
    return ValidouEnvioDasVerbas(FIdEmpregado, dtDeslig, FDataInicioEventosPeriodicos);
}

} // namespace tarvo::desligamento
