#include "pagamento/s1210/UnTarvoESocialCamposVerbasS1210.h"

#include <algorithm>

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsMatematica.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"
#include "regras/UnTarvoESocialCamposSqlRubricaRpa.h"
#include "regras/UnTarvoESocialCamposSqlTabelaDeRubricas.h"

namespace tarvo::pagamento {

regras::TCodigosIncidenciaVerba BuscarCodigosDaVerbaRpa(std::int64_t AIdRpaTpValor)
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_ESOCIALTABELA.CODIGO NATRUBR,
  RPATPVALOR.DESCRICAO NOME,
  RPATPVALOR.TIPO,
  RPATPVALOR.IDRPATPVALOR,
  FP_ESOCIALTABELACP.CODIGO CODINCPREVSOC,
  COALESCE(FP_ESOCIALTABELAIRRF.CODIGO,0) CODINCIRRF,
  FP_ESOCIALTABELAFGTS.CODIGO CODINCFGTS,
  FP_ESOCIALTABELACS.CODIGO CODINCCS
%1:s
WHERE FP_RUBRICARELACRPA.IDRPATPVALOR = %0:d
ORDER BY FP_RUBRICARELACRPA.IDRUBRICARELACRPA + 0)";
    const auto LCds =
        TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, AIdRpaTpValor, regras::ORIGEM_DA_RUBRICA_RPA));
    const auto Codigo = [&](std::string_view AColuna) {
        return static_cast<std::int32_t>(StrToInt64Def(LCds->FieldByName(AColuna).AsString(), 0));
    };
    return {Codigo("CODINCPREVSOC"), Codigo("CODINCIRRF"), Codigo("CODINCFGTS"), Codigo("CODINCCS")};
}

TTarvoESocialCamposVerbaDoPagamento::TTarvoESocialCamposVerbaDoPagamento(std::string_view AGuid,
                                                                         const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase(AGuid), FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposVerbaDoPagamento::Tabela()
{
    using Eu = TTarvoESocialCamposVerbaDoPagamento;
    static const TPropriedades tabela{
        {"codRubr", &Eu::codRubr},     {"ideTabRubr", &Eu::ideTabRubr}, {"qtdRubr", &Eu::qtdRubr},
        {"fatorRubr", &Eu::fatorRubr}, {"vrUnit", &Eu::vrUnit},         {"vrRubr", &Eu::vrRubr},
        {"IdVerba", &Eu::IdVerba},
    };
    return tabela;
}

const regras::TIncidVerba& TTarvoESocialCamposVerbaDoPagamento::BuscarIncidenciasDaVerba()
{
    FIncidVerba = regras::TTarvoESocialCamposBuscaIncidVerbas::BuscarIncidencias(
        IdVerba, TTarvoConsultasVerbas::BuscarTiposDeTributosComProcessoParaVerbaNaEmpresa(IdVerba, FInfoBind.IdEmpresa,
                                                                                           FInfoBind.DataInicio));
    return FIncidVerba;
}

std::string TTarvoESocialCamposVerbaDoPagamento::ComporCodRubrDaVerba(std::string_view AFiltro) const
{
    const auto LCodigo = TTarvoConsultasGeral::BuscarValor("TAB_VERBAS", "CODIGO", AFiltro);
    return regras::ComporCodRubr(StrToInt64Def(LCodigo, 0), regras::PrimeirosCodigos(FIncidVerba));
}

std::string TTarvoESocialCamposVerbaDoPagamento::BuscarIdeTabRubr() const
{
    const auto LCds =
        TTarvoConsultasGeral::BuscarRegistros(regras::SqlTabelaDeRubricas(FInfoBind.IdEmpresa, FInfoBind.DataInicio));
    return LCds->IsEmpty() ? "0" : LCds->FieldByName("IDETABRUBR").AsString();
}

long double TTarvoESocialCamposVerbaDoPagamento::BuscarQtdRubr() const
{
    static constexpr std::string_view SQL = R"(SELECT COALESCE(CALCULO.REFERENCIA, 0) AS REFERENCIA
FROM CALCULO
JOIN TAB_VERBAS ON (CALCULO.COD_VERBA=TAB_VERBAS.CODIGO)
WHERE (UPPER(TAB_VERBAS.HORAS) = 'SIM' OR TAB_VERBAS.FORMULA LIKE '4T%%')
  AND CALCULO.REFERENCIA > 0
  AND TAB_VERBAS.IDVERBA = %0:d
  %1:s
%2:s)";
    const auto LCds = TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(
        Format(SQL, IdVerba, FiltroDoDemonstrativo(FInfoBind), OrdemDaChave("CALCULO.IDCALCULO")));
    return TTarvoUtilsMatematica::ConverterHorasEmDecimais(LCds->FieldByName("REFERENCIA").AsFloat());
}

