#include "rural/produtor/UnTarvoESocialCamposideProdutorBrenco.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::rural {

TTarvoESocialCamposideProdutorBrenco::TTarvoESocialCamposideProdutorBrenco(std::int64_t AIdFilial, std::string ACNPJ,
                                                                           TDateTime ADataInicio, TDateTime ADataFim,
                                                                           bool AExisteProcessoAdquirente,
                                                                           std::int32_t AProducaoIsenta)
    : TTarvoESocialCamposideProdutorBrencoBase(AIdFilial, std::move(ACNPJ), ADataInicio, ADataFim,
                                               AExisteProcessoAdquirente, AProducaoIsenta)
{}

std::string TTarvoESocialCamposideProdutorBrenco::BuscarSQLDados()
{
    return SqlProdutorBrenco(Compras(), ProducaoIsenta(), Cpf());
}

void TTarvoESocialCamposideProdutorBrenco::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposideProdutorBrencoBase::CarregarDados(AListaCamposModificados);
    nfs.CarregarDados(AListaCamposModificados);
    CarregarValoresRetencao();
    if (!ExisteProcessoAdquirente())
        CarregarInfoProcJud();
}

void TTarvoESocialCamposideProdutorBrenco::CarregarValoresRetencao()
{
    const auto LRetencao = TTarvoConsultasGeral::BuscarRegistros(SqlRetencaoBrenco(Compras(), ProducaoIsenta(), Cpf()));
    if (!LRetencao->IsEmpty())
        RatearRetencao(*LRetencao);
}

void TTarvoESocialCamposideProdutorBrenco::CarregarInfoProcJud()
{
    // The inscription stands bare, and the engine compares numbers; meant.
    static constexpr std::string_view SQL = R"(SELECT ES02_SPPROC.IDSPPROC
FROM ES02_SPPROC
JOIN CO01_PLANO ON (ES02_SPPROC.IDPLANO = CO01_PLANO.IDPLANO)
JOIN ES02_CLIFOR ON (CO01_PLANO.IDCLIFOR = ES02_CLIFOR.IDCLIFOR)
WHERE ES02_CLIFOR.PRODUTOR = 1
  AND ES02_CLIFOR.TPINSCRICAO = 2
  AND ES02_CLIFOR.CNPJ = %0:s
  AND ES02_SPPROC.IDFILIAL = %1:d
  AND ES02_SPPROC.DATAABERTURA <= %2:s
ORDER BY ES02_SPPROC.IDSPPROC + 0)";
    LevarRetencaoAosProcessos(*TTarvoConsultasGeral::BuscarRegistros(
        Format(SQL, Cpf(), Compras().IdFilial, FormatarDataDB(Compras().DataFim, true))));
}

} // namespace tarvo::rural
