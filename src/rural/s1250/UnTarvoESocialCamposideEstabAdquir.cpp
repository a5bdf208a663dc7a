#include "rural/s1250/UnTarvoESocialCamposideEstabAdquir.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "rural/s1250/UnTarvoESocialCampostpAquis.h"
#include "rural/s1250/UnTarvoESocialCampostpAquisBrenco.h"

namespace tarvo::rural {

TTarvoESocialCamposideEstabAdquir::TTarvoESocialCamposideEstabAdquir(std::int64_t AIDEstabelecimento,
                                                                     TDateTime ADataInicio, TDateTime ADataFim,
                                                                     TTipoConexao ATipoConexao)
    : TTarvoESocialCamposideEstabAdquirBase(AIDEstabelecimento, ADataInicio, ADataFim, ATipoConexao)
{}

std::string TTarvoESocialCamposideEstabAdquir::BuscarSQLDados()
{
    return SqlEstabelecimentoAdquirente(Compras().IdFilial);
}

std::string TTarvoESocialCamposideEstabAdquir::BuscarSqlTpAquis()
{
    static constexpr std::string_view SQL = R"(SELECT
  SUM(MOV_PRESTSERV.VALOR) AS VALOR,
  COALESCE(MOV_PRESTSERV.PRODUCAOISENTA, 2) AS PRODUCAOISENTA
%0:s
GROUP BY PRODUCAOISENTA
ORDER BY PRODUCAOISENTA)";
    return TipoConexao() == TTipoConexao::Folha ? Format(SQL, ComprasDaFolha(Compras())) : SqlTpAquisBrenco(Compras());
}

void TTarvoESocialCamposideEstabAdquir::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposideEstabAdquirBase::CarregarDados(AListaCamposModificados);
    BuscarDadosTpAquis();
}

void TTarvoESocialCamposideEstabAdquir::BuscarDadosTpAquis()
{
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(BuscarSqlTpAquis());
    if (TipoConexao() == TTipoConexao::Folha)
        AcrescentarTpAquis<TTarvoESocialCampostpAquis>(*LCds);
    else
        AcrescentarTpAquis<TTarvoESocialCampostpAquisBrenco>(*LCds);
}

} // namespace tarvo::rural