long double TTarvoESocialCamposVerbaDoPagamento::BuscarFatorRubr() const
{
    static constexpr std::string_view SQL = R"(SELECT REFERENCIA
FROM (
  SELECT COALESCE(CALCULO.REFERENCIA, 0) AS REFERENCIA, CALCULO.IDCALCULO AS CHAVE
  FROM CALCULO
  JOIN TAB_VERBAS ON (CALCULO.COD_VERBA=TAB_VERBAS.CODIGO)
  WHERE TAB_VERBAS.FORMULA LIKE '9%%'
    AND CALCULO.REFERENCIA > 0
    AND TAB_VERBAS.IDVERBA = %0:d
    %1:s
  UNION ALL
  SELECT COALESCE(TAB_VERBAS.VLR_CALC, 0) AS REFERENCIA, TAB_VERBAS.IDVERBA AS CHAVE
  FROM TAB_VERBAS
  WHERE (TAB_VERBAS.FORMULA IN ('1Z', '3G', '3C') OR TAB_VERBAS.FORMULA LIKE '1C%%')
    AND TAB_VERBAS.VLR_CALC > 0
    AND TAB_VERBAS.IDVERBA = %0:d)
GROUP BY REFERENCIA
ORDER BY MIN(CHAVE))";
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, IdVerba, FiltroDoDemonstrativo(FInfoBind)))
        ->FieldByName("REFERENCIA")
        .AsFloat();
}

// Neither value is tied to an intermittent call, unlike the net of the demonstrative.
static constexpr std::string_view SQL_VALOR = R"(SELECT CALCULO.VALOR
FROM CALCULO
JOIN TAB_VERBAS ON (TAB_VERBAS.CODIGO=CALCULO.COD_VERBA)
WHERE %0:s
  %1:s)";

long double TTarvoESocialCamposVerbaDoPagamento::BuscarVrRubr() const
{
    return BuscarSomaDoSql(
        Format(SQL_VALOR, Format("TAB_VERBAS.IDVERBA = %0:d", IdVerba), FiltroDoDemonstrativo(FInfoBind)),
        "CALCULO.IDCALCULO");
}

long double TTarvoESocialCamposVerbaDoPagamento::BuscarValorTotalPensao() const
{
    return BuscarSomaDoSql(Format(SQL_VALOR, "TAB_VERBAS.FORMULA LIKE '5E%'", FiltroDoDemonstrativo(FInfoBind)),
                           "CALCULO.IDCALCULO");
}

// One row a pensioner, who may be registered under several contracts. Of a pensioner without a CPF the block gives the
// dependants without a CPF who are not marked as pensioners; that is meant.
static constexpr std::string_view SQL_PENSIONISTAS = R"(EXECUTE BLOCK
RETURNS (IDDEPENDENTE TYPE OF COLUMN DEPENDENTES.IDDEPENDENTE)
AS
DECLARE VARIABLE LCPF TYPE OF COLUMN DEPENDENTES.CPF;
BEGIN
  FOR SELECT DISTINCT COALESCE(DEPENDENTES.CPF, '')
    %2:s
    WHERE DEPENDENTES.PENSIONISTA = 1
      %0:s
      AND DEPENDENTES.DATA_NASCIMENTO <= %1:S
    ORDER BY 1
    INTO :LCPF
  DO BEGIN
    IF (LCPF <> '') THEN BEGIN
      FOR SELECT FIRST 1 DEPENDENTES.IDDEPENDENTE
        %2:s
        WHERE DEPENDENTES.CPF = :LCPF
          AND DEPENDENTES.PENSIONISTA = 1
          %0:s
          AND DEPENDENTES.DATA_NASCIMENTO <= %1:S
        ORDER BY DEPENDENTES.IDDEPENDENTE
        INTO :IDDEPENDENTE
      DO SUSPEND;
    END ELSE BEGIN
      FOR SELECT DEPENDENTES.IDDEPENDENTE
        %2:s
        WHERE COALESCE(DEPENDENTES.CPF, '') = ''
          AND DEPENDENTES.PENSIONISTA <> 1
          %0:s
          AND DEPENDENTES.DATA_NASCIMENTO <= %1:S
        ORDER BY DEPENDENTES.IDDEPENDENTE
        INTO :IDDEPENDENTE
      DO SUSPEND;
    END
  END
END)";

void TTarvoESocialCamposVerbaDoPagamento::CarregarListaPensaoAlimenticia(
    bool (*AAceito)(std::int64_t ACodIncIrrf), const TListaCamposModificados* AListaCamposModificados)
{
    static constexpr std::string_view DEPENDENTES_DO_EMPREGADO = R"(FROM DEPENDENTES
    JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = DEPENDENTES.COD_EMPRESA
      AND EMPREGADOS.COD_EMPREGADO = DEPENDENTES.COD_EMPREGADO))";
    const auto& LCodigos = FIncidVerba.FListIrrf;
    if (std::none_of(LCodigos.begin(), LCodigos.end(), AAceito))
        return;
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(
        Format(SQL_PENSIONISTAS,
               FormatarListaParaClausulaIN("EMPREGADOS", "IDEMPREGADO", FInfoBind.ListaIdsEmpregado, " AND "),
               FormatarDataDB(FInfoBind.DataInicio, true), DEPENDENTES_DO_EMPREGADO));
    if (LCds->IsEmpty())
        return;
    const auto LTotal = BuscarValorTotalPensao();
    if (LTotal <= 0)
        return;
    for (; !LCds->Eof(); LCds->Next()) {
        auto LPensao = std::make_unique<TTarvoESocialCampospenAlim>(FInfoBind);
        LPensao->IdDependente = LCds->FieldByName("IDDEPENDENTE").AsLargeInt();
        LPensao->vlrPensao = LTotal / static_cast<long double>(LCds->RecordCount());
        LPensao->CarregarDados(AListaCamposModificados);
        penAlim.push_back(std::move(LPensao));
    }
}

} // namespace tarvo::pagamento
