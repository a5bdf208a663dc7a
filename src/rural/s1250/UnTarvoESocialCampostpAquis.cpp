#include "rural/s1250/UnTarvoESocialCampostpAquis.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "rural/produtor/UnTarvoESocialCamposideProdutor.h"

namespace tarvo::rural {

TTarvoESocialCampostpAquis::TTarvoESocialCampostpAquis(std::int64_t AIDEstabelecimento, TDateTime ADataInicio,
                                                       TDateTime ADataFim, std::int32_t AProducaoIsenta)
    : TTarvoESocialCampostpAquisBase(AIDEstabelecimento, ADataInicio, ADataFim, AProducaoIsenta)
{}

std::string TTarvoESocialCampostpAquis::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT SUM (MOV_PRESTSERV.VALOR) AS VALOR
%0:s)";
    return Format(SQL, ComprasDaFolha(Compras(), ProducaoIsenta()));
}

void TTarvoESocialCampostpAquis::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    static constexpr std::string_view SQL = R"(SELECT DISTINCT PREST_SERVICO.CPF
%0:s
ORDER BY PREST_SERVICO.CPF)";
    TTarvoESocialCampostpAquisBase::CarregarDados(AListaCamposModificados);
    const auto LProdutores =
        TTarvoConsultasGeral::BuscarRegistros(Format(SQL, ComprasDaFolha(Compras(), ProducaoIsenta())));
    if (LProdutores->IsEmpty())
        return;
    const auto LSomas =
        AcrescentarProdutores<TTarvoESocialCamposideProdutor>(*LProdutores, "CPF", AListaCamposModificados);
    AcrescentarInfoProcJ(LSomas, AListaCamposModificados);
}

} // namespace tarvo::rural
