#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::pagamento {

std::string FiltroDoDemonstrativo(const TTarvoESocialCamposS1210IOP& AInfoBind, std::string_view AOperador)
{
    static constexpr std::string_view FILTRO = R"(%0:s
  AND CALCULO.TIPO = '%1:s'
  AND CALCULO.SUBTIPO = %2:d
  AND CALCULO.DATA_INICIO = %3:s
  AND CALCULO.DATA_PAGTO = %4:s)";
    return Format(FILTRO, FormatarListaParaClausulaIN("CALCULO", "IDEMPREGADO", AInfoBind.ListaIdsEmpregado, AOperador),
                  CodigoDaFolha(AInfoBind.TipoFolha), AInfoBind.SubTipoFolha,
                  FormatarDataDB(AInfoBind.DataInicio, true), FormatarDataDB(AInfoBind.DataPagto, true));
}

std::string FiltroDoRecibo(const TTarvoESocialCamposS1210IOP& AInfoBind, std::string_view ACondicao)
{
    static constexpr std::string_view FILTRO = R"(WHERE SC00_FILIAL.IDEMPRESA = %0:d
  %1:s
  AND RPA.DATAPAGTO = %2:s
  AND RPA.COMPETENCIA = %3:s
  AND %5:s
  AND RPA.NRRPA = %4:d)";
    return Format(FILTRO, AInfoBind.IdEmpresa,
                  FormatarListaParaClausulaIN("RPA", "IDPRESTSERVICO", AInfoBind.ListaIdsPrestServico, " AND "),
                  FormatarDataDB(AInfoBind.DataPagto, true), FormatarDataDB(AInfoBind.DataInicio, true),
                  AInfoBind.NumeroRecibo, ACondicao);
}

std::string OrdemDaChave(std::string_view AChave) { return Format("ORDER BY %0:s + 0", AChave); }

long double BuscarSomaDoSql(std::string_view ASql, std::string_view AChave)
{
    static constexpr std::string_view SQL = R"(SELECT SUM(COALESCE(VALOR,0)) AS VALOR
FROM (
%0:s
%1:s))";
    return TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, ASql, OrdemDaChave(AChave)))
        ->FieldByName("VALOR")
        .AsFloat();
}

} // namespace tarvo::pagamento
