#include "trabalhador/vinculo/UnTarvoESocialCamposIdeTomadorServ.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposIdeTomadorServ::TTarvoESocialCamposIdeTomadorServ(std::int64_t AIDEmpregado, TDate)
    : TTarvoESocialCamposGrupoBase("{75A5536C-A9D9-4DF9-8791-C6EE7F0BEE14}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposIdeTomadorServ::Tabela()
{
    using Eu = TTarvoESocialCamposIdeTomadorServ;
    static const TPropriedades tabela{
        {"TipoInscricao", &Eu::TipoInscricao, TFieldRelacionado("LTIPOINSCPRESTADOR")},
        {"NumeroInscricao", &Eu::NumeroInscricao, TFieldRelacionado("LNUMINSCPRESTADOR")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeTomadorServ::BuscarSQLDados()
{
    // Colons name the block's variables here. Of several service takers of the month one of the very date comes first.
    static constexpr std::string_view SQL = R"(EXECUTE BLOCK
RETURNS (
  LTIPOINSCPRESTADOR VARCHAR(4),
  LNUMINSCPRESTADOR VARCHAR(18),
  LCODPRESTADOR NUMERIC(5,0))
AS
  DECLARE VARIABLE LCODFILIAL TYPE OF COLUMN MOV_TRANSF.COD_FILIAL;
  DECLARE VARIABLE LCODDEPTO TYPE OF COLUMN MOV_TRANSF.COD_DEPTO;
  DECLARE VARIABLE LCODEMPRESA TYPE OF COLUMN MOV_TRANSF.COD_EMPRESA;
  DECLARE VARIABLE LDATAINICIOMOV TYPE OF COLUMN MOV_TRANSF.DATAINICIOMOV;
BEGIN
  FOR SELECT FIRST 1
    MOV_TRANSF.COD_FILIAL,
    MOV_TRANSF.COD_DEPTO,
    MOV_TRANSF.COD_EMPRESA,
    MOV_TRANSF.DATAINICIOMOV
  FROM MOV_TRANSF
  WHERE MOV_TRANSF.IDEMPREGADO = %0:d
    AND MOV_TRANSF.DATAINICIOMOV <= (SELECT SP_ULTIMODIAMES.LDATA FROM SP_ULTIMODIAMES(%1:S))
  ORDER BY MOV_TRANSF.DATAINICIOMOV DESC, MOV_TRANSF.IDMOV_TRANSF
  INTO :LCODFILIAL, :LCODDEPTO, :LCODEMPRESA, :LDATAINICIOMOV
  DO
  BEGIN
    FOR SELECT FIRST 1
      MOV_PRESTSERV.COD_PRESTSERV,
      PREST_SERVICO.TIPOINSCR,
      PREST_SERVICO.INSCRICAO
    FROM MOV_PRESTSERV
    JOIN PREST_SERVICO ON (MOV_PRESTSERV.COD_PRESTSERV = PREST_SERVICO.CODIGO)
    WHERE (MOV_PRESTSERV.DATAFIMMOV IS NULL
        OR MOV_PRESTSERV.DATAFIMMOV >= (SELECT CAST('01.' || EXTRACT(MONTH FROM CAST(%1:S AS TIMESTAMP)) || '.' ||
            EXTRACT(YEAR FROM CAST(%1:S AS TIMESTAMP)) AS TIMESTAMP) FROM RDB$DATABASE))
      AND MOV_PRESTSERV.DATA_MOVIMENTO <= (SELECT SP_ULTIMODIAMES.LDATA FROM SP_ULTIMODIAMES(%1:S))
      AND MOV_PRESTSERV.COD_EMPRESA = :LCODEMPRESA
      AND MOV_PRESTSERV.COD_FILIAL = :LCODFILIAL
      AND MOV_PRESTSERV.COD_DEPTO = :LCODDEPTO
      AND PREST_SERVICO.CATEGORIA LIKE '98%%'
    ORDER BY
      IIF(MOV_PRESTSERV.DATA_MOVIMENTO <= %1:S
        AND (MOV_PRESTSERV.DATAFIMMOV >= %1:S OR MOV_PRESTSERV.DATAFIMMOV IS NULL), 0, 1),
      MOV_PRESTSERV.DATA_MOVIMENTO DESC,
      MOV_PRESTSERV.IDMOV_PRESTSERV,
      PREST_SERVICO.IDPRESTSERVICO
    INTO :LCODPRESTADOR, :LTIPOINSCPRESTADOR, :LNUMINSCPRESTADOR
    DO
      SUSPEND;
  END
END)";
    return Format(SQL, FIDEmpregado, FormatarDataDB(BuscarDataDeReferencia(), true));
}

TDateTime TTarvoESocialCamposIdeTomadorServ::BuscarDataDeReferencia() const
{
    const auto LCds = TTarvoConsultasEmpregado::BuscarDadosEmpregado(FIDEmpregado);
    const auto LAdmissao = LCds->FieldByName("DATA_ADMISSAO").AsDateTime();
    const auto LInicio =
        TTarvoConsultasESocial::BuscarDataInicioEmpresaEsocial(LCds->FieldByName("IDEMPRESA").AsLargeInt())
            .DataInicioEmpregador;
    return LAdmissao >= LInicio ? LAdmissao : LInicio;
}

} // namespace tarvo::trabalhador
