#include "trabalhador/contrato/UnTarvoESocialCamposLocalTrabGeral.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "tabelas/estabelecimento/UnTarvoESocialCamposTipoInscricao1005.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposLocalTrabGeral::TTarvoESocialCamposLocalTrabGeral(std::int64_t AIDEmpregado, TDate ADataBase)
    : TTarvoESocialCamposGrupoBase("{F278C184-6981-4659-8929-ACC12ED4B03D}"), FIDEmpregado(AIDEmpregado),
      FDataBase(ADataBase)
{}

const TPropriedades& TTarvoESocialCamposLocalTrabGeral::Tabela()
{
    using Eu = TTarvoESocialCamposLocalTrabGeral;
    static const TPropriedades tabela{
        {"TipoInscricao", &Eu::TipoInscricao},
        {"NumeroInscricao", &Eu::NumeroInscricao},
        {"DescricaoComplementar", &Eu::DescricaoComplementar},
        {"IdFilial", &Eu::IdFilial, TFieldRelacionado("IDFILIAL")},
        {"IdDepto", &Eu::IdDepto, TFieldRelacionado("IDDEPTO")},
        {"Contrato", &Eu::Contrato, TFieldRelacionado("CONTRATO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposLocalTrabGeral::BuscarSQLDados()
{
    // Each place once, the one at the date before those of later transfers.
    static constexpr std::string_view SQL = R"(SELECT
  LOCAIS.IDFILIAL,
  LOCAIS.IDDEPTO,
  LOCAIS.CONTRATO
FROM (
  SELECT
    0 AS POSTERIOR,
    NULL AS INICIO,
    NULL AS CHAVE,
    SC00_FILIAL.IDFILIAL,
    SC00_DEPTO.IDDEPTO,
    EMPREGADOS.CONTRATO
  FROM SP_BUSCARALOCACAOEMPREGADO(%1:s, NULL, %0:d) AS ALOC
  JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = ALOC.IDFILIAL)
  LEFT JOIN SC00_DEPTO ON (SC00_DEPTO.IDDEPTO = ALOC.IDDEPTO AND SC00_DEPTO.TIPODEPTO IN (2, 3))
  JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = ALOC.IDEMPREGADO)
  UNION ALL
  SELECT
    1 AS POSTERIOR,
    MOV_TRANSF.DATAINICIOMOV AS INICIO,
    MOV_TRANSF.IDMOV_TRANSF AS CHAVE,
    SC00_FILIAL.IDFILIAL,
    SC00_DEPTO.IDDEPTO,
    EMPREGADOS.CONTRATO
  FROM MOV_TRANSF
  JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = MOV_TRANSF.IDFILIAL)
  LEFT JOIN SC00_DEPTO ON (SC00_DEPTO.IDFILIAL = SC00_FILIAL.IDFILIAL AND SC00_DEPTO.DEPTO=MOV_TRANSF.COD_DEPTO
    AND SC00_DEPTO.TIPODEPTO IN (2, 3))
  JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = MOV_TRANSF.IDEMPREGADO)
  WHERE MOV_TRANSF.IDEMPREGADO = %0:d
    AND MOV_TRANSF.MOTIVOINICIAL = 'TRANSFERENCIA DEFINITIVA' AND MOV_TRANSF.DATAINICIOMOV > %1:s) AS LOCAIS
GROUP BY
  LOCAIS.IDFILIAL,
  LOCAIS.IDDEPTO,
  LOCAIS.CONTRATO
ORDER BY
  MIN(LOCAIS.POSTERIOR),
  MAX(LOCAIS.INICIO) DESC,
  MIN(LOCAIS.CHAVE),
  LOCAIS.IDDEPTO)";
    return Format(SQL, FIDEmpregado, FormatarDataDB(FDataBase, true));
}

void TTarvoESocialCamposLocalTrabGeral::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    // Always, also for a group that the list leaves out.
    const tabelas::TTarvoESocialCamposTipoInscricao1005 LInscricao(IdFilial, IdDepto);
    TipoInscricao = LInscricao.TipoInscricao;
    NumeroInscricao = LInscricao.Inscricao;
}

} // namespace tarvo::trabalhador
