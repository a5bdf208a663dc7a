#include "desligamento/s2399/UnTarvoESocialCamposinfoTSVTermino.h"

#include "desligamento/verbas/UnTarvoESocialCamposDemonstrativosDesligamento.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::desligamento {

TTarvoESocialCamposinfoTSVTermino::TTarvoESocialCamposinfoTSVTermino(std::int64_t AIdEmpregado,
                                                                     TDate ADataInicioEventosPeriodicos)
    : TTarvoESocialCamposGrupoBase("{DA503296-1049-4497-A8AE-4791F75FC612}"),
      dtTerm(TTarvoConsultasEmpregado::BuscarDataDemissaoOuTransfDefinitiva(AIdEmpregado)), verbasResc(AIdEmpregado),
      quarentena(AIdEmpregado), FIdEmpregado(AIdEmpregado), FDataInicioEventosPeriodicos(ADataInicioEventosPeriodicos)
{}

const TPropriedades& TTarvoESocialCamposinfoTSVTermino::Tabela()
{
    using Eu = TTarvoESocialCamposinfoTSVTermino;
    static const TPropriedades tabela{
        {"dtTerm", &Eu::dtTerm},
        {"pensAlim", &Eu::pensAlim},
        {"mtvDesligTSV", &Eu::mtvDesligTSV, TFieldRelacionado("MTVDESLIGTSV")},
        {"DtInicioCfg", &Eu::DtInicioCfg, TFieldRelacionado("DATAINICIO")},
        {"percAliment", &Eu::percAliment, TFieldRelacionado("INFORMACAO1")},
        {"CategoriaEmpregado", &Eu::CategoriaEmpregado, TFieldRelacionado("CATEGORIA")},
        {"verbasResc", &Eu::verbasResc},
        {"quarentena", &Eu::quarentena},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoTSVTermino::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(WITH CONFIG AS (
  SELECT
    SC00_EMPREGADOCFG.IDEMPREGADO,
    SC00_EMPREGADOCFG.DATAINICIO,
    SC00_EMPREGADOCFG.INFORMACAO1,
    SC00_EMPREGADOCFG.IDEMPREGADOCFG
  FROM SC00_EMPREGADOCFG
  WHERE SC00_EMPREGADOCFG.IDEMPREGADO = %0:d
    AND SC00_EMPREGADOCFG.ORIGEM = 90
    AND SC00_EMPREGADOCFG.ESPECIE = 14
    AND SC00_EMPREGADOCFG.TP = 3
    AND SC00_EMPREGADOCFG.DATAFIM IS NULL)
SELECT
  TAB_RESCISAO.MTVDESLIGTSV,
  CONFIG.DATAINICIO,
  CONFIG.INFORMACAO1,
  FP_ESOCIALTABELA.CODIGO AS CATEGORIA
FROM EMPREGADOS
INNER JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = EMPREGADOS.IDCATEGORIAESOCIAL
                            AND FP_ESOCIALTABELA.TABELA = 1)
INNER JOIN TAB_RESCISAO ON (TAB_RESCISAO.COD_EMPRESA = EMPREGADOS.COD_EMPRESA
                        AND TAB_RESCISAO.COD_EMPREGADO = EMPREGADOS.COD_EMPREGADO)
LEFT JOIN CONFIG ON (CONFIG.IDEMPREGADO = EMPREGADOS.IDEMPREGADO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY IIF(CONFIG.DATAINICIO <= %1:s, 0, 1), CONFIG.DATAINICIO DESC, CONFIG.IDEMPREGADOCFG, TAB_RESCISAO.IDRESCISAO)";
    return Format(SQL, FIdEmpregado, FormatarDataDB(dtTerm, true));
}

void TTarvoESocialCamposinfoTSVTermino::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    if (ValidouGeracaoVerbas())
        verbasResc.CarregarDados(AListaCamposModificados);
    quarentena.CarregarDados(AListaCamposModificados);
}

bool TTarvoESocialCamposinfoTSVTermino::ValidouGeracaoVerbas() const
{
    return ValidouEnvioDasVerbas(FIdEmpregado, dtTerm, FDataInicioEventosPeriodicos);
}

} // namespace tarvo::desligamento
