#include "rural/s1250/UnTarvoESocialCampostpAquisBrenco.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "rural/produtor/UnTarvoESocialCamposideProdutorBrenco.h"

namespace tarvo::rural {

TTarvoESocialCampostpAquisBrenco::TTarvoESocialCampostpAquisBrenco(std::int64_t AIDEstabelecimento,
                                                                   TDateTime ADataInicio, TDateTime ADataFim,
                                                                   std::int32_t AProducaoIsenta)
    : TTarvoESocialCampostpAquisBase(AIDEstabelecimento, ADataInicio, ADataFim, AProducaoIsenta)
{}

std::string TTarvoESocialCampostpAquisBrenco::BuscarSQLDados() { return SqlTotalBrenco(Compras(), ProducaoIsenta()); }

void TTarvoESocialCampostpAquisBrenco::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCampostpAquisBase::CarregarDados(AListaCamposModificados);
    const auto LProdutores = TTarvoConsultasGeral::BuscarRegistros(SqlProdutoresBrenco(Compras(), ProducaoIsenta()));
    const auto LSomas =
        AcrescentarProdutores<TTarvoESocialCamposideProdutorBrenco>(*LProdutores, "CNPJ", AListaCamposModificados);
    // Even without producers: the processes then stand with sums of zero; meant.
    AcrescentarInfoProcJ(LSomas, AListaCamposModificados);
}

} // namespace tarvo::rural
